#include "SoakRows.h"

#include "support/TransformNumbers.h"

#include <property/PropertyUI.h>
#include <property/editors/ImageFormatEditor.h>
#include <property/editors/TexturePropertyEditor.h>

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <algorithm>

using namespace Tessark::PropertyUI;

namespace Soak {

namespace {

QVariant asGiven(const QVariant &given, const QVariant &)
{
    return given;
}

QVariant asBefore(const QVariant &, const QVariant &before)
{
    return before;
}

/// A field of that many decimals holds the nearest decimal number within its range.
double held(double number, int decimals, double minimum, double maximum)
{
    const double rounded = QString::number(number, 'f', decimals).toDouble();
    return std::clamp(rounded, minimum, maximum);
}

ShownRule integerRule(const Property *property)
{
    return [property](const QVariant &given, const QVariant &) {
        return std::clamp(given.toInt(), property->minValue.toInt(),
                          property->hardMaxValue.toInt());
    };
}

/// The range is in displayed units.
ShownRule floatRule(double scale, int decimals, double minimum, double maximum)
{
    return [=](const QVariant &given, const QVariant &) {
        return held(given.toDouble() * scale, decimals, minimum, maximum) / scale;
    };
}

QVariant shownPercent(const QVariant &given, const QVariant &)
{
    return held(double(given.toFloat() * 100.0F), 2, 0.0, 200.0) / 100.0;
}

QVariant shownColor(const QVariant &given, const QVariant &)
{
    if (given.userType() != QMetaType::QVector4D)
        return given.value<QColor>();
    const auto vector = given.value<QVector4D>();
    return QColor::fromRgbF(vector.x(), vector.y(), vector.z(), vector.w());
}

QVector4D toVector(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QVector2D:
        return QVector4D(value.value<QVector2D>());
    case QMetaType::QVector3D:
        return QVector4D(value.value<QVector3D>());
    default:
        return value.value<QVector4D>();
    }
}

float shownComponent(float given)
{
    return float(held(double(given), 4, -2.0, 4.0));
}

QVariant shownVec2(const QVariant &given, const QVariant &)
{
    const auto vector = given.value<QVector2D>();
    return QVector2D(shownComponent(vector.x()), shownComponent(vector.y()));
}

QVector3D shownThree(const QVariant &given)
{
    const QVector4D vector = toVector(given);
    return {shownComponent(vector.x()), shownComponent(vector.y()), shownComponent(vector.z())};
}

QVariant shownVec3(const QVariant &given, const QVariant &)
{
    return shownThree(given);
}

/// The fourth component that a host gives is not read.
QVariant shownVec4(const QVariant &given, const QVariant &)
{
    return QVector4D(shownThree(given), 0);
}

QVariant shownSize(const QVariant &given, const QVariant &)
{
    return given.toSize().expandedTo({1, 1}).boundedTo({4096, 4096});
}

ShownRule indexRule(int count)
{
    return [count](const QVariant &given, const QVariant &) {
        const int index = given.toInt();
        return index >= 0 && index < count ? index : -1; // a combo box without current item
    };
}

ShownRule valueRule(const QVariantList &values)
{
    return [values](const QVariant &given, const QVariant &before) {
        return values.contains(given) ? given : before;
    };
}

ImageFormatDesc formatOf(const QString &format, int rate)
{
    ImageFormatDesc description;
    description.format = format;
    description.compressionRate = rate;
    return description;
}

QVariant shownFormat(const QVariant &given, const QVariant &before)
{
    const QStringList known = {QStringLiteral("png"), QStringLiteral("jpeg"),
                               QStringLiteral("tiff"), QStringLiteral("bmp")};
    auto shown = given.value<ImageFormatDesc>();
    if (!known.contains(shown.format))
        shown.format = before.value<ImageFormatDesc>().format;
    shown.compressionRate = std::clamp(shown.compressionRate, 1, 100);
    return QVariant::fromValue(shown);
}

ShownRule transformRule(bool uniformScale, bool rotates)
{
    return [=](const QVariant &given, const QVariant &) {
        TestSupport::Numbers n = TestSupport::numbersOf(given.value<DoubleMatrix3x3>());
        n[0] = held(n[0], 4, -1, 1);
        n[1] = held(n[1], 4, -1, 1);
        n[2] = rotates ? held(n[2], 2, -180, 180) : 0;
        n[3] = held(n[3], 4, 0.0001, 5);
        n[4] = uniformScale ? n[3] : held(n[4], 4, 0.0001, 5);
        return QVariant::fromValue(TestSupport::matrixOf(n));
    };
}

QVariant transform(const TestSupport::Numbers &numbers)
{
    return QVariant::fromValue(TestSupport::matrixOf(numbers));
}

TextureChoice texture(const QString &name)
{
    TextureChoice choice;
    choice.name = name;
    return choice;
}

/// The values of names that the list lacks change nothing.
QVariant shownTexture(const QVariant &given, const QVariant &before)
{
    const QString name = given.value<TextureChoice>().name;
    return textureNames().contains(name) ? given : before;
}

QVariant picture(Qt::GlobalColor color)
{
    QPixmap pixmap(24, 16);
    pixmap.fill(color);
    return pixmap;
}

QVariantList labels(int count)
{
    QVariantList list;
    for (int i = 0; i < count; ++i)
        list.append(QStringLiteral("Choice %1").arg(i));
    return list;
}

/// Each element exactly; 0 and -0 are the same.
bool areSame(const DoubleMatrix3x3 &left, const DoubleMatrix3x3 &right)
{
    return std::equal(left.constData(), left.constData() + 9, right.constData());
}

QString inWords(std::initializer_list<double> numbers)
{
    QStringList words;
    for (const double number : numbers)
        words.append(QString::number(number, 'g', 17));
    return words.join(QLatin1Char(' '));
}

template <typename Value>
QVector<QVariant> variants(std::initializer_list<Value> values)
{
    QVector<QVariant> list;
    for (const Value &value : values)
        list.append(QVariant::fromValue(value));
    return list;
}

} // namespace

