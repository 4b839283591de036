#include <property/ValueCodecs.h>

#include <QLocale>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Tessark::PropertyUI;

namespace {

constexpr quint32 kSeed = 20260101;

DoubleMatrix3x3 matrixOf(std::initializer_list<double> rowMajor)
{
    DoubleMatrix3x3 matrix;
    int i = 0;
    for (const double element : rowMajor) {
        matrix(i / 3, i % 3) = element;
        ++i;
    }
    return matrix;
}

bool isIdentity(const DoubleMatrix3x3 &matrix)
{
    return matrix == DoubleMatrix3x3();
}

/// A number that six significant digits and single precision keep exactly.
float shortNumber(QRandomGenerator &random)
{
    return static_cast<float>(random.bounded(-99999, 100000)) / 8.0F;
}

} // namespace

class tst_ValueCodecs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void writesNumbers_data();
    void writesNumbers();
    void writesEveryComponentInOrder();
    void writesTheSameInEveryLocale();
    void readsVectors_data();
    void readsVectors();
    void readsNumbers_data();
    void readsNumbers();
    void readsInSinglePrecision();
    void readsTheSameInEveryLocale();
    void roundTripsShortNumbers();
    void readsMatrix();
    void readsIdentityForAnyOtherCount_data();
    void readsIdentityForAnyOtherCount();
    void readsColors_data();
    void readsColors();
    void readsUnusableColors_data();
    void readsUnusableColors();
    void readsHostileText_data();
    void readsHostileText();
    void textureChoiceIsItsName();
    void valueTypesAreKnownByName();
};

void tst_ValueCodecs::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_ValueCodecs::writesNumbers_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole") << 2.0 << QStringLiteral("2");
    QTest::newRow("negative") << -2.5 << QStringLiteral("-2.5");
    QTest::newRow("six digits") << 123456.0 << QStringLiteral("123456");
    QTest::newRow("seven digits are rounded") << 1234567.0 << QStringLiteral("1.23457e+06");
    QTest::newRow("small") << 0.0001 << QStringLiteral("0.0001");
    QTest::newRow("very small") << 0.0000001 << QStringLiteral("1e-07");
    QTest::newRow("a third") << 1.0 / 3.0 << QStringLiteral("0.333333");
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << QStringLiteral("inf");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN()
                                  << QStringLiteral("nan");
}

void tst_ValueCodecs::writesNumbers()
{
    QFETCH(double, number);
    QFETCH(QString, text);

    QCOMPARE(QPointF_toString(QPointF(number, 0)), text + QStringLiteral(" 0"));
}

void tst_ValueCodecs::writesEveryComponentInOrder()
{
    QCOMPARE(QPointF_toString(QPointF(1234567, 0.0000001)), QStringLiteral("1.23457e+06 1e-07"));
    QCOMPARE(QVector2D_toString(QVector2D(1, 2)), QStringLiteral("1 2"));
    QCOMPARE(QVector3D_toString(QVector3D(1, 0.5F, -2)), QStringLiteral("1 0.5 -2"));
    QCOMPARE(QVector4D_toString(QVector4D(1, 2, 3, 4)), QStringLiteral("1 2 3 4"));
    QCOMPARE(QMatrix3x3_toString(matrixOf({1, 2, 3, 4, 5, 6, 7, 8, 9})),
             QStringLiteral("1 2 3 4 5 6 7 8 9"));
}

void tst_ValueCodecs::writesTheSameInEveryLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));

    QCOMPARE(QVector2D_toString(QVector2D(12345.5F, 0.25F)), QStringLiteral("12345.5 0.25"));
}

