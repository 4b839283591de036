#pragma once

#include "host/ObjectField.h"

#include <memory>

class QMetaProperty;

namespace Tessark::PropertyHost {

/// A field that many rows share.
using SharedField = std::shared_ptr<const ObjectField>;

/// The variant of a row for that of its property, and the other way.
QVariant toRow(const ObjectField &field, const QVariant &value);
QVariant fromRow(const ObjectField &field, const QVariant &value);

/// How rows show a property of a type known here, with a range for numbers; null for any other.
SharedField fieldOf(const QMetaProperty &property);

/// The same as a text that cannot be edited.
ObjectField toStaticText(const ObjectField &field, const QMetaProperty &property);

} // namespace Tessark::PropertyHost