QStringList textureNames()
{
    return {QStringLiteral("Brick"), QStringLiteral("Sand"), QStringLiteral("Tiles"),
            QStringLiteral("Water"), QStringLiteral("Wood")};
}

Rows::Rows()
{
    addMark(kPropertyTypeBeginTabGroup, 0);
    addMark(kPropertyTypeTab);
    addNumbers();
    addMark(kPropertyTypeTab);
    addVectors();
    addMark(kPropertyTypeTab);
    addSizes();
    addPictures();
    addMark(kPropertyTypeTab);
    addTransforms();
    addMark(kPropertyTypeEndTabGroup);
    addGroups();
}

const Row &Rows::of(const Property *property) const
{
    return m_rows.at(m_indexes.value(property));
}

Row &Rows::add(const QString &type, const QVariant &initial, ShownRule shown,
               const QVector<QVariant> &others)
{
    const int index = int(m_rows.size());
    Property &property = m_properties.add(QStringLiteral("%1 %2").arg(type).arg(index), type);
    property.setDefaultValue(initial);
    m_indexes.insert(&property, index);
    m_rows.append({&property, initial, others, std::move(shown)});
    return m_rows.last();
}

/// A row whose state is the user's, or that has none.
Row &Rows::addMark(const QString &type, const QVariant &initial)
{
    Row &row = add(type, initial, asBefore);
    row.property->setDefaultValue(QVariant());
    return row;
}

void Rows::addNumbers()
{
    Row &whole = add(kPropertyTypeInteger, 5, {}, variants({0, 77, -4, 1000, 200}));
    whole.property->setRange(0, 100, 150);
    whole.shown = integerRule(whole.property);

    add(kPropertyTypeFloat, 0.5, floatRule(1, 4, -1, 8), variants({0.12345678, -3.0, 7.5, 100.0}))
        .property->setRange(-1, 4, 8);
    Row &scaled = add(kPropertyTypeFloat, 0.02, floatRule(1000, 1, 0, 200),
                      variants({0.0333333, 0.0999, 0.15, 3.0}));
    scaled.property->setRange(0, 0.1, 0.2);
    scaled.property->setHint(kPropertyHintDisplayScale, 1000);
    scaled.property->setHint(kPropertyHintFloatDecimals, 1);
    scaled.property->setHint(kPropertyHintSuffix, QStringLiteral(" ms"));
    Row &logarithmic = add(kPropertyTypeFloat, 24.0, floatRule(1, 3, 0.1, 1000),
                           variants({0.1, 3.14159265, 999.9999, 1e6}));
    logarithmic.property->setRange(0.1, 1000);
    logarithmic.property->setHint(kPropertyHintLogarithmicSlider, true);
    logarithmic.property->setHint(kPropertyHintFloatDecimals, 3);

    add(kPropertyTypePercent, 0.25, shownPercent, variants({0.0, 0.333333, 1.75, 9.0}))
        .property->setRange(0, 1, 2);
}

