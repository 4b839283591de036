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
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *const mouse = static_cast<const QMouseEvent *>(event);
        if (mouse->buttons() == mouse->button()) { // no other is held: a new press begins
            m_valueAtPress = value;
            m_pressed = true;
            m_ignoresPointer = false;
        }
        break;
    }
    case QEvent::MouseMove:
        if (m_ignoresPointer) {
            event->accept();
            return Verdict::Swallow;
        }
        break;
    case QEvent::MouseButtonRelease:
        // The slider sees the release even after a cancelled drag: it has let the handle go by then,
        // so nothing is announced, but its own bookkeeping of the press ends there.
        if (static_cast<const QMouseEvent *>(event)->buttons() == Qt::NoButton) {
            m_pressed = false;
            m_ignoresPointer = false;
        }
        break;
    case QEvent::ShortcutOverride:
        // Claimed here, the key reaches the slider instead of a shortcut of the window.
        if (cancels(event)) {
            event->accept();
            return Verdict::Swallow;
        }
        break;
    case QEvent::KeyPress:
        if (cancels(event)) {
            m_ignoresPointer = true;
            event->accept();
            return Verdict::Cancel;
        }
        break;
    default:
        break;
    }
    return Verdict::Pass;
}

double DragCancel::valueAtPress() const
{
    return m_valueAtPress;
}

bool DragCancel::cancels(const QEvent *event) const
{
    return m_pressed && m_slider->isSliderDown()
           && static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Escape;
}

} // namespace Tessark::UI
