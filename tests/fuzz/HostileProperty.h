#pragma once

#include <property/Property.h>

#include <QVariant>

#include <memory>

namespace Fuzz {

class FuzzInput;

/// A variant of any of the types that a host might put into one, invalid and empty ones among them.
QVariant anyVariant(FuzzInput &input);

/// A property of any type, the host's own and unknown ones among them, with any label, range, default
/// and hints: right ones, and wrong ones of every kind.
std::unique_ptr<Tessark::PropertyUI::Property> anyProperty(FuzzInput input);

/// Sets a hint or the range of the property to something else, as a host may while a panel lives.
void changeProperty(Tessark::PropertyUI::Property &property, FuzzInput &input);

} // namespace Fuzz