void Rows::addTexts()
{
    const auto texts = variants({QString(), QStringLiteral("one"), QStringLiteral("two words")});
    add(kPropertyTypeString, QStringLiteral("text"), asGiven, texts);
    add(kPropertyTypeText, QStringLiteral("more\ntext"), asGiven, texts)
        .property->setHint(kPropertyHintSize, QSize(300, 80));
    add(kPropertyTypeStaticText, QStringLiteral("fixed"), asGiven, texts);
    add(kPropertyTypeFilename, QStringLiteral("/nowhere/a"), asGiven,
        variants({QString(), QStringLiteral("/nowhere/b"), QStringLiteral("relative")}))
        .property->setHint(kPropertyHintUseNativeDialogs, false);
}

void Rows::addChoices()
{
    add(kPropertyTypeBoolean, true, asGiven, variants({true, false}));
    add(kPropertyTypeAction, {}, asBefore).property->setDefaultValue(QVariant());

    add(kPropertyTypeEnumeration, 1, indexRule(4), variants({0, 3, 4, -1}))
        .property->setHint(kPropertyHintDisplayValues, labels(4));
    const QVariantList values = {10, QStringLiteral("twenty"), 30.5};
    Row &radio = add(kPropertyTypeEnumeration, 10, valueRule(values),
                     variants<QVariant>({10, QStringLiteral("twenty"), 30.5, 11}));
    radio.property->setHint(kPropertyHintDisplayValues, labels(3));
    radio.property->setHint(kPropertyHintValues, values);
    radio.property->setHint(kPropertyHintWidget, kWidgetTypeRadioButtons);
    add(kPropertyTypeSeparator, {}, asBefore);
}

void Rows::addVectors()
{
    add(kPropertyTypeVec2, QVector2D(0.5F, 1), shownVec2,
        variants({QVector2D(1, 1), QVector2D(0.33333F, -9)}));
    Row &three = add(kPropertyTypeVec3, QVector3D(1, 1, 1), shownVec3,
                     variants({QVector3D(2, 2, 2), QVector3D(0.1F, 0.2F, 9)}));
    three.property->setHint(kPropertyHintShowSliders, true);
    three.property->setHint(kPropertyHintShowMultipleCheck, true);
    add(kPropertyTypeVec4, QVector4D(1, 2, 3, 0), shownVec4,
        variants({QVector4D(1, 1, 1, 1), QVector4D(0.1F, 0.2F, -9, 4)}))
        .property->setHint(kPropertyHintShowMultipleCheck, true);
    for (Row &row : m_rows) {
        if (row.property->type.startsWith(QLatin1String("vec")))
            row.property->setRange(-2.0F, 2.0F, 4.0F); // a whole number is no range of a vector
    }
    add(kPropertyTypeColor, QColor(40, 80, 120), shownColor,
        variants<QVariant>(
            {QColor(Qt::black), QColor(255, 1, 2, 3), QVector4D(1, 0.5F, 0.25F, 1)}));
}

void Rows::addSizes()
{
    const auto sizes = variants({QSize(320, 200), QSize(5000, 0), QSize(1, 4096), QSize()});
    add(kPropertyTypeSize, QSize(96, 96), shownSize, sizes);
    add(kPropertyTypeSize, QSize(160, 90), shownSize, sizes)
        .property->setHint(kPropertyHintAspectRatio, QSize(16, 9));
    Row &render = add(kPropertyTypeRenderSize, QSize(1920, 1080), shownSize, sizes);
    render.property->setHint(kPropertyHintFullSize, QSize(1920, 1080));
    render.property->setHint(kPropertyHintAspectRatio, QSize(16, 9));
}

