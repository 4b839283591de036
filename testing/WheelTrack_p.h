#pragma once

#include <core/WheelGeometry_p.h>

#include <QPoint>
#include <QVector>

namespace Tessark::UI {
class ColorWheel;
}

namespace Tessark::PropertyTest {

/// The way of the marker of a colour wheel: over the disc of hue and saturation, or round the ring of
/// the value. Points are pixels of the wheel.
class WheelTrack
{
public:
    WheelTrack(const UI::ColorWheel &wheel, UI::WheelPart part);

    /// Whether the wheel shows the part.
    bool isThere() const { return UI::hasPart(m_geometry, m_part); }

    /// What the wheel shows now.
    const UI::Hsv &color() const { return m_color; }

    /// From the marker, in so many movements or as many as the ring needs, to the pixel that means
    /// wanted as nearly as one can.
    QVector<QPoint> wayTo(const UI::Hsv &wanted, int movements) const;

    /// What the wheel shows when a pointer has taken the marker along the way.
    UI::Hsv colorAfter(const QVector<QPoint> &way) const;

    /// Whether the fields of a row show the same of what the part is about.
    bool isShownAs(const UI::Hsv &left, const UI::Hsv &right) const;

    /// Whether the marker stands in the same place for both, but for rounding.
    bool isPlacedAs(const UI::Hsv &left, const UI::Hsv &right) const;

private:
    QPointF pointOnWay(const UI::Hsv &wanted, double share) const;

    UI::WheelGeometry m_geometry;
    UI::WheelPart m_part;
    UI::Hsv m_color;
};

} // namespace Tessark::PropertyTest
