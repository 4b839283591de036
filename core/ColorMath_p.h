#pragma once

namespace Tessark::UI {

/// Red, green and blue as fractions 0..1.
struct Rgb
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// Hue as a fraction of a turn in [0, 1), counted from red; saturation and value (brightness) 0..1.
struct Hsv
{
    double hue = 0;
    double saturation = 0;
    double value = 0;
};

bool operator==(const Rgb &left, const Rgb &right);
bool operator!=(const Rgb &left, const Rgb &right);
bool operator==(const Hsv &left, const Hsv &right);
bool operator!=(const Hsv &left, const Hsv &right);

/// The hue brought into [0, 1) by whole turns; it must be finite.
double wrappedHue(double hue);

Rgb rgbOf(const Hsv &hsv);

/// The colour's hue, saturation and value. What the colour leaves undefined is taken from previous:
/// the hue of a grey, the hue and the saturation of black.
Hsv hsvOf(const Rgb &rgb, const Hsv &previous);

/// Whether two fractions of a colour are the same but for rounding or truncation to 8 bits: what a
/// host that stores colours in bytes sends back for a colour it was given.
bool isEcho(double fraction, double reported);

} // namespace Tessark::UI
