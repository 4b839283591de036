#include <host/ValueJson.h>

#include <property/Property.h>
#include <property/PropertyVocabulary.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointF>
#include <QRandomGenerator>
#include <QRectF>
#include <QRgba64>
#include <QSizeF>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

using Matrix = QGenericMatrix<3, 3, double>;
using MakeValue = QVariant (*)(QRandomGenerator &random);

/// A JSON value from its text, through a document as files have it.
QJsonValue parse(const QByteArray &json)
{
    return QJsonDocument::fromJson("[" + json + "]").array().at(0);
}

/// The same JSON value after it was written to a file and read again.
QJsonValue throughText(const QJsonValue &json)
{
    return parse(QJsonDocument(QJsonArray{json}).toJson().trimmed().chopped(1).mid(1));
}

Property makeProperty(const QString &type)
{
    return Property(QStringLiteral("name"), QStringLiteral("Label"), type);
}

QVariant imageFormat(const char *format, int rate)
{
    return QVariant::fromValue(ImageFormatDesc{QString::fromLatin1(format), rate});
}

/// A number of any size, whole or not.
double anyNumber(QRandomGenerator &random)
{
    const double magnitude = std::pow(10.0, random.bounded(30) - 15);
    return (random.generateDouble() * 2.0 - 1.0) * magnitude;
}

float anyFloat(QRandomGenerator &random)
{
    return static_cast<float>(anyNumber(random));
}

int anyInt(QRandomGenerator &random)
{
    return static_cast<int>(random.generate());
}

quint16 anyChannel(QRandomGenerator &random)
{
    return static_cast<quint16>(random.bounded(65536));
}

QVariant anyMatrix(QRandomGenerator &random)
{
    double numbers[9];
    for (double &number : numbers)
        number = anyNumber(random);
    return QVariant::fromValue(Matrix(numbers));
}

QVariant anyImageFormat(QRandomGenerator &random)
{
    const QString formats[] = {QStringLiteral("png"), QStringLiteral("jpeg"),
                               QStringLiteral("tiff"), QStringLiteral("bmp")};
    return QVariant::fromValue(ImageFormatDesc{formats[random.bounded(4)], random.bounded(101)});
}

QVariant anyText(QRandomGenerator &random)
{
    QString text;
    for (int i = random.bounded(12); i > 0; --i)
        text += QChar(random.bounded(1, 0xD800)); // below the surrogates
    return text;
}

} // namespace

Q_DECLARE_METATYPE(MakeValue)

class tst_ValueJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreRead_data();
    void valuesAreRead();
    void matrixIsReadRowByRow();
    void imageFormatIsRead();
    void wrongValuesAreTold_data();
    void wrongValuesAreTold();

    void everyValueSurvives_data();
    void everyValueSurvives();
    void numbersStayShort_data();
    void numbersStayShort();
    void textFormIsKept();
    void valuesWithoutJsonForm_data();
    void valuesWithoutJsonForm();

    void choiceIsIndexWithoutValues();
    void choiceIsEntryOfValues();
    void choiceTellsTypesApart();
};

