#include "core/ColorMath_p.h"

#include <algorithm>
#include <cmath>

namespace Tessark::UI {

namespace {

constexpr int kSextants = 6;
constexpr double kEchoDistance = 1.0 / 255 + 1e-6;

} // namespace

bool operator==(const Rgb &left, const Rgb &right)
{
    return left.red == right.red && left.green == right.green && left.blue == right.blue;
}

bool operator!=(const Rgb &left, const Rgb &right)
{
    return !(left == right);
}

bool operator==(const Hsv &left, const Hsv &right)
{
    return left.hue == right.hue && left.saturation == right.saturation
           && left.value == right.value;
}

bool operator!=(const Hsv &left, const Hsv &right)
{
    return !(left == right);
}

double wrappedHue(double hue)
{
    const double wrapped = hue - std::floor(hue);
    return wrapped < 1 ? wrapped : 0; // a tiny negative hue rounds up to a whole turn
}

Rgb rgbOf(const Hsv &hsv)
{
    const double position = hsv.hue * kSextants;
    const int sextant = std::clamp(int(position), 0, kSextants - 1);
    const double fraction = position - sextant;
    const double value = hsv.value;
    const double lowest = value * (1 - hsv.saturation);
    const double falling = value * (1 - hsv.saturation * fraction);
    const double rising = value * (1 - hsv.saturation * (1 - fraction));
    switch (sextant) {
    case 0:
        return {value, rising, lowest};
    case 1:
        return {falling, value, lowest};
    case 2:
        return {lowest, value, rising};
    case 3:
        return {lowest, falling, value};
    case 4:
        return {rising, lowest, value};
    default:
        return {value, lowest, falling};
    }
}

Hsv hsvOf(const Rgb &rgb, const Hsv &previous)
{
    const double value = std::max({rgb.red, rgb.green, rgb.blue});
    const double chroma = value - std::min({rgb.red, rgb.green, rgb.blue});
    if (value <= 0)
        return {previous.hue, previous.saturation, 0};
    if (chroma <= 0)
        return {previous.hue, 0, value};
    double sextants = 0;
    if (rgb.red == value)
        sextants = (rgb.green - rgb.blue) / chroma;
    else if (rgb.green == value)
        sextants = 2 + (rgb.blue - rgb.red) / chroma;
    else
        sextants = 4 + (rgb.red - rgb.green) / chroma;
    return {wrappedHue(sextants / kSextants), chroma / value, value};
}

bool isEcho(double fraction, double reported)
{
    return std::abs(fraction - reported) <= kEchoDistance;
}

} // namespace Tessark::UI
