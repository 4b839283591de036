#pragma once

namespace Tessark::UI {

/// The integer positions of a slider, both ends included; minimum <= maximum.
struct PositionRange
{
    int minimum = 0;
    int maximum = 0;
};

/// Real values spaced evenly on a decimal logarithm: 10^minimumExponent .. 10^maximumExponent, with
/// exponents in -300..300 and minimumExponent <= maximumExponent.
struct LogScale
{
    int minimumExponent = 0;
    int maximumExponent = 0;
};

/// Real values spaced evenly; both ends finite, minimum <= maximum.
struct LinearScale
{
    double minimum = 0;
    double maximum = 0;
};

// Positions outside the range clamp, and so do real values outside the scale. The ends of the range
// give exactly the ends of the scale. A scale or a range of one point belongs to the lowest position
// and to the lowest real value. positionOf(realAt(p)) is p wherever the scale has room for that many
// different numbers; real values must not be NaN.

/// The double nearest to 10^exponent, for exponents in -300..300.
double powerOfTen(int exponent);

double realAt(const LogScale &scale, PositionRange range, int position);
int positionOf(const LogScale &scale, PositionRange range, double value);

double realAt(const LinearScale &scale, PositionRange range, int position);
int positionOf(const LinearScale &scale, PositionRange range, double value);

} // namespace Tessark::UI
