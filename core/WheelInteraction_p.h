#pragma once

#include "core/ColorMath_p.h"

namespace Tessark::UI {

class ColorWheel;
struct WheelView;

/**
 * Carries what the user does to a wheel into its state and to everybody who is to hear of it. One
 * interaction runs at a time; a new one ends the one before.
 *
 * Every function may run slots that delete the wheel, and this object with it. What is returned says
 * whether the caller may go on.
 */
class WheelInteraction
{
public:
    enum class Kind { None, Drag, Keys, Burst, Assistance };

    explicit WheelInteraction(WheelView *view);

    Kind kind() const;

    /// Begins an interaction. False if a slot put an end to it or deleted the wheel.
    bool begin(Kind kind);

    /// Shows the user's choice and announces it, if it is another colour. False if a slot put an end
    /// to the interaction or deleted the wheel.
    bool edit(const Hsv &hsv);

    /// Ends the interaction, if one runs. False if a slot deleted the wheel, and inside the end of an
    /// interaction: nothing new begins before that is announced.
    bool end();

    /// Goes back to the colour at the beginning and ends. False if a slot deleted the wheel.
    bool cancel();

private:
    enum class Outcome { Kept, Cancelled };
    bool finish(Outcome outcome);

    WheelView *m_view;
    Kind m_kind = Kind::None;
    Hsv m_before;     // the colour at the beginning
    int m_serial = 0; // tells one interaction from the next
    bool m_isFinishing = false;
    bool m_linkKnows = false; // the control was told of the beginning
};

} // namespace Tessark::UI
