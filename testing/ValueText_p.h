#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

namespace Tessark::PropertyTest {

/// The numbers that a value of a panel is made of: one for a number, the components of a vector, a
/// size, a colour (red, green, blue, alpha) or a matrix, row by row. None for anything else.
QVector<double> numbersOf(const QVariant &value);

/// The value as a message shows it and as a script writes it.
QString valueText(const QVariant &value);

/// Whether the two are alike but for rounding. A text stands for the value that is written so.
bool isSame(const QVariant &value, const QVariant &expected);

} // namespace Tessark::PropertyTest