void tst_ValueCodecs::readsVectors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPointF>("two");
    QTest::addColumn<QVector3D>("three");
    QTest::addColumn<QVector4D>("four");

    const QPointF no2;
    const QVector3D no3;
    const QVector4D no4;
    QTest::newRow("one fills all")
        << QStringLiteral("2") << QPointF(2, 2) << QVector3D(2, 2, 2) << QVector4D(2, 2, 2, 2);
    QTest::newRow("two") << QStringLiteral("1 2") << QPointF(1, 2) << no3 << no4;
    QTest::newRow("three") << QStringLiteral("1 2 3") << no2 << QVector3D(1, 2, 3) << no4;
    QTest::newRow("four") << QStringLiteral("1 2 3 4") << no2 << no3 << QVector4D(1, 2, 3, 4);
    QTest::newRow("five") << QStringLiteral("1 2 3 4 5") << no2 << no3 << no4;
    QTest::newRow("empty") << QString() << no2 << no3 << no4;
    QTest::newRow("doubled space")
        << QStringLiteral("1  2 3") << no2 << no3 << QVector4D(1, 0, 2, 3);
    QTest::newRow("leading space") << QStringLiteral(" 3") << QPointF(0, 3) << no3 << no4;
    QTest::newRow("trailing space") << QStringLiteral("3 ") << QPointF(3, 0) << no3 << no4;
    QTest::newRow("bad part") << QStringLiteral("a 3") << QPointF(0, 3) << no3 << no4;
    QTest::newRow("comma") << QStringLiteral("1,5 2") << QPointF(0, 2) << no3 << no4;
    QTest::newRow("tab is no separator") << QStringLiteral("1\t2") << no2 << no3 << no4;
    QTest::newRow("newline is no separator")
        << QStringLiteral("1\n2 3") << QPointF(0, 3) << no3 << no4;
}

void tst_ValueCodecs::readsVectors()
{
    QFETCH(QString, text);
    QFETCH(QPointF, two);
    QFETCH(QVector3D, three);
    QFETCH(QVector4D, four);

    QCOMPARE(QPointF_fromString(text), two);
    QCOMPARE(QVector2D_fromString(text), QVector2D(two));
    QCOMPARE(QVector3D_fromString(text), three);
    QCOMPARE(QVector4D_fromString(text), four);
}

void tst_ValueCodecs::readsNumbers_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<double>("number");

    QTest::newRow("sign") << QStringLiteral("+1.5") << 1.5;
    QTest::newRow("exponent") << QStringLiteral("1.5e3") << 1500.0;
    QTest::newRow("capital exponent") << QStringLiteral("25E-2") << 0.25;
    QTest::newRow("out of range") << QStringLiteral("1e999") << 0.0;
    QTest::newRow("out of float range") << QStringLiteral("1e39") << 0.0;
    QTest::newRow("negative out of range") << QStringLiteral("-1e999") << 0.0;
    QTest::newRow("infinity") << QStringLiteral("inf") << std::numeric_limits<double>::infinity();
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << 0.0;
    QTest::newRow("hexadecimal float") << QStringLiteral("0x1p3") << 0.0;
    QTest::newRow("arabic digits") << QStringLiteral("\u0661\u0662") << 0.0;
    QTest::newRow("full-width digits") << QStringLiteral("\uFF11") << 0.0;
    QTest::newRow("group separator") << QStringLiteral("1,234") << 0.0;
    QTest::newRow("two numbers glued") << QStringLiteral("1.2.3") << 0.0;
    QTest::newRow("trailing letters") << QStringLiteral("1px") << 0.0;
    QTest::newRow("embedded null") << QString(QStringLiteral("1") + QChar(0)) << 0.0;
}

void tst_ValueCodecs::readsNumbers()
{
    QFETCH(QString, part);
    QFETCH(double, number);

    const QPointF point = QPointF_fromString(part + QStringLiteral(" 7"));

    QCOMPARE(point.x(), number);
    QCOMPARE(point.y(), 7.0);
}

