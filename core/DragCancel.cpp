#include "core/DragCancel_p.h"

#include <QAbstractSlider>
#include <QKeyEvent>
#include <QMouseEvent>

namespace Tessark::UI {

DragCancel::DragCancel(const QAbstractSlider *slider)
    : m_slider(slider)
{
}

DragCancel::Verdict DragCancel::judge(QEvent *event, double value)
{
    Verdict verdict = Verdict::Pass;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // to a slider a press like any other
        notePress(*static_cast<const QMouseEvent *>(event), value);
        break;
    case QEvent::MouseMove:
        if (m_ignoresPointer)
            verdict = Verdict::Swallow;
        break;
    case QEvent::MouseButtonRelease:
        noteRelease(*static_cast<const QMouseEvent *>(event));
        break;
    case QEvent::ShortcutOverride: // claimed here, the key becomes no shortcut of the window
        if (cancels(*static_cast<const QKeyEvent *>(event)))
            verdict = Verdict::Swallow;
        break;
    case QEvent::KeyPress:
        if (cancels(*static_cast<const QKeyEvent *>(event))) {
            m_ignoresPointer = true;
            verdict = Verdict::Cancel;
        }
        break;
    default:
        break;
    }
    if (verdict != Verdict::Pass)
        event->accept();
    return verdict;
}

double DragCancel::valueAtPress() const
{
    return m_valueAtPress;
}

void DragCancel::notePress(const QMouseEvent &event, double value)
{
    if (event.buttons() != event.button())
        return; // another button is held: no new press begins
    m_valueAtPress = value;
    m_pressed = true;
    m_ignoresPointer = false;
}

/// The slider sees every release, even after a cancelled drag: it has let the handle go by then, so
/// nothing is announced, but its own bookkeeping of the press ends there.
void DragCancel::noteRelease(const QMouseEvent &event)
{
    if (event.buttons() != Qt::NoButton)
        return;
    m_pressed = false;
    m_ignoresPointer = false;
}

bool DragCancel::cancels(const QKeyEvent &event) const
{
    return m_pressed && m_slider->isSliderDown() && event.key() == Qt::Key_Escape;
}

} // namespace Tessark::UI
