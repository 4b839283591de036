#include "fuzz/HostileProperty.h"

#include "fuzz/FuzzInput.h"
#include "fuzz/HostEditors.h"

#include <property/PropertyUI.h>
#include <property/editors/ImageFormatEditor.h>

#include <QBitmap>
#include <QDate>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QSizeF>
#include <QTabWidget>
#include <QUrl>

#include <array>

namespace Fuzz {

using namespace Tessark::PropertyUI;

namespace {

constexpr int kDeepestVariant = 2;
constexpr int kMostElements = 5;
constexpr int kMostHints = 6;

QVariant variantAt(FuzzInput &input, int depth);

QVariant number(FuzzInput &input)
{
    switch (input.below(8)) {
    case 0:
        return input.flip();
    case 1:
        return static_cast<uint>(input.integer());
    case 2:
        return input.integer() * (qlonglong(1) << input.below(32));
    case 3:
        return static_cast<float>(input.byte()) / 7.0F;
    case 4:
        return QChar(ushort(input.byte()));
    case 5:
        return QByteArray::number(input.integer());
    case 6:
        return input.integer();
    default:
        return input.number();
    }
}

QVariant text(FuzzInput &input)
{
    switch (input.below(6)) {
    case 0:
        return QString();
    case 1:
        return QUrl(input.text());
    case 2:
        return input.text().toUtf8();
    case 3:
        return QDate(2000, 1, 1).addDays(input.byte());
    default:
        return input.text();
    }
}

QVariant geometry(FuzzInput &input)
{
    switch (input.below(5)) {
    case 0:
        return QPoint{input.integer(), input.integer()};
    case 1:
        return QPointF{input.number(), input.number()};
    case 2:
        return QSizeF{input.number(), input.number()};
    case 3:
        return QRectF{input.number(), input.number(), input.number(), input.number()};
    default:
        return QSize{input.integer(), input.integer()};
    }
}

QVariant vector(FuzzInput &input)
{
    // Numbers beyond single precision have no defined conversion to it.
    const auto component = [&input] { return static_cast<float>(input.integer()) / 16.0F; };
    switch (input.below(4)) {
    case 0:
        return QVector2D{component(), component()};
    case 1:
        return QVector3D{component(), component(), component()};
    case 2:
        return QVector4D{component(), component(), component(), component()};
    default: {
        DoubleMatrix3x3 matrix;
        for (int i = 0; i < 9; ++i)
            matrix(i / 3, i % 3) = input.number();
        return QVariant::fromValue(matrix);
    }
    }
}

QColor color(FuzzInput &input)
{
    const int red = input.byte();
    const int green = input.byte();
    const int blue = input.byte();
    switch (input.below(4)) {
    case 0:
        return QColor();
    case 1:
        return QColor::fromHsv(red, green, blue, input.byte());
    case 2:
        return QColor::fromCmyk(red, green, blue, input.byte());
    default:
        return QColor(red, green, blue, input.byte());
    }
}

QPixmap pixmap(FuzzInput &input)
{
    QPixmap result{input.below(40), input.below(40)}; // null where one of them is 0
    result.fill(color(input));
    return result;
}

QVariant picture(FuzzInput &input)
{
    const QPixmap shown = pixmap(input);
    switch (input.below(6)) {
    case 0:
        return shown.toImage();
    case 1:
        return QIcon(shown);
    case 2:
        return QVariant::fromValue(TextureChoice{input.text(), shown.toImage(), QIcon(shown)});
    case 3:
        return QVariant::fromValue(ImageFormatDesc{input.text(), input.integer()});
    case 4:
        return QFont{input.text(), input.below(60) - 1};
    default:
        return shown;
    }
}

QVariant collection(FuzzInput &input, int depth)
{
    QVariantList list;
    QStringList texts;
    QVariantMap map;
    const int count = input.below(kMostElements + 1);
    const int kind = input.below(4);
    for (int i = 0; i < count; ++i) {
        if (kind == 0)
            texts.append(input.text());
        else
            list.append(depth < kDeepestVariant ? variantAt(input, depth + 1) : number(input));
    }
    for (const QVariant &element : list)
        map.insert(QString::number(map.size()), element);
    if (kind == 0)
        return texts;
    return kind == 1 ? QVariant(map) : QVariant(list);
}

QVariant variantAt(FuzzInput &input, int depth)
{
    switch (input.below(12)) {
    case 0:
        return {};
    case 1:
        return geometry(input);
    case 2:
        return vector(input);
    case 3:
        return color(input);
    case 4:
        return picture(input);
    case 5:
    case 6:
        return collection(input, depth);
    case 7:
    case 8:
        return text(input);
    default:
        return number(input);
    }
}

/// Every hint that an editor or the panel reads, with values that it understands.
const QVariantMap &usefulHints()
{
    static const QVariantMap s_hints{
        {kPropertyHintEnabled, QVariantList{false, true}},
        {kPropertyHintFullWidth, QVariantList{true}},
        {kPropertyHintFont, QVariantList{QFont(QStringLiteral("DejaVu Sans"), 20)}},
        {kPropertyHintAlignment, QVariantList{int(Qt::AlignRight), int(Qt::AlignCenter), -1}},
        {kPropertyHintSize, QVariantList{QSize(0, 0), QSize(300, 20), QSize(40, 200)}},
        {kPropertyHintWidget, QVariantList{kWidgetTypeRadioButtons}},
        {kPropertyHintStyleSheet, QVariantList{QStringLiteral("color: red; border: 9px solid")}},
        {kPropertyHintTabPosition, QVariantList{int(QTabWidget::West), int(QTabWidget::South)}},
        {kPropertyHintValues, QVariantList{QVariantList{1, QStringLiteral("b"), 2.5}}},
        {kPropertyHintDisplayValues,
         QVariantList{QStringList{QStringLiteral("One"), QStringLiteral("Two")}}},
        {kPropertyHintShowMultipleCheck, QVariantList{true}},
        {kPropertyHintShowSliders, QVariantList{true}},
        {kPropertyHintLogarithmicSlider, QVariantList{true}},
        {kPropertyHintDisplayScale, QVariantList{100.0, -2.5, 0.0}},
        {kPropertyHintAspectRatio, QVariantList{1.5}},
        {kPropertyHintFullSize, QVariantList{QSize(1920, 1080), QSize(3, 0)}},
        {kPropertyHintBoolHideLabel, QVariantList{true}},
        {kPropertyHintXfrmNoRotation, QVariantList{true}},
        {kPropertyHintXfrmNoPosition, QVariantList{true}},
        {kPropertyHintXfrmNoScale, QVariantList{true}},
        {kPropertyHintFloatDecimals, QVariantList{0, 1, 6, 40, -3}},
        {kPropertyHintSuffix, QVariantList{QStringLiteral(" mm"), QStringLiteral("1")}},
        {kPropertyHintXfrmUniformScale, QVariantList{true}},
        {kPropertyHintXfrmCollapsibleScale, QVariantList{true}},
        {kPropertyHintUseNativeDialogs, QVariantList{true}},
    };
    return s_hints;
}

/// A key of the vocabulary, or one that nobody reads.
void addHint(Property &property, FuzzInput &input)
{
    static const QStringList s_keys =
        usefulHints().keys() + QStringList{kPropertyHintForeground, QString()};
    const QString key = input.pickFrom(s_keys);
    const QVariantList useful = usefulHints().value(key).toList();
    const bool isWrong = useful.isEmpty() || input.oneIn(2);
    property.setHint(key, isWrong ? anyVariant(input) : input.pickFrom(useful));
}

/// The bounds come as a list, since compilers evaluate the elements of one in order.
void setBounds(Property &property, const std::array<QVariant, 3> &bounds)
{
    property.setRange(bounds[0], bounds[1], bounds[2]);
}

void setRange(Property &property, FuzzInput &input)
{
    switch (input.below(6)) {
    case 0:
        property.setRange(0, 100);
        break;
    case 1:
        property.setRange(-1.5, 1.5, 10.0);
        break;
    case 2: {
        const double size = input.number();
        property.setRange(-size, size); // reversed where size is negative
        break;
    }
    case 3:
        setBounds(property, {input.number(), input.number(), input.number()});
        break;
    case 4:
        setBounds(property, {vector(input), vector(input), vector(input)});
        break;
    default:
        setBounds(property, {anyVariant(input), anyVariant(input), anyVariant(input)});
    }
}

} // namespace

QVariant anyVariant(FuzzInput &input)
{
    return variantAt(input, 0);
}

std::unique_ptr<Property> anyProperty(FuzzInput input)
{
    const QString type = input.pickFrom(allTypes());
    const QString name = input.text();
    auto property = std::make_unique<Property>(name, input.text(), type);
    if (input.oneIn(2))
        setRange(*property, input);
    if (input.oneIn(2))
        property->setDefaultValue(anyVariant(input));
    const int hints = input.below(kMostHints + 1);
    for (int i = 0; i < hints; ++i)
        addHint(*property, input);
    return property;
}

void changeProperty(Property &property, FuzzInput &input)
{
    switch (input.below(5)) {
    case 0:
        setRange(property, input);
        break;
    case 1:
        property.setDefaultValue(anyVariant(input));
        break;
    case 2:
        property.hints.clear();
        break;
    case 3:
        property.setHint(kPropertyHintEnabled, input.flip());
        break;
    default:
        addHint(property, input);
    }
}

} // namespace Fuzz