void tst_ValueJson::valuesAreRead_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const QString &type, const char *json, const QVariant &value) {
        QTest::addRow("%s %s", qPrintable(type), json) << type << QByteArray(json) << value;
    };
    row(kPropertyTypeInteger, "-3", -3);
    row(kPropertyTypeInteger, "3.0", 3);
    row(kPropertyTypeInteger, "2147483647", std::numeric_limits<int>::max());
    row(kPropertyTypeInteger, "-2147483648", std::numeric_limits<int>::min());
    row(kPropertyTypeFloat, "3", 3.0);
    row(kPropertyTypePercent, "0.25", 0.25);
    row(kPropertyTypeAngle, "-90", -90.0);
    row(kPropertyTypeBoolean, "true", true);
    row(kPropertyTypeBeginGroup, "false", false);
    row(kPropertyTypeString, R"("")", QString());
    row(kPropertyTypeText, R"("a\nb")", QStringLiteral("a\nb"));
    row(kPropertyTypeStaticText, R"("a")", QStringLiteral("a"));
    row(kPropertyTypeFilename, R"("/tmp")", QStringLiteral("/tmp"));
    row(kPropertyTypeVec2, "[1, 0.5]", QVector2D(1.0F, 0.5F));
    row(kPropertyTypeVec3, R"("1 -2.5 .5e1")", QVector3D(1.0F, -2.5F, 5.0F));
    row(kPropertyTypeVec3, R"("2")", QVector3D(2.0F, 2.0F, 2.0F));
    row(kPropertyTypeVec4, "2", QVector4D(2.0F, 2.0F, 2.0F, 2.0F));
    row(kPropertyTypeVec4, "[1, 2, 3, 4]", QVector4D(1.0F, 2.0F, 3.0F, 4.0F));
    row(kPropertyTypeColor, "[1, 0, 0]", QColor(255, 0, 0));
    row(kPropertyTypeColor, "[0, 1, 0, 0]", QColor(0, 255, 0, 0));
    row(kPropertyTypeColor, R"("1 0 0")", QColor::fromRgbF(1.0F, 0.0F, 0.0F));
    row(kPropertyTypeColor, R"("0 0 1 0.5")", QColor::fromRgbF(0.0F, 0.0F, 1.0F, 0.5F));
    row(kPropertyTypeColor, R"("0.5")", QColor::fromRgbF(0.5F, 0.5F, 0.5F, 0.5F));
    row(kPropertyTypeColor, R"("SteelBlue")", QColor(70, 130, 180));
    row(kPropertyTypeColor, R"("#12345678")", QColor(0x34, 0x56, 0x78, 0x12));
    row(kPropertyTypeColorRGB, R"("#abc")", QColor(0xaa, 0xbb, 0xcc));
    row(kPropertyTypeColorRGB, "[0, 0, 1]", QColor(0, 0, 255));
    row(kPropertyTypeSize, "[640, 480]", QSize(640, 480));
    row(kPropertyTypeRenderSize, "[-1, 0]", QSize(-1, 0));
    row(kPropertyTypeSizeF, "[1.5, 2]", QSizeF(1.5, 2.0));
    row(kPropertyTypePoint, "[3, -4]", QPoint(3, -4));
    row(kPropertyTypePointF, "[0.5, 4]", QPointF(0.5, 4.0));
    row(kPropertyTypePointF, R"("0.5 4")", QPointF(0.5, 4.0));
    row(kPropertyTypePointF, R"("3")", QPointF(3.0, 3.0));
    row(kPropertyTypeRect, "[1, 2, 3, 4]", QRect(1, 2, 3, 4));
    row(kPropertyTypeRectF, "[1, 2, 3.5, 4]", QRectF(1.0, 2.0, 3.5, 4.0));
    row(QStringLiteral("host/own"), R"("x")", QStringLiteral("x"));
    row(QStringLiteral("host/own"), "1.5", 1.5);
}

void tst_ValueJson::valuesAreRead()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, json);
    QFETCH(QVariant, value);
    QString error;

    const auto read = valueFromJson(makeProperty(type), parse(json), error);

    QVERIFY2(read.has_value(), qPrintable(error));
    QCOMPARE(*read, value);
    QCOMPARE(read->userType(), value.userType());
    QCOMPARE(error, QString());
}

void tst_ValueJson::matrixIsReadRowByRow()
{
    const Property property = makeProperty(kPropertyTypeTransform2D);
    QString error;

    const auto fromArray = valueFromJson(property, parse("[1, 2, 3, 4, 5, 6, 7, 8, 9]"), error);
    const auto fromText = valueFromJson(property, parse(R"("1 2 3 4 5 6 7 8 9")"), error);

    QVERIFY(fromArray && fromText);
    QCOMPARE(fromArray->value<Matrix>()(0, 2), 3.0);
    QCOMPARE(fromArray->value<Matrix>()(2, 0), 7.0);
    QVERIFY(fromArray->value<Matrix>() == fromText->value<Matrix>());
}

