#include "property/VectorConversions_p.h"

#include "property/ValueCodecs.h"

#include <QColor>

#include <optional>

namespace Tessark::PropertyUI {

namespace {

bool isText(const QVariant &value)
{
    return value.userType() == QMetaType::QString;
}

QVector4D fractionsOf(const QColor &color)
{
    return {static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
            static_cast<float>(color.blueF()), static_cast<float>(color.alphaF())};
}

/// The components of what all vector sizes read alike, with 0 for those that are missing.
std::optional<QVector4D> componentsOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Float: {
        const float number = value.toFloat();
        return QVector4D(number, number, number, number);
    }
    case QMetaType::QVector2D:
        return QVector4D(value.value<QVector2D>());
    case QMetaType::QVector3D:
        return QVector4D(value.value<QVector3D>());
    case QMetaType::QVector4D:
        return value.value<QVector4D>();
    case QMetaType::QColor:
        return fractionsOf(value.value<QColor>());
    default:
        return std::nullopt;
    }
}

} // namespace

QVector2D toVector2D(const QVariant &value)
{
    if (isText(value))
        return QVector2D_fromString(value.toString());
    const auto components = componentsOf(value);
    return components ? components->toVector2D() : value.value<QVector2D>();
}

QVector3D toVector3D(const QVariant &value)
{
    if (isText(value))
        return QVector3D_fromString(value.toString());
    const auto components = componentsOf(value);
    return components ? components->toVector3D() : value.value<QVector3D>();
}

QVector4D toVector4D(const QVariant &value)
{
    if (isText(value))
        return QVector4D_fromString(value.toString());
    const auto components = componentsOf(value);
    return components ? *components : value.value<QVector4D>();
}

QVector4D toRangeVector(const QVariant &value)
{
    if (isText(value)) {
        const QString text = value.toString();
        switch (text.count(QLatin1Char(' '))) {
        case 1:
            return QVector4D(QVector2D_fromString(text));
        case 2:
            return QVector4D(QVector3D_fromString(text));
        default:
            break;
        }
    }
    return toVector4D(value);
}

} // namespace Tessark::PropertyUI
