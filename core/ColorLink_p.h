#pragma once

#include "core/ColorMath_p.h"

#include <QObject>

class QWidget;

namespace Tessark::UI {

class ColorWheel;
class Slider;

/**
 * What a widget that a colour control made tells its control. Not by signals, so that the control
 * follows a widget whose signals are blocked too. The widget holds the link weakly and works on
 * alone without it. Any of these calls may delete the widget, the link and the control.
 *
 * A widget reports in this order: its own start signal, interactionBegan(), edits,
 * interactionEnded(), its own end signal; and each edit after its own state is up to date and
 * before its own signal of the edit.
 */
class ColorLink : public QObject
{
public:
    /// The user begins a drag, holds a key or turns the mouse wheel.
    virtual void interactionBegan(QWidget *source) = 0;

    /// The interaction is over; cancelled means that the state at its beginning is back.
    virtual void interactionEnded(QWidget *source, bool cancelled) = 0;

    /// The user chose these on the wheel, in an interaction or outside one.
    virtual void hsvEdited(ColorWheel *source, const Hsv &hsv) = 0;

    /// The channel of a slider changed by the user or by a setter of the slider.
    virtual void channelEdited(Slider *source, double value) = 0;

    // Setters of a bound wheel ask the control, which shows the outcome on all its widgets, the
    // wheel itself included, and tells no client.
    virtual void showHsv(const Hsv &hsv) = 0;
    virtual void showRingValue(double value) = 0;
};

} // namespace Tessark::UI
