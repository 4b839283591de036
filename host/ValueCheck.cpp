#include "host/ValueCheck_p.h"

#include "host/Messages_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>
#include <property/TextureChoice.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>

#include <QColor>
#include <QGenericMatrix>

#include <limits>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool isText(const QVariant &value)
{
    return value.userType() == QMetaType::QString;
}

bool isNumeric(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

bool convertsToNumber(const QVariant &value)
{
    bool ok = false;
    value.toDouble(&ok);
    return ok && (isNumeric(value) || isText(value));
}

bool convertsToInteger(const QVariant &value)
{
    const double number = value.toDouble();
    return convertsToNumber(value) && number >= std::numeric_limits<int>::min()
           && number <= std::numeric_limits<int>::max();
}

/// Whether a text is one of the forms that the property's values have as text.
bool isReadableText(const Property &property, const QVariant &value)
{
    ConversionError ignored;
    return isText(value)
           && convertValue(property, QJsonValue(value.toString()), QString(), ignored).has_value();
}

bool isChoice(const Property &property, const QVariant &value)
{
    const QVariant values = property.hint(kPropertyHintValues);
    if (values.isValid())
        return values.toList().contains(value);
    const auto count = property.hint(kPropertyHintDisplayValues).toList().size();
    return convertsToInteger(value) && value.toInt() >= 0 && value.toInt() < count;
}

bool isPicture(const QVariant &value)
{
    const int type = value.userType();
    return type == QMetaType::QImage || type == QMetaType::QPixmap || type == QMetaType::QIcon;
}

bool hasComponents(const QVariant &value, int count)
{
    return components(value).size() == count;
}

} // namespace

bool isOfKind(const Property &property, const QVariant &value)
{
    switch (typeTraits(property.type).kind) {
    case ValueKind::None:
        return false;
    case ValueKind::Any:
        return value.isValid();
    case ValueKind::Boolean:
        return value.userType() == QMetaType::Bool || isNumeric(value);
    case ValueKind::Integer:
        return convertsToInteger(value);
    case ValueKind::Number:
        return convertsToNumber(value);
    case ValueKind::Text:
        return value.isValid() && value.canConvert<QString>();
    case ValueKind::Choice:
        return isChoice(property, value);
    case ValueKind::Vector2:
        return hasComponents(value, 2) || isReadableText(property, value);
    case ValueKind::Vector3:
        return hasComponents(value, 3) || isReadableText(property, value);
    case ValueKind::Vector4:
        return hasComponents(value, 4) || isReadableText(property, value);
    case ValueKind::Color:
    case ValueKind::OpaqueColor:
        return value.userType() == QMetaType::QColor || isReadableText(property, value);
    case ValueKind::PointF:
        return hasComponents(value, 2) || isReadableText(property, value);
    case ValueKind::Point:
    case ValueKind::Size:
    case ValueKind::SizeF:
        return hasComponents(value, 2);
    case ValueKind::Rect:
    case ValueKind::RectF:
        return hasComponents(value, 4);
    case ValueKind::Matrix:
        return value.userType() == qMetaTypeId<QGenericMatrix<3, 3, double>>()
               || isReadableText(property, value);
    case ValueKind::Picture:
        return isPicture(value);
    case ValueKind::ImageFormat:
        return value.userType() == qMetaTypeId<ImageFormatDesc>();
    case ValueKind::Texture:
        return value.userType() == qMetaTypeId<TextureChoice>() || isText(value);
    }
    return false;
}

QString kindName(ValueKind kind)
{
    switch (kind) {
    case ValueKind::None:
        return Messages::tr("no value");
    case ValueKind::Any:
        return Messages::tr("a value");
    case ValueKind::Boolean:
        return Messages::tr("a truth value");
    case ValueKind::Integer:
        return Messages::tr("a whole number");
    case ValueKind::Number:
        return Messages::tr("a number");
    case ValueKind::Text:
        return Messages::tr("a text");
    case ValueKind::Choice:
        return Messages::tr("one of the choices");
    case ValueKind::Vector2:
        return Messages::tr("a vector of 2");
    case ValueKind::Vector3:
        return Messages::tr("a vector of 3");
    case ValueKind::Vector4:
        return Messages::tr("a vector of 4");
    case ValueKind::Color:
    case ValueKind::OpaqueColor:
        return Messages::tr("a colour");
    case ValueKind::Point:
    case ValueKind::PointF:
        return Messages::tr("a point");
    case ValueKind::Size:
    case ValueKind::SizeF:
        return Messages::tr("a size");
    case ValueKind::Rect:
    case ValueKind::RectF:
        return Messages::tr("a rectangle");
    case ValueKind::Matrix:
        return Messages::tr("a matrix");
    case ValueKind::Picture:
        return Messages::tr("a picture");
    case ValueKind::ImageFormat:
        return Messages::tr("an image format");
    case ValueKind::Texture:
        return Messages::tr("a texture");
    }
    return {};
}

QStringList componentNames(ValueKind kind)
{
    const QString x = QStringLiteral("x");
    const QString y = QStringLiteral("y");
    const QString width = QStringLiteral("width");
    const QString height = QStringLiteral("height");
    QStringList colors{QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue")};
    switch (kind) {
    case ValueKind::Vector2:
    case ValueKind::Point:
    case ValueKind::PointF:
        return {x, y};
    case ValueKind::Vector3:
        return {x, y, QStringLiteral("z")};
    case ValueKind::Vector4:
        return {x, y, QStringLiteral("z"), QStringLiteral("w")};
    case ValueKind::Color:
        return colors + QStringList{QStringLiteral("alpha")};
    case ValueKind::OpaqueColor:
        return colors;
    case ValueKind::Size:
    case ValueKind::SizeF:
        return {width, height};
    case ValueKind::Rect:
    case ValueKind::RectF:
        return {x, y, width, height};
    case ValueKind::ImageFormat:
        return {QStringLiteral("format"), QStringLiteral("compressionRate")};
    default:
        return {};
    }
}

} // namespace Tessark::PropertyHost
