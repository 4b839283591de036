#pragma once

#include <QJsonValue>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

struct ConversionError;

/// The form of a JSON value in settings: texts, numbers and truth values as they are, arrays and
/// objects as JSON text.
QVariant settingFromJson(const QJsonValue &json);

/// The value of a property from a setting, in the form above or as a person writes it into a file,
/// where all is text.
std::optional<QVariant> convertSetting(const PropertyUI::Property &property,
                                       const QVariant &setting, const QString &folder,
                                       ConversionError &error);

} // namespace Tessark::PropertyHost
