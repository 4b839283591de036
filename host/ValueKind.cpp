#include "host/ValueKind_p.h"

#include <property/PropertyVocabulary.h>

#include <QMap>

namespace Tessark::PropertyHost {

namespace {

using namespace PropertyUI;

QMap<QString, TypeTraits> makeTraits()
{
    const auto value = [](ValueKind kind, RangeUse range) {
        return TypeTraits{kind, range, false};
    };
    const TypeTraits structure{ValueKind::None, RangeUse::None, true};
    const TypeTraits openGroup{ValueKind::Boolean, RangeUse::None, true};
    return {
        {kPropertyTypeNone, value(ValueKind::None, RangeUse::None)},
        {kPropertyTypeInteger, value(ValueKind::Integer, RangeUse::NeedsRange)},
        {kPropertyTypeBoolean, value(ValueKind::Boolean, RangeUse::None)},
        {kPropertyTypeFloat, value(ValueKind::Number, RangeUse::NeedsRange)},
        {kPropertyTypePercent, value(ValueKind::Number, RangeUse::NeedsRange)},
        {kPropertyTypeVec2, value(ValueKind::Vector2, RangeUse::NeedsRange)},
        {kPropertyTypeVec3, value(ValueKind::Vector3, RangeUse::NeedsRange)},
        {kPropertyTypeVec4, value(ValueKind::Vector4, RangeUse::NeedsRange)},
        {kPropertyTypeEnumeration, value(ValueKind::Choice, RangeUse::None)},
        {kPropertyTypeColor, value(ValueKind::Color, RangeUse::None)},
        {kPropertyTypeColorRGB, value(ValueKind::OpaqueColor, RangeUse::None)},
        {kPropertyTypeImage, value(ValueKind::Picture, RangeUse::None)},
        {kPropertyTypeString, value(ValueKind::Text, RangeUse::None)},
        {kPropertyTypeStaticText, value(ValueKind::Text, RangeUse::None)},
        {kPropertyTypeText, value(ValueKind::Text, RangeUse::None)},
        {kPropertyTypeFilename, value(ValueKind::Text, RangeUse::None)},
        {kPropertyTypePoint, value(ValueKind::Point, RangeUse::Optional)},
        {kPropertyTypePointF, value(ValueKind::PointF, RangeUse::Optional)},
        {kPropertyTypeAngle, value(ValueKind::Number, RangeUse::Optional)},
        {kPropertyTypeSize, value(ValueKind::Size, RangeUse::None)},
        {kPropertyTypeSizeF, value(ValueKind::SizeF, RangeUse::Optional)},
        {kPropertyTypeRect, value(ValueKind::Rect, RangeUse::Optional)},
        {kPropertyTypeRectF, value(ValueKind::RectF, RangeUse::Optional)},
        {kPropertyTypeSeparator, structure},
        {kPropertyTypeBeginGroup, openGroup},
        {kPropertyTypeEndGroup, structure},
        {kPropertyTypeBeginTabGroup, structure},
        {kPropertyTypeEndTabGroup, structure},
        {kPropertyTypeTab, structure},
        {kPropertyTypeAction, structure},
        {kPropertyTypeRenderSize, value(ValueKind::Size, RangeUse::None)},
        {kPropertyTypeImageFormat, value(ValueKind::ImageFormat, RangeUse::None)},
        {kPropertyTypeTransform2D, value(ValueKind::Matrix, RangeUse::None)},
        {kPropertyTypeTexture, value(ValueKind::Texture, RangeUse::None)},
    };
}

const QMap<QString, TypeTraits> &allTraits()
{
    static const QMap<QString, TypeTraits> s_traits = makeTraits();
    return s_traits;
}

} // namespace

TypeTraits typeTraits(const QString &type)
{
    return allTraits().value(type);
}

const QStringList &vocabularyTypes()
{
    static const QStringList s_types = allTraits().keys();
    return s_types;
}

bool carriesValue(const QString &type)
{
    const TypeTraits traits = typeTraits(type);
    return !traits.structural && traits.kind != ValueKind::None;
}

} // namespace Tessark::PropertyHost
