#pragma once

#include "core/ColorMath_p.h"

#include <QPointF>
#include <QSizeF>

#include <array>

namespace Tessark::UI {

enum class WheelPart { None, Disc, ValueRing, HueRing, Triangle };

/// Where the parts of a wheel lie. Logical pixels; the radius of a part that is not there is 0.
/// Angles are degrees, 0 at 3 o'clock and counter-clockwise.
struct WheelGeometry
{
    double side = 0;
    QPointF center;
    double outerRadius = 0;
    WheelPart ring = WheelPart::None; // ValueRing, HueRing or None
    double ringInnerRadius = 0;
    double discRadius = 0;
    double discReach = 0; // how far from the centre a press still belongs to the disc
    double triangleRadius = 0;
};

/// The geometry of a wheel in one of the modes of ColorWheel::DisplayMode.
WheelGeometry wheelGeometry(int displayMode, const QSizeF &size);

/// The part that a press at the point takes. Fingers reach further beyond the ring.
enum class PointerKind { Mouse, Finger };
WheelPart partAt(const WheelGeometry &wheel, const QPointF &point, PointerKind pointer);

/// Whether the wheel has the part.
bool hasPart(const WheelGeometry &wheel, WheelPart part);

double distanceFromCenter(const WheelGeometry &wheel, const QPointF &point);

/// The point's direction from the centre, in [0, 360).
double angleAt(const WheelGeometry &wheel, const QPointF &point);

QPointF pointAt(const WheelGeometry &wheel, double angle, double radius);

/// From one angle to another the short way round, in [-180, 180).
double turnBetween(double from, double to);

/// The hue and saturation of a point of the disc; outside it, of the nearest point of its edge.
/// The value is that of previous, and so is the hue near the centre, where there is none.
Hsv discColorAt(const WheelGeometry &wheel, const QPointF &point, const Hsv &previous);
QPointF discPointOf(const WheelGeometry &wheel, const Hsv &hsv);

/// Degrees.
constexpr double kFullTurn = 360;

/// The value ring is an arc of 300 degrees with its gap at the bottom. Its turn is counted clockwise
/// from the dark end at 7 o'clock: 0..300 on the arc, up to 360 in the gap.
constexpr double kValueRingTurn = 300;
double valueRingTurnAt(double angle);
double valueOfTurn(double turn);
double angleOfValue(double value);

/// The same with a point in the gap taken for the nearer end of the arc.
double nearestValueRingTurnAt(double angle);

/// The middle of the ring.
double ringRadius(const WheelGeometry &wheel);
QPointF ringPointAt(const WheelGeometry &wheel, double angle);

/// The corners of the full hue, of white and of black.
std::array<QPointF, 3> triangleCorners(const WheelGeometry &wheel);

/// Saturation and value of a point of the triangle; outside it, of the triangle's nearest point. The
/// hue is that of previous, and so is the saturation at the black corner, where there is none.
Hsv triangleColorAt(const WheelGeometry &wheel, const QPointF &point, const Hsv &previous);
QPointF trianglePointOf(const WheelGeometry &wheel, const Hsv &hsv);

/// Where the marker of a part stands.
QPointF markerOf(const WheelGeometry &wheel, WheelPart part, const Hsv &hsv);

} // namespace Tessark::UI
