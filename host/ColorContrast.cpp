#include "host/ColorContrast_p.h"

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyHost {

namespace {

constexpr int kSteps = 255; // as many as there are shades

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminanceOf(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return 0.2126 * linear(rgb.red() / 255.0) + 0.7152 * linear(rgb.green() / 255.0)
           + 0.0722 * linear(rgb.blue() / 255.0);
}

int between(int from, int to, double way)
{
    return qRound(from + (to - from) * way);
}

} // namespace

double contrastOf(const QColor &one, const QColor &other)
{
    const auto [darker, brighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

bool isDark(const QColor &color)
{
    return contrastOf(color, Qt::white) > contrastOf(color, Qt::black);
}

QColor between(const QColor &from, const QColor &to, double way)
{
    return {between(from.red(), to.red(), way), between(from.green(), to.green(), way),
            between(from.blue(), to.blue(), way)};
}

QColor apartFrom(const QColor &other, const QColor &color, double contrast)
{
    const QColor end = isDark(other) ? Qt::white : Qt::black;
    for (int step = 0; step < kSteps; ++step) {
        const QColor moved = between(color, end, double(step) / kSteps);
        if (contrastOf(moved, other) >= contrast)
            return moved;
    }
    return end;
}

} // namespace Tessark::PropertyHost
