#pragma once

#include "core/WheelGeometry_p.h"
#include "core/WheelImages_p.h"

#include <QColor>

#include <array>

class QPainter;

namespace Tessark::UI {

/// The opaque colour.
QColor colorOf(const Hsv &hsv);

/// What of a wheel's picture its colour and its state decide.
struct WheelPicture
{
    Hsv hsv;
    bool isEnabled = true;
    bool showsFocus = false;
    QColor disabledMarkerColor;
    QColor focusColor;
};

/// Paints the wheel in logical pixels; its background stays as it is.
void paintWheel(QPainter *painter, const WheelGeometry &wheel, const WheelPicture &picture,
                WheelImages *images);

/// The markers alone, which every change of the colour moves.
void paintWheelMarkers(QPainter *painter, const WheelGeometry &wheel, const WheelPicture &picture);

/// What the colour decides of a picture, in steps too fine to see: colours that give equal traces
/// look the same. The ratio is that of device pixels to logical ones.
using WheelTrace = std::array<double, 7>;
WheelTrace traceOf(const WheelGeometry &wheel, const Hsv &hsv, double ratio);

} // namespace Tessark::UI
