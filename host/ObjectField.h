#pragma once

#include "host/PropertyRow.h"
#include "host/StructField.h"

#include <QString>
#include <QVariant>

#include <functional>

namespace Tessark::PropertyHost {

/// How a row shows and edits a meta-property: the type of the row and the ways from the property's
/// variant to that of the row's editor and back. A way that is empty hands the variant on as it is.
struct ObjectField
{
    QString type;
    std::function<QVariant(const QVariant &)> toRow;
    std::function<QVariant(const QVariant &)> fromRow;

    /// Describes a row that was just made, with a range or hints for instance; may be empty. What
    /// the class says of the property follows.
    std::function<void(PropertyRow row)> prepare;
};

/// The field of properties of a type that has a StructField.
template <typename Value>
ObjectField makeObjectField()
{
    using Field = StructField<Value>;
    const auto toRow = [](const QVariant &value) { return Field::toVariant(value.value<Value>()); };
    const auto fromRow = [](const QVariant &value) {
        return QVariant::fromValue(Field::fromVariant(value));
    };
    return {Field::type(), toRow, fromRow, {}};
}

} // namespace Tessark::PropertyHost