void Rows::addPictures()
{
    add(kPropertyTypeImage, picture(Qt::red), asGiven, {picture(Qt::blue), picture(Qt::green)});
    add(kPropertyTypeImageFormat, QVariant::fromValue(formatOf(QStringLiteral("jpeg"), 85)),
        shownFormat,
        variants({formatOf(QStringLiteral("png"), 0), formatOf(QStringLiteral("gif"), 101)}));
    // Without default: reverting would show its row but keep the value that the user picked.
    add(kPropertyTypeTexture, QVariant::fromValue(texture(QStringLiteral("Sand"))), shownTexture,
        variants({texture(QStringLiteral("Wood")), texture(QStringLiteral("Nothing"))}))
        .property->setDefaultValue(QVariant());
}

void Rows::addTransforms()
{
    add(kPropertyTypeTransform2D, transform({0.1, 0.2, 30, 2, 4}), transformRule(false, true),
        {transform({0, 0, 0, 1, 1}), transform({-1, 1, -180, 0.0001, 5})});
    add(kPropertyTypeTransform2D, transform({0, 0, 0, 1, 1}), transformRule(false, true),
        {transform({0.5, 0, 90, 3, 3}), transform({0.123456, 0, 12.345678, 1.00001, 1})})
        .property->setHint(kPropertyHintXfrmCollapsibleScale, true);
    Row &uniform = add(kPropertyTypeTransform2D, transform({0, 0, 0, 2, 2}),
                       transformRule(true, false), {transform({0.25, -0.25, 0, 0.5, 0.5})});
    uniform.property->setHint(kPropertyHintXfrmUniformScale, true);
    uniform.property->setHint(kPropertyHintXfrmNoRotation, true);
}

void Rows::addGroups()
{
    addMark(kPropertyTypeBeginGroup, true);
    addTexts();
    addMark(kPropertyTypeBeginGroup, true);
    addChoices();
    addMark(kPropertyTypeEndGroup);
    add(kPropertyTypeInteger, 50, {}, variants({1, 2, 3})).property->setRange(0, 50);
    m_rows.last().shown = integerRule(m_rows.last().property);
    addMark(kPropertyTypeEndGroup);
}

bool isSame(const QVariant &left, const QVariant &right)
{
    if (left.userType() != right.userType())
        return false;
    switch (left.userType()) {
    case QMetaType::UnknownType:
        return true;
    case QMetaType::Double:
        return left.toDouble() == right.toDouble(); // exactly, which QVariant does not do
    case QMetaType::QPixmap:
        return left.value<QPixmap>().cacheKey() == right.value<QPixmap>().cacheKey();
    default:
        break;
    }
    if (left.userType() == qMetaTypeId<DoubleMatrix3x3>())
        return areSame(left.value<DoubleMatrix3x3>(), right.value<DoubleMatrix3x3>());
    if (left.userType() == qMetaTypeId<ImageFormatDesc>()
        || left.userType() == qMetaTypeId<TextureChoice>())
        return inWords(left) == inWords(right);
    return left == right;
}

QString inWords(const QVariant &value)
{
    const int type = value.userType();
    if (type == QMetaType::QVector2D || type == QMetaType::QVector3D
        || type == QMetaType::QVector4D) {
        const auto v = toVector(value);
        return inWords({v.x(), v.y(), v.z(), v.w()});
    }
    if (type == QMetaType::Double)
        return inWords({value.toDouble()});
    if (type == QMetaType::QSize)
        return inWords({double(value.toSize().width()), double(value.toSize().height())});
    if (type == qMetaTypeId<TextureChoice>())
        return value.value<TextureChoice>().name;
    if (type == qMetaTypeId<ImageFormatDesc>()) {
        const auto format = value.value<ImageFormatDesc>();
        return QStringLiteral("%1 %2").arg(format.format).arg(format.compressionRate);
    }
    if (type == qMetaTypeId<DoubleMatrix3x3>()) {
        const TestSupport::Numbers n = TestSupport::numbersOf(value.value<DoubleMatrix3x3>());
        return inWords({n[0], n[1], n[2], n[3], n[4]});
    }
    return value.isValid() ? QStringLiteral("\"%1\"").arg(value.toString())
                           : QStringLiteral("nothing");
}

} // namespace Soak
