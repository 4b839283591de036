#include "testing/WheelTrack_p.h"

#include <core/ColorWheel.h>
#include <core/WheelDrag_p.h>

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyTest {

using UI::Hsv;
using UI::WheelPart;

namespace {

constexpr double kShown = 0.5e-4 * (1 + 1e-6); // half of the last digit of a channel's field
constexpr double kMissed = 1.5;                // pixels, by rounding
constexpr double kBeyond = 0.03;               // of the way, where the marker stays at its end
constexpr int kLeastRingMovements = 3;         // or the short way round would be another one

/// The ends of a way are reached beyond them.
double aimedAt(double fraction)
{
    return fraction >= 1 ? 1 + kBeyond : fraction;
}

bool areShownAlike(double channel, double other)
{
    return std::fabs(channel - other) <= kShown;
}

} // namespace

WheelTrack::WheelTrack(const UI::ColorWheel &wheel, WheelPart part)
    : m_geometry(UI::wheelGeometry(wheel.displayMode(), wheel.size()))
    , m_part(part)
    , m_color{wheel.hue(), wheel.saturation(), wheel.value()}
{
}

QVector<QPoint> WheelTrack::wayTo(const Hsv &wanted, int movements) const
{
    const bool isRing = m_part == WheelPart::ValueRing;
    const int count = isRing ? std::max(movements, kLeastRingMovements) : movements;
    const QPointF start = UI::markerOf(m_geometry, m_part, m_color);
    QVector<QPoint> way = {start.toPoint()};
    for (int i = 1; i <= count; ++i) {
        const QPointF moved = pointOnWay(wanted, double(i) / count) - start;
        way.append(way.first() + moved.toPoint());
    }
    return way;
}

Hsv WheelTrack::colorAfter(const QVector<QPoint> &way) const
{
    UI::WheelDrag drag(m_geometry, m_part, way.first(), m_color, UI::DragStart::AtMarker);
    Hsv color = m_color;
    for (const QPoint &pixel : way)
        color = drag.moveTo(m_geometry, pixel, color, Qt::NoModifier);
    return color;
}

/// How bright the disc's color is does not count.
bool WheelTrack::isShownAs(const Hsv &left, const Hsv &right) const
{
    if (m_part == WheelPart::ValueRing)
        return areShownAlike(left.value, right.value);
    const UI::Rgb one = UI::rgbOf({left.hue, left.saturation, 1});
    const UI::Rgb other = UI::rgbOf({right.hue, right.saturation, 1});
    return areShownAlike(one.red, other.red) && areShownAlike(one.green, other.green)
           && areShownAlike(one.blue, other.blue);
}

bool WheelTrack::isPlacedAs(const Hsv &left, const Hsv &right) const
{
    const QPointF one = UI::markerOf(m_geometry, m_part, left);
    const QPointF other = UI::markerOf(m_geometry, m_part, right);
    return QLineF(one, other).length() <= kMissed;
}

/// Straight over the disc, along the arc of the ring.
QPointF WheelTrack::pointOnWay(const Hsv &wanted, double share) const
{
    if (m_part == WheelPart::ValueRing) {
        const double end = wanted.value <= 0 ? -kBeyond : aimedAt(wanted.value);
        const double value = m_color.value + (end - m_color.value) * share;
        return UI::ringPointAt(m_geometry, UI::angleOfValue(value));
    }
    const QPointF start = UI::markerOf(m_geometry, m_part, m_color);
    const QPointF end =
        UI::discPointOf(m_geometry, {wanted.hue, aimedAt(wanted.saturation), wanted.value});
    return start + (end - start) * share;
}

} // namespace Tessark::PropertyTest
