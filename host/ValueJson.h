#pragma once

#include "host/PropertyHostExport.h"

#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/**
 * The value of a property from its JSON form, or nothing and the reason in error.
 *
 * By the type of the property, JSON form and content of the variant are:
 * - "int": a whole number (int); "float", "percent", "angle": a number (double); "bool",
 *   "begin_group": true or false (bool); "string", "text", "static_text", "filename": text
 *   (QString);
 * - "int/enum": the index of a choice (int) or, with a "values" hint, one of its entries as it
 *   stands there;
 * - "vec2", "vec3", "vec4": an array of numbers, one number for all components, or the text form of
 *   QVector3D_fromString() and its siblings (QVector2D, QVector3D, QVector4D);
 * - "vec4/color", "vec3/color": an array of 3 fractions, or 4 with alpha in the former, or a text
 *   that QColor_fromString() knows, such as a colour name or "#rrggbb" (QColor);
 * - "ivec2/size", "render_size": [width, height] (QSize); "ivec2/point": [x, y] (QPoint);
 *   "ivec4/rect": [x, y, width, height] (QRect), all whole numbers; "vec2/size" (QSizeF),
 *   "vec2/point" (QPointF), "vec4/rect" (QRectF): the same with any numbers;
 * - "transform2D": nine numbers row by row, as array or text (QGenericMatrix<3, 3, double>);
 * - "image": the path of a picture (QImage, turned upright); an empty text or null for none (a null
 *   QImage);
 * - "image_format": an object with "format", one of "png", "jpeg", "tiff" and "bmp", and, if wanted,
 *   "compressionRate" from 0 to 100, 0 when absent (PropertyUI::ImageFormatDesc);
 * - "texture": the name of an entry of the hint kHostHintTextures or the path of a picture, which
 *   becomes the name (PropertyUI::TextureChoice); an empty text or null for none (an empty name);
 * - a type of the host: any JSON value, as QJsonValue::toVariant() gives it.
 *
 * A relative path starts at folder, which is the current one if empty; absolute paths and resources
 * (":/...") stand for themselves. A picture of more than 32 megapixels is not read. Types without
 * value have no JSON form.
 */
TESSARK_PROPERTYHOST_EXPORT std::optional<QVariant>
valueFromJson(const PropertyUI::Property &property, const QJsonValue &json, QString &error,
              const QString &folder = QString());

/// The JSON form of a value of the property, which valueFromJson() turns into the same value again.
/// Composite values become arrays, colours arrays of fractions, pictures the path that
/// valueFromJson() read them from. A value that has no JSON form, an invalid variant, a number that
/// is not finite or a picture of another origin for example, gives an undefined QJsonValue.
TESSARK_PROPERTYHOST_EXPORT QJsonValue valueToJson(const PropertyUI::Property &property,
                                                   const QVariant &value);

/// True when left and right are the same value of the property. Where a QVariant cannot tell, as of
/// matrices with Qt 5 and of textures, the JSON forms are compared.
TESSARK_PROPERTYHOST_EXPORT bool isSameValue(const PropertyUI::Property &property,
                                             const QVariant &left, const QVariant &right);

} // namespace Tessark::PropertyHost
