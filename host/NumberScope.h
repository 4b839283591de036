#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace Tessark::PropertyHost {

/// What an expression typed into a number field may refer to. All numbers are as the field shows them.
struct NumberScope
{
    /// What the field holds: what percentages and relative operations are of.
    double current = 0.0;

    /// Whether the field shows per cent, so that "50%" is 50 there.
    bool isPercentField = false;

    /// The unit behind the field's numbers. It may follow a value and is ignored; empty for none.
    QString unit;

    /// The number of that name, or nothing if there is none. May be empty. It must not throw.
    std::function<std::optional<double>(const QString &name)> valueOf;
};

/// How an expression makes the number of a field.
enum class NumberOperation {
    Replace, // it is the number
    Add,     // all others are relative to the number that is there
    Subtract,
    Multiply,
    Divide,
};

} // namespace Tessark::PropertyHost