void tst_ValueJson::imageFormatIsRead()
{
    const Property property = makeProperty(kPropertyTypeImageFormat);
    QString error;

    const auto full =
        valueFromJson(property, parse(R"({"format": "jpeg", "compressionRate": 80})"), error);
    const auto brief = valueFromJson(property, parse(R"({"format": "tiff"})"), error);

    QVERIFY(full && brief);
    QCOMPARE(full->value<ImageFormatDesc>().format, QStringLiteral("jpeg"));
    QCOMPARE(full->value<ImageFormatDesc>().compressionRate, 80);
    QCOMPARE(brief->value<ImageFormatDesc>().format, QStringLiteral("tiff"));
    QCOMPARE(brief->value<ImageFormatDesc>().compressionRate, 0);
}

void tst_ValueJson::wrongValuesAreTold_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [](const QString &type, const char *json, const char *error) {
        QTest::addRow("%s %s", qPrintable(type), json)
            << type << QByteArray(json) << QString::fromUtf8(error);
    };
    row(kPropertyTypeInteger, R"("3")", "expected a whole number, found a string");
    row(kPropertyTypeInteger, "0.1", "expected a whole number, found 0.1");
    row(kPropertyTypeInteger, "-2147483649",
        "a whole number must lie between -2147483648 and 2147483647");
    row(kPropertyTypeFloat, "{}", "expected a number, found an object");
    row(kPropertyTypeVec3, "[1, 2, null]", "/2: expected a number, found null");
    row(kPropertyTypeVec3, R"("")", R"("" in "" is not a number)");
    row(kPropertyTypeVec3, R"("inf")", R"("inf" in "inf" is not a number)");
    row(kPropertyTypeVec3, R"("nan 0 0")", R"("nan" in "nan 0 0" is not a number)");
    row(kPropertyTypeVec3, R"("0x10")", R"("0x10" in "0x10" is not a number)");
    row(kPropertyTypeVec3, R"("1,5 2 3")", R"("1,5" in "1,5 2 3" is not a number)");
    row(kPropertyTypeVec3, R"("1\t2 3 4")", "\"1\t2\" in \"1\t2 3 4\" is not a number");
    row(kPropertyTypeVec3, R"(" 1 2 3")",
        R"(expected 3 numbers with single spaces between, found " 1 2 3")");
    row(kPropertyTypeVec3, "-1e39", "a vector component is too large for single precision");
    row(kPropertyTypeColor, R"("")", R"("" is not a colour)");
    row(kPropertyTypeColor, R"("1 0")", R"("1 0" is not a colour)");
    row(kPropertyTypeColor, R"("2")", "a colour component must lie between 0 and 1");
    row(kPropertyTypeColor, "[-0.1, 0, 0]", "/0: a colour component must lie between 0 and 1");
    row(kPropertyTypeColor, "[0, 0, 0, 0, 0]", "expected 3 or 4 fractions, found an array of 5");
    row(kPropertyTypeColorRGB, "[0, 0, 0, 0]", "expected 3 fractions, found an array of 4");
    row(kPropertyTypeColorRGB, R"("#80ffffff")", R"("#80ffffff" is not an opaque colour)");
    row(kPropertyTypeSize, R"("1 2")", "expected [width, height], found a string");
    row(kPropertyTypePoint, "[1]", "expected [x, y], found an array of 1");
    row(kPropertyTypePointF, R"("1 2 3")",
        R"(expected 2 numbers with single spaces between, found "1 2 3")");
    row(kPropertyTypeRect, "[1, 2]", "expected [x, y, width, height], found an array of 2");
    row(kPropertyTypeRect, "[2147483647, 0, 2147483647, 1]",
        "the rectangle ends outside the range of whole numbers");
    row(kPropertyTypeTransform2D, "[1]", "expected 9 numbers, found an array of 1");
    row(kPropertyTypeTransform2D, R"("1")",
        R"(expected 9 numbers with single spaces between, found "1")");
    row(kPropertyTypeNone, "1", R"(a property of type "void" has no value)");
    row(kPropertyTypeTab, "1", R"(a property of type "tab" has no value)");
    row(kPropertyTypeImageFormat, R"("png")",
        R"(expected an object with "format", found a string)");
    row(kPropertyTypeImageFormat, "{}", R"("format" is missing)");
    row(kPropertyTypeImageFormat, R"({"format": null})", "/format: expected a string, found null");
    row(kPropertyTypeImageFormat, R"({"format": "jpg"})",
        R"(/format: "jpg" is not one of png, jpeg, tiff, bmp (did you mean "jpeg"?))");
    row(kPropertyTypeImageFormat, R"({"format": "PNG"})",
        R"(/format: "PNG" is not one of png, jpeg, tiff, bmp)");
    row(kPropertyTypeImageFormat, R"({"format": "png", "compressionRate": 1.5})",
        "/compressionRate: expected a whole number, found 1.5");
    row(kPropertyTypeImageFormat, R"({"format": "png", "compressionRate": 101})",
        "/compressionRate: a compression rate must lie between 0 and 100");
    row(kPropertyTypeImageFormat, R"({"format": "png", "compressionRate": -1})",
        "/compressionRate: a compression rate must lie between 0 and 100");
    row(kPropertyTypeImageFormat, R"({"format": "png", "compresionRate": 5})",
        R"(/compresionRate: unknown key (did you mean "compressionRate"?))");
    row(QStringLiteral("host/own"), "null", "expected a value, found null");
}

