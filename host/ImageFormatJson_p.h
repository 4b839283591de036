#pragma once

#include "host/JsonConversion_p.h"

#include <property/editors/ImageFormatEditor.h>

#include <QJsonValue>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyHost {

/// What an image format starts as: PNG, and a good quality should JPEG be chosen later.
PropertyUI::ImageFormatDesc defaultImageFormat();

/// The value of an "image_format" property (ImageFormatDesc) from an object with "format" and, if
/// wanted, "compressionRate".
std::optional<QVariant> imageFormatFromJson(const QJsonValue &json, ConversionError &error);

/// The object again, without a compression rate of 0; undefined for a format that cannot be read.
QJsonValue imageFormatToJson(const QVariant &value);

} // namespace Tessark::PropertyHost
