#include "core/WheelDrag_p.h"

#include <cmath>

namespace Tessark::UI {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180;
constexpr double kMarkerReach = 6;
constexpr double kFineShare = 0.1; // of the pointer's movement, with Shift
constexpr double kHueSteps = 24;   // of 15 degrees
constexpr double kValueSteps = 20; // of 0.05

/// So near to the centre the pointer has no direction.
constexpr double kNoDirectionRadius = 1;

double ringTurnOf(WheelPart ring, const Hsv &hsv)
{
    return ring == WheelPart::HueRing ? hsv.hue * kFullTurn : hsv.value * kValueRingTurn;
}

double ringTurnAt(WheelPart ring, double angle)
{
    return ring == WheelPart::HueRing ? angle : nearestValueRingTurnAt(angle);
}

bool isOnMarker(const WheelGeometry &wheel, WheelPart part, const QPointF &point, const Hsv &hsv)
{
    const QPointF marker = markerOf(wheel, part, hsv);
    if (part == WheelPart::Disc || part == WheelPart::Triangle)
        return std::hypot(point.x() - marker.x(), point.y() - marker.y()) <= kMarkerReach;
    // A bar across the ring: only the way along the ring counts.
    const double turn = turnBetween(angleAt(wheel, marker), angleAt(wheel, point));
    return std::abs(turn) * kDegree * ringRadius(wheel) <= kMarkerReach;
}

} // namespace

WheelDrag::WheelDrag(const WheelGeometry &wheel, WheelPart part, const QPointF &point,
                     const Hsv &hsv, DragStart start)
    : m_part(part)
    , m_holdsMarker(start == DragStart::AtMarker || isOnMarker(wheel, part, point, hsv))
    , m_pointer(point)
    , m_angle(angleAt(wheel, point))
{
    if (isOnRing())
        m_turn = m_holdsMarker ? ringTurnOf(part, hsv) : ringTurnAt(part, m_angle);
    else
        m_target = m_holdsMarker ? markerOf(wheel, part, hsv) : point;
}

bool WheelDrag::holdsMarker() const
{
    return m_holdsMarker;
}

Hsv WheelDrag::colorHere(const WheelGeometry &wheel, const Hsv &now,
                         Qt::KeyboardModifiers modifiers) const
{
    if (!hasPart(wheel, m_part))
        return now; // the wheel became too small for it, or shows another mode
    const bool snaps = modifiers.testFlag(Qt::ControlModifier);
    switch (m_part) {
    case WheelPart::Disc: {
        const Hsv chosen = discColorAt(wheel, m_target, now);
        const bool hasHue = chosen.saturation > 0;
        return brightenedChoice(snaps && hasHue ? withSnappedHue(chosen) : chosen, now);
    }
    case WheelPart::Triangle: {
        const Hsv chosen = triangleColorAt(wheel, m_target, now);
        return snaps ? withSnappedValue(chosen) : chosen;
    }
    case WheelPart::HueRing: {
        const Hsv chosen{wrappedHue(m_turn / kFullTurn), now.saturation, now.value};
        return snaps ? withSnappedHue(chosen) : chosen;
    }
    default: {
        const Hsv chosen{now.hue, now.saturation, valueOfTurn(m_turn)};
        return snaps ? withSnappedValue(chosen) : chosen;
    }
    }
}

Hsv WheelDrag::moveTo(const WheelGeometry &wheel, const QPointF &point, const Hsv &now,
                      Qt::KeyboardModifiers modifiers)
{
    const QPointF movement = point - m_pointer;
    if (movement.isNull())
        return now;
    m_pointer = point;
    const double share = modifiers.testFlag(Qt::ShiftModifier) ? kFineShare : 1;
    if (!isOnRing()) {
        m_target += movement * share;
    } else if (distanceFromCenter(wheel, point) > kNoDirectionRadius) {
        const double angle = angleAt(wheel, point);
        turnRing(turnBetween(m_angle, angle) * share);
        m_angle = angle;
    }
    return colorHere(wheel, now, modifiers);
}

bool WheelDrag::isOnRing() const
{
    return m_part == WheelPart::HueRing || m_part == WheelPart::ValueRing;
}

/// The turn of the value ring is counted clockwise and adds up beyond the ends of the arc: the pointer
/// that crosses the gap holds the end, and picks the value up again where it left the arc.
void WheelDrag::turnRing(double step)
{
    m_turn += m_part == WheelPart::HueRing ? step : -step;
}

Hsv withSnappedHue(const Hsv &hsv)
{
    return {wrappedHue(std::round(hsv.hue * kHueSteps) / kHueSteps), hsv.saturation, hsv.value};
}

Hsv withSnappedValue(const Hsv &hsv)
{
    return {hsv.hue, hsv.saturation, std::round(hsv.value * kValueSteps) / kValueSteps};
}

Hsv brightenedChoice(const Hsv &chosen, const Hsv &now)
{
    const bool isChoice = chosen.hue != now.hue || chosen.saturation != now.saturation;
    return {chosen.hue, chosen.saturation, isChoice && now.value <= 0 ? 1 : chosen.value};
}

} // namespace Tessark::UI
