#pragma once

#include <QColor>

namespace Tessark::PropertyUI {

/// The colour of these fractions. As QColor has it, red, green and blue outside 0..1 are kept and an
/// alpha outside gives an invalid colour, but without a warning; NaN counts as 0, an infinite red,
/// green or blue as the largest number that QColor keeps.
QColor colorOfFractions(float red, float green, float blue, float alpha);

} // namespace Tessark::PropertyUI
