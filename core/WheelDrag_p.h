#pragma once

#include "core/WheelGeometry_p.h"

#include <QObject>

namespace Tessark::UI {

/// Whether a press takes the colour under the pointer or takes hold of the marker where it is.
enum class DragStart { AtPointer, AtMarker };

/**
 * One drag on a wheel, in numbers: turns where the pointer goes into colours.
 *
 * It follows the pointer, not the colour: if the colour is set to another one meanwhile, the next
 * movement still goes on from the pointer, and what is not being dragged is taken from the new colour.
 */
class WheelDrag
{
public:
    /// Begins at a point of the part. A press on the marker takes hold of it whatever the start.
    WheelDrag(const WheelGeometry &wheel, WheelPart part, const QPointF &point, const Hsv &hsv,
              DragStart start);

    /// Whether the press itself leaves the colour alone.
    bool holdsMarker() const;

    /// The colour at the pointer's place, with the modifiers' snapping.
    Hsv colorHere(const WheelGeometry &wheel, const Hsv &now,
                  Qt::KeyboardModifiers modifiers) const;

    /// The colour after the pointer moved to the point.
    Hsv moveTo(const WheelGeometry &wheel, const QPointF &point, const Hsv &now,
               Qt::KeyboardModifiers modifiers);

private:
    bool isOnRing() const;
    void turnRing(double step);

    WheelPart m_part;
    bool m_holdsMarker;
    QPointF m_pointer;  // where the pointer was last
    double m_angle = 0; // its direction from the centre
    QPointF m_target;   // the place chosen on disc or triangle; may be outside
    double m_turn = 0;  // the place chosen on a ring, in degrees; may be outside the arc
};

/// The steps to which Control snaps a colour's hue and its value.
Hsv withSnappedHue(const Hsv &hsv);
Hsv withSnappedValue(const Hsv &hsv);

/// What choosing hue or saturation makes of a colour: where the value is 0, the choice would change
/// nothing to be seen, so it comes with full value. Choosing what is there already is no choice.
Hsv brightenedChoice(const Hsv &chosen, const Hsv &now);

} // namespace Tessark::UI