void tst_ValueCodecs::readsInSinglePrecision()
{
    const QPointF point = QPointF_fromString(QStringLiteral("0.1 0.2"));
    const DoubleMatrix3x3 matrix = QMatrix3x3_fromString(QStringLiteral("0.1 0 0 0 0.1 0 0 0 0.1"));

    QVERIFY(point.x() == double(0.1F) && point.x() != 0.1);
    QVERIFY(point.y() == double(0.2F) && point.y() != 0.2);
    QVERIFY(matrix(2, 2) == double(0.1F) && matrix(2, 2) != 0.1);
}

void tst_ValueCodecs::readsTheSameInEveryLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));

    QCOMPARE(QVector2D_fromString(QStringLiteral("1.5 2,5")), QVector2D(1.5F, 0));
}

void tst_ValueCodecs::roundTripsShortNumbers()
{
    QRandomGenerator random(kSeed);
    for (int i = 0; i < 20000; ++i) {
        const float a = shortNumber(random);
        const float b = shortNumber(random);
        const float c = shortNumber(random);
        const float d = shortNumber(random);
        // Six significant digits: compare what they keep.
        const auto kept = [](float f) { return QString::number(double(f), 'g', 6).toFloat(); };
        const QVector4D vector(kept(a), kept(b), kept(c), kept(d));

        QCOMPARE(QVector4D_fromString(QVector4D_toString(QVector4D(a, b, c, d))), vector);
        QCOMPARE(QVector4D_toString(vector), QVector4D_toString(QVector4D(a, b, c, d)));
        QCOMPARE(QVector3D_fromString(QVector3D_toString(vector.toVector3D())),
                 vector.toVector3D());
        QCOMPARE(QVector2D_fromString(QVector2D_toString(vector.toVector2D())),
                 vector.toVector2D());
        QCOMPARE(QPointF_fromString(QPointF_toString(vector.toPointF())), vector.toPointF());
        const DoubleMatrix3x3 matrix = matrixOf(
            {kept(a), kept(b), kept(c), kept(d), kept(-a), kept(-b), kept(-c), kept(-d), kept(a)});
        QVERIFY(QMatrix3x3_fromString(QMatrix3x3_toString(matrix)) == matrix);
    }
}

void tst_ValueCodecs::readsMatrix()
{
    const DoubleMatrix3x3 matrix = matrixOf({1, 2, 3, 4, 5, 6, 7, 8, 9});

    QVERIFY(QMatrix3x3_fromString(QStringLiteral("1 2 3 4 5 6 7 8 9")) == matrix);
    QVERIFY(QMatrix3x3_fromString(QStringLiteral("1 2 3 4 5 6 7 8 x"))
            == matrixOf({1, 2, 3, 4, 5, 6, 7, 8, 0}));
}

void tst_ValueCodecs::readsIdentityForAnyOtherCount_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("one is no scalar shorthand") << QStringLiteral("5");
    QTest::newRow("eight") << QStringLiteral("1 2 3 4 5 6 7 8");
    QTest::newRow("ten") << QStringLiteral("1 2 3 4 5 6 7 8 9 10");
    QTest::newRow("nine and a space") << QStringLiteral("1 2 3 4 5 6 7 8 9 ");
}

void tst_ValueCodecs::readsIdentityForAnyOtherCount()
{
    QFETCH(QString, text);

    QVERIFY(isIdentity(QMatrix3x3_fromString(text)));
}

