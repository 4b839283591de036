#include "core/SliderMaps_p.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace Tessark::UI {

namespace {

/// How many intervals the range has. A double holds every difference of two ints.
double intervalsOf(PositionRange range)
{
    return static_cast<double>(range.maximum) - range.minimum;
}

double stepsFromMinimum(PositionRange range, int position)
{
    return static_cast<double>(position) - range.minimum;
}

/// The position nearest to a fraction of the range, halves away from the minimum.
int positionAtFraction(PositionRange range, double fraction)
{
    const double steps = std::round(intervalsOf(range) * std::clamp(fraction, 0.0, 1.0));
    return static_cast<int>(range.minimum + steps);
}

} // namespace

double powerOfTen(int exponent)
{
    // Reading the decimal text rounds correctly, which pow() does not promise.
    return ("1e" + QByteArray::number(exponent)).toDouble();
}

double realAt(const LogScale &scale, PositionRange range, int position)
{
    if (position <= range.minimum)
        return powerOfTen(scale.minimumExponent);
    if (position >= range.maximum)
        return powerOfTen(scale.maximumExponent);
    const double decades = scale.maximumExponent - scale.minimumExponent;
    return std::pow(10.0, scale.minimumExponent
                              + decades * stepsFromMinimum(range, position) / intervalsOf(range));
}

int positionOf(const LogScale &scale, PositionRange range, double value)
{
    if (!(value > 0) || scale.minimumExponent == scale.maximumExponent)
        return range.minimum;
    const double decades = scale.maximumExponent - scale.minimumExponent;
    return positionAtFraction(range, (std::log10(value) - scale.minimumExponent) / decades);
}

double realAt(const LinearScale &scale, PositionRange range, int position)
{
    if (position <= range.minimum)
        return scale.minimum;
    if (position >= range.maximum)
        return scale.maximum;
    const double steps = stepsFromMinimum(range, position);
    const double width = scale.maximum - scale.minimum;
    if (std::isfinite(width))
        return scale.minimum + width * steps / intervalsOf(range);
    const double fraction = steps / intervalsOf(range);
    return scale.minimum * (1 - fraction) + scale.maximum * fraction;
}

int positionOf(const LinearScale &scale, PositionRange range, double value)
{
    const double bounded = std::clamp(value, scale.minimum, scale.maximum);
    const double width = scale.maximum - scale.minimum;
    if (!(width > 0))
        return range.minimum;
    if (std::isfinite(width))
        return positionAtFraction(range, (bounded - scale.minimum) / width);
    // Halves of the ends keep the difference of huge numbers finite.
    return positionAtFraction(range, (bounded / 2 - scale.minimum / 2)
                                         / (scale.maximum / 2 - scale.minimum / 2));
}

} // namespace Tessark::UI
