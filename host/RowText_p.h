#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// The value of the property as a text for people and other programs: texts as they are, numbers with a
/// full stop, composite values as the numbers of their JSON form separated by single spaces, which the
/// readers of "property/ValueCodecs.h" take; what has another JSON form as that. A null text for what has
/// none. No digit is lost.
QString textOfValue(const PropertyUI::Property &property, const QVariant &value);

/// The value from such a text, from its JSON form, or from what the user sees of it: a number in the
/// locale, the text of a choice, numbers separated by commas. Nothing for a text that is none of them.
std::optional<QVariant> valueOfText(const PropertyUI::Property &property, const QString &text);

} // namespace Tessark::PropertyHost