void tst_ValueCodecs::readsColors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");

    QTest::newRow("three parts are opaque")
        << QStringLiteral("1 0 0") << QColor::fromRgbF(1, 0, 0, 1);
    QTest::newRow("four parts") << QStringLiteral("0.25 0.5 0.75 0.5")
                                << QColor::fromRgbF(0.25F, 0.5F, 0.75F, 0.5F);
    QTest::newRow("one part is a translucent grey")
        << QStringLiteral("0.5") << QColor::fromRgbF(0.5F, 0.5F, 0.5F, 0.5F);
    QTest::newRow("a bad part is 0") << QStringLiteral("x 1 0") << QColor::fromRgbF(0, 1, 0, 1);
    QTest::newRow("nan is 0") << QStringLiteral("nan 1 0 nan") << QColor::fromRgbF(0, 1, 0, 0);
    QTest::newRow("a single nan") << QStringLiteral("nan") << QColor::fromRgbF(0, 0, 0, 0);
    QTest::newRow("name") << QStringLiteral("red") << QColor(Qt::red);
    QTest::newRow("hash") << QStringLiteral("#ff0000") << QColor(Qt::red);
    QTest::newRow("hash with alpha") << QStringLiteral("#80ff0000") << QColor(255, 0, 0, 128);
    QTest::newRow("beyond 1") << QStringLiteral("2 0 0") << QColor::fromRgbF(2, 0, 0, 1);
}

void tst_ValueCodecs::readsColors()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);

    QVERIFY(color.isValid());
    QCOMPARE(QColor_fromString(text), color);
}

void tst_ValueCodecs::readsUnusableColors_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("two parts") << QStringLiteral("1 0");
    QTest::newRow("five parts") << QStringLiteral("1 0 0 0 0");
    QTest::newRow("unknown name") << QStringLiteral("no-such-colour");
    QTest::newRow("bad hash") << QStringLiteral("#12");
}

void tst_ValueCodecs::readsUnusableColors()
{
    QFETCH(QString, text);

    QVERIFY(!QColor_fromString(text).isValid());
}

void tst_ValueCodecs::readsHostileText_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("a megabyte of digits") << QString(1 << 20, QLatin1Char('9'));
    QTest::newRow("a megabyte of spaces") << QString(1 << 20, QLatin1Char(' '));
    QTest::newRow("control characters") << QStringLiteral("\x01\x02\x1b[31m\x7f");
    QTest::newRow("nulls") << QString(16, QChar(0));
    QTest::newRow("lone surrogate") << QString(QChar(0xD800));
    QTest::newRow("very long exponent") << QStringLiteral("1e99999999999999999999");
}

void tst_ValueCodecs::readsHostileText()
{
    QFETCH(QString, text);

    QCOMPARE(QPointF_fromString(text), QPointF());
    QCOMPARE(QVector2D_fromString(text), QVector2D());
    QCOMPARE(QVector3D_fromString(text), QVector3D());
    QCOMPARE(QVector4D_fromString(text), QVector4D());
    QVERIFY(isIdentity(QMatrix3x3_fromString(text)));
    QVERIFY(!QColor_fromString(text).isValid());
    QCOMPARE(TextureChoice_fromString(text).name, text);
}

void tst_ValueCodecs::textureChoiceIsItsName()
{
    const QString text = QStringLiteral("  brick  wall ");
    const TextureChoice choice = TextureChoice_fromString(text);

    QCOMPARE(choice.name, text);
    QVERIFY(choice.image.isNull());
    QVERIFY(choice.icon.isNull());
    QCOMPARE(TextureChoice_toString(choice), text);
    QVERIFY(TextureChoice().name.isNull());
}

void tst_ValueCodecs::valueTypesAreKnownByName()
{
    const QVariant variant = QVariant::fromValue(TextureChoice_fromString(QStringLiteral("wood")));

    QCOMPARE(QByteArray(variant.typeName()),
             QByteArrayLiteral("Tessark::PropertyUI::TextureChoice"));
    QCOMPARE(variant.value<TextureChoice>().name, QStringLiteral("wood"));
    const QVariant matrix = QVariant::fromValue(matrixOf({1, 2, 3, 4, 5, 6, 7, 8, 9}));
    QVERIFY(matrix.canConvert<DoubleMatrix3x3>());
    QCOMPARE(matrix.value<DoubleMatrix3x3>()(1, 2), 6.0);
}

QTEST_MAIN(tst_ValueCodecs)
#include "tst_ValueCodecs.moc"