void tst_ValueJson::wrongValuesAreTold()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    QString told;

    QVERIFY(!valueFromJson(makeProperty(type), parse(json), told).has_value());

    QCOMPARE(told, error);
}

void tst_ValueJson::everyValueSurvives_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<MakeValue>("makeValue");
    const auto row = [](const QString &type, MakeValue makeValue) {
        QTest::newRow(qPrintable(type)) << type << makeValue;
    };
    row(kPropertyTypeBoolean, [](QRandomGenerator &r) { return QVariant(r.bounded(2) == 1); });
    row(kPropertyTypeInteger, [](QRandomGenerator &r) { return QVariant(anyInt(r)); });
    row(kPropertyTypeFloat, [](QRandomGenerator &r) { return QVariant(anyNumber(r)); });
    row(kPropertyTypePercent, [](QRandomGenerator &r) { return QVariant(r.generateDouble()); });
    row(kPropertyTypeText, anyText);
    row(kPropertyTypeVec2,
        [](QRandomGenerator &r) { return QVariant(QVector2D(anyFloat(r), anyFloat(r))); });
    row(kPropertyTypeVec3, [](QRandomGenerator &r) {
        return QVariant(QVector3D(anyFloat(r), anyFloat(r), anyFloat(r)));
    });
    row(kPropertyTypeVec4, [](QRandomGenerator &r) {
        return QVariant(QVector4D(anyFloat(r), anyFloat(r), anyFloat(r), anyFloat(r)));
    });
    row(kPropertyTypeColor, [](QRandomGenerator &r) {
        return QVariant(
            QColor::fromRgba64(anyChannel(r), anyChannel(r), anyChannel(r), anyChannel(r)));
    });
    row(kPropertyTypeColorRGB, [](QRandomGenerator &r) {
        return QVariant(QColor::fromRgba64(anyChannel(r), anyChannel(r), anyChannel(r)));
    });
    row(kPropertyTypeSize,
        [](QRandomGenerator &r) { return QVariant(QSize(anyInt(r), anyInt(r))); });
    row(kPropertyTypeSizeF,
        [](QRandomGenerator &r) { return QVariant(QSizeF(anyNumber(r), anyNumber(r))); });
    row(kPropertyTypePoint,
        [](QRandomGenerator &r) { return QVariant(QPoint(anyInt(r), anyInt(r))); });
    row(kPropertyTypePointF,
        [](QRandomGenerator &r) { return QVariant(QPointF(anyNumber(r), anyNumber(r))); });
    row(kPropertyTypeRect, [](QRandomGenerator &r) {
        return QVariant(QRect(r.bounded(1000), -r.bounded(1000), r.bounded(1000), r.bounded(1000)));
    });
    row(kPropertyTypeRectF, [](QRandomGenerator &r) {
        return QVariant(QRectF(anyNumber(r), anyNumber(r), anyNumber(r), anyNumber(r)));
    });
    row(kPropertyTypeTransform2D, anyMatrix);
    row(kPropertyTypeImageFormat, anyImageFormat);
    row(QStringLiteral("host/own"), [](QRandomGenerator &r) {
        return QVariant(QVariantMap{{QStringLiteral("k"), QVariantList{anyNumber(r), anyText(r)}}});
    });
}

