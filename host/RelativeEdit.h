#pragma once

#include "host/PropertyHostExport.h"

#include <QString>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

enum class RelativeOperation {
    Add,
    Subtract,
    Multiply,
    Divide,
};

/// An edit that starts from the value that is there, as "+=2" does.
struct TESSARK_PROPERTYHOST_EXPORT RelativeEdit
{
    RelativeOperation operation = RelativeOperation::Add;

    /// A number, or for vectors, points and sizes as many numbers as they have: a value of the
    /// property's type. In stored units, as values are.
    QVariant operand;
};

/// An edit from "+=", "-=", "*=" or "/=" and a number, or one number for each component separated by
/// spaces or commas, with a full stop as decimal point; nothing for any other text, a number that is
/// not finite or a wrong count. What is added or subtracted is in the units that the row shows:
/// hundredths for a "percent", and a "display_scale" counts. The row's suffix, or "%" for a
/// "percent", may follow.
TESSARK_PROPERTYHOST_EXPORT std::optional<RelativeEdit>
parseRelativeEdit(const QString &text, const PropertyUI::Property &property);

/**
 * What the edit makes of a value of the property, brought into its range up to the hard maximum; an
 * absent bound bounds nothing. Whole numbers are rounded to the nearest, sides of sizes are at least
 * 1.
 *
 * Nothing, and the reason in error: for other types than "int", "float", "percent", "angle", vectors,
 * points and sizes, a value or an operand that does not fit the type or is not finite, a division by
 * zero, and a result that is no number.
 */
TESSARK_PROPERTYHOST_EXPORT std::optional<QVariant>
applyRelativeEdit(const PropertyUI::Property &property, const QVariant &value,
                  const RelativeEdit &edit, QString &error);

} // namespace Tessark::PropertyHost
