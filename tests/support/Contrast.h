#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace TestSupport {

inline double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(color.redF())) + 0.7152 * linear(double(color.greenF()))
           + 0.0722 * linear(double(color.blueF()));
}

/// From 1, of equal colours, to 21, of black and white.
inline double contrast(const QColor &a, const QColor &b)
{
    const double brighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (brighter + 0.05) / (darker + 0.05);
}

} // namespace TestSupport
