#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

enum class ValueKind;

/// True when the property's editor shows the value for what it is: it has the kind of the
/// property's type, or converts to it without becoming another value.
bool isOfKind(const PropertyUI::Property &property, const QVariant &value);

/// The kind of a property's values for messages, as in "a whole number".
QString kindName(ValueKind kind);

/// The names of the parts of a composite value, in the order of its JSON form; empty for others.
QStringList componentNames(ValueKind kind);

} // namespace Tessark::PropertyHost
