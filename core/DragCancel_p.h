#pragma once

class QAbstractSlider;
class QEvent;
class QKeyEvent;
class QMouseEvent;

namespace Tessark::UI {

/**
 * Lets Escape take back a drag of a slider's handle: the slider shows each event here first and does
 * what the verdict says. Works on real values, so that a slider gets back exactly what it had.
 */
class DragCancel
{
public:
    enum class Verdict {
        Pass,    // the slider handles the event as always
        Swallow, // the event is accepted and must go no further
        Cancel,  // like Swallow; and the slider goes back to valueAtPress() and lets the handle go
    };

    explicit DragCancel(const QAbstractSlider *slider);

    /// Judges an event. The value is the slider's of now; it is kept when a press begins.
    Verdict judge(QEvent *event, double value);

    /// The value when the pointer went down.
    double valueAtPress() const;

private:
    void notePress(const QMouseEvent &event, double value);
    void noteRelease(const QMouseEvent &event);
    bool cancels(const QKeyEvent &event) const;

    const QAbstractSlider *m_slider; // the owner of this object
    double m_valueAtPress = 0;
    bool m_pressed = false;        // the pointer went down on the slider and is not yet up
    bool m_ignoresPointer = false; // Escape ended the drag, the pointer is not yet up
};

} // namespace Tessark::UI
