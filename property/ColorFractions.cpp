#include "property/ColorFractions_p.h"

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyUI {

namespace {

/// QColor holds what lies outside 0..1 in half precision.
constexpr float kLargestHalf = 65504.0F;

float boundedFraction(float fraction)
{
    return std::isnan(fraction) ? 0.0F : std::clamp(fraction, -kLargestHalf, kLargestHalf);
}

} // namespace

QColor colorOfFractions(float red, float green, float blue, float alpha)
{
    const float opacity = boundedFraction(alpha);
    if (opacity < 0.0F || opacity > 1.0F)
        return QColor();
    return QColor::fromRgbF(boundedFraction(red), boundedFraction(green), boundedFraction(blue),
                            opacity);
}

} // namespace Tessark::PropertyUI