void tst_ValueJson::everyValueSurvives()
{
    QFETCH(QString, type);
    QFETCH(MakeValue, makeValue);
    const Property property = makeProperty(type);
    QRandomGenerator random(20240229);

    for (int run = 0; run < 500; ++run) {
        const QVariant value = makeValue(random);
        const QJsonValue json = throughText(valueToJson(property, value));
        QString error;
        const auto read = valueFromJson(property, json, error);

        QVERIFY2(read.has_value(), qPrintable(error));
        QCOMPARE(read->userType(), value.userType());
        // A QVariant compares matrices on Qt 6 only.
        if (type == kPropertyTypeTransform2D)
            QVERIFY(read->value<Matrix>() == value.value<Matrix>());
        else if (type != kPropertyTypeImageFormat)
            QCOMPARE(*read, value);
        QVERIFY(isSameValue(property, *read, value));
        QCOMPARE(valueToJson(property, *read), json);
    }
}

void tst_ValueJson::numbersStayShort_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const QString &type, const QVariant &value, const char *json) {
        QTest::newRow(json) << type << value << QByteArray(json);
    };
    row(kPropertyTypeVec3, QVector3D(0.1F, -0.7F, 16777216.0F), "[0.1,-0.7,16777216]");
    row(kPropertyTypePercent, 0.1F, "0.1");
    row(kPropertyTypeColor, QColor::fromRgbF(0.5F, 0.1F, 1.0F), "[0.5,0.1,1,1]");
    row(kPropertyTypeColorRGB, QColor::fromRgbF(0.25F, 0.0F, 1.0F), "[0.25,0,1]");
    row(kPropertyTypeColor, QColor::fromHsv(0, 255, 255), "[1,0,0,1]");
    row(kPropertyTypeFloat, 0.1, "0.1");
    row(kPropertyTypeSize, QSize(640, 480), "[640,480]");
    row(kPropertyTypeImageFormat, imageFormat("jpeg", 80),
        R"({"compressionRate":80,"format":"jpeg"})");
    row(kPropertyTypeImageFormat, imageFormat("bmp", 0), R"({"format":"bmp"})");
}

void tst_ValueJson::numbersStayShort()
{
    QFETCH(QString, type);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, json);

    const QJsonValue written = valueToJson(makeProperty(type), value);

    QCOMPARE(QJsonDocument(QJsonArray{written}).toJson(QJsonDocument::Compact), "[" + json + "]");
}

void tst_ValueJson::textFormIsKept()
{
    QCOMPARE(valueToJson(makeProperty(kPropertyTypeVec3), QStringLiteral("1 2 3")),
             QJsonValue(QStringLiteral("1 2 3")));
    QCOMPARE(valueToJson(makeProperty(kPropertyTypeColor), QStringLiteral("red")),
             QJsonValue(QStringLiteral("red")));
}

