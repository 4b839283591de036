#pragma once

#include "host/JsonConversion_p.h"

#include <QJsonValue>
#include <QVariant>
#include <QVector>

#include <optional>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// valueFromJson() with the place of the error.
std::optional<QVariant> convertValue(const PropertyUI::Property &property, const QJsonValue &json,
                                     const QString &folder, ConversionError &error);

/// The fractions of a colour, with as few digits as give the same colour again.
QJsonValue colorToJson(const QColor &value, Alpha alpha);

/// The value that a property without default starts with: its type's own, brought into its range.
QVariant initialValue(const PropertyUI::Property &property);

/// The numbers that a value or bound consists of, in order, or none when it is not numeric.
QVector<double> components(const QVariant &value);

/// The value or bound of the property that consists of these numbers; invalid when there is none.
QVariant valueOfNumbers(const PropertyUI::Property &property, const QVector<double> &numbers);

/// True when both have the same number of components and one of value's is above its counterpart.
bool isAbove(const QVariant &value, const QVariant &bound);

/// The components as text for messages, in parentheses if there are several.
QString componentsText(const QVariant &value);

/// True when the value lies below the minimum or above the hard maximum of the property.
bool isOutsideRange(const PropertyUI::Property &property, const QVariant &value);

} // namespace Tessark::PropertyHost
