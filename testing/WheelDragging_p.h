#pragma once

#include "testing/PanelUser_p.h"

#include <core/WheelGeometry_p.h>

namespace Tessark::PropertyTest {

/// Where a marker of a colour wheel is dragged to.
struct WheelAim
{
    UI::WheelPart part = UI::WheelPart::Disc; // or ValueRing, of which color has the value alone
    UI::Hsv color;
    PanelUser::Aim aim = PanelUser::Aim::Exact;
};

/// Drags it in the first wheel that field has. An empty text, or what was in the way.
QString dragWheel(QWidget *field, const WheelAim &aim, int movements);

} // namespace Tessark::PropertyTest