void tst_ValueJson::valuesWithoutJsonForm_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("value");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("invalid") << kPropertyTypeInteger << QVariant();
    QTest::newRow("infinite number") << kPropertyTypeFloat << QVariant(infinity);
    QTest::newRow("not a number") << kPropertyTypeFloat << QVariant(std::nan(""));
    QTest::newRow("infinite component") << kPropertyTypePointF << QVariant(QPointF(0.0, infinity));
    QTest::newRow("invalid colour") << kPropertyTypeColor << QVariant(QColor());
    QTest::newRow("no value") << kPropertyTypeSeparator << QVariant(1);
    QTest::newRow("texture") << kPropertyTypeTexture << QVariant(1);
    QTest::newRow("image format without name") << kPropertyTypeImageFormat << imageFormat("", 80);
    QTest::newRow("unknown image format") << kPropertyTypeImageFormat << imageFormat("JPEG", 80);
    QTest::newRow("rate out of range") << kPropertyTypeImageFormat << imageFormat("jpeg", 101);
    QTest::newRow("other than an image format")
        << kPropertyTypeImageFormat << QVariant(QStringLiteral("jpeg"));
    QTest::newRow("own type that JSON cannot hold")
        << QStringLiteral("host/own") << QVariant(QSize(1, 2));
}

void tst_ValueJson::valuesWithoutJsonForm()
{
    QFETCH(QString, type);
    QFETCH(QVariant, value);

    QVERIFY(valueToJson(makeProperty(type), value).isUndefined());
}

void tst_ValueJson::choiceIsIndexWithoutValues()
{
    Property property = makeProperty(kPropertyTypeEnumeration);
    property.setHint(kPropertyHintDisplayValues,
                     QStringList{QStringLiteral("A"), QStringLiteral("B")});
    QString error;

    QCOMPARE(valueFromJson(property, parse("1"), error).value_or(QVariant()), QVariant(1));
    QCOMPARE(valueToJson(property, 1), QJsonValue(1));
    QVERIFY(!valueFromJson(property, parse("2"), error));
    QCOMPARE(error, QStringLiteral("there is no choice 2, the list has 2"));
    QVERIFY(!valueFromJson(property, parse("-1"), error));
    QCOMPARE(error, QStringLiteral("there is no choice -1, the list has 2"));
    QVERIFY(!valueFromJson(property, parse(R"("A")"), error));
    QCOMPARE(error, QStringLiteral("expected a whole number, found a string"));
}

void tst_ValueJson::choiceIsEntryOfValues()
{
    Property property = makeProperty(kPropertyTypeEnumeration);
    const QVariantList values{10, 0.5, QStringLiteral("x"), true, 10000000000LL};
    property.setHint(kPropertyHintValues, values);

    for (const QVariant &value : values) {
        QString error;
        const auto read = valueFromJson(property, valueToJson(property, value), error);

        QVERIFY2(read.has_value(), qPrintable(error));
        QCOMPARE(*read, value);
        QCOMPARE(read->userType(), value.userType());
    }
}

void tst_ValueJson::choiceTellsTypesApart()
{
    Property property = makeProperty(kPropertyTypeEnumeration);
    property.setHint(kPropertyHintValues, QVariantList{1, QStringLiteral("1"), true});
    QString error;

    QCOMPARE(valueFromJson(property, parse("1"), error)->userType(), int(QMetaType::Int));
    QCOMPARE(valueFromJson(property, parse("1.0"), error)->userType(), int(QMetaType::Int));
    QCOMPARE(valueFromJson(property, parse(R"("1")"), error)->userType(), int(QMetaType::QString));
    QCOMPARE(valueFromJson(property, parse("true"), error)->userType(), int(QMetaType::Bool));
    QVERIFY(!valueFromJson(property, parse("false"), error));
    QCOMPARE(error, QStringLiteral("false is not one of the \"values\""));
    QVERIFY(!valueFromJson(property, parse("[1]"), error));
    QCOMPARE(error, QStringLiteral("expected a string, a number or a boolean, found an array"));
}

QTEST_MAIN(tst_ValueJson)
#include "tst_ValueJson.moc"
