#pragma once

#include <QColor>

namespace Tessark::PropertyHost {

/// How well two opaque colours can be told apart, whatever their hues: from 1, not at all, to 21 of
/// black and white. By the relative luminance of sRGB colours.
double contrastOf(const QColor &one, const QColor &other);

/// Whether white can be told from the colour better than black can.
bool isDark(const QColor &color);

/// Part of the way from a colour, at 0, to another one, at 1.
QColor between(const QColor &from, const QColor &to, double way);

/// The colour, moved towards black or white, whichever is further from the other one, as little as
/// it takes to have that contrast to it, or all the way.
QColor apartFrom(const QColor &other, const QColor &color, double contrast);

} // namespace Tessark::PropertyHost
