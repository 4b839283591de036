#pragma once

#include "host/JsonConversion_p.h"

#include <property/TextureChoice.h>

#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// A texture from an entry of the hint "textures": a path, or an object with "file" and, unless it
/// is the path, "name". Paths are as in readPicture().
std::optional<PropertyUI::TextureChoice>
textureFromHintEntry(const QJsonValue &json, const QString &folder, ConversionError &error);

/// The hint "textures" (a QVariantList of TextureChoice) as an array of such entries; undefined when
/// the picture of one was not read from a file.
QJsonValue texturesToJson(const QVariant &textures);

/// The value of a "texture" property (TextureChoice) from the name of a texture in its hint or a
/// path; an empty text and null give a choice without name.
std::optional<QVariant> textureFromJson(const PropertyUI::Property &property,
                                        const QJsonValue &json, const QString &folder,
                                        ConversionError &error);

/// The name of the texture, or an undefined value when value is none.
QJsonValue textureToJson(const QVariant &value);

} // namespace Tessark::PropertyHost
