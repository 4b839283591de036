#include "core/WheelInteraction_p.h"

#include "core/ColorWheel.h"
#include "core/WheelView_p.h"

#include <QPointer>

#include <utility>

namespace Tessark::UI {

WheelInteraction::WheelInteraction(WheelView *view)
    : m_view(view)
{
}

WheelInteraction::Kind WheelInteraction::kind() const
{
    return m_kind;
}

bool WheelInteraction::begin(Kind kind)
{
    const QPointer<ColorWheel> wheel(m_view->wheel);
    if (!finish(Outcome::Kept) || m_kind != Kind::None)
        return false;
    const int serial = ++m_serial;
    m_kind = kind;
    m_before = m_view->hsv;
    Q_EMIT wheel->startDragSignal();
    if (!wheel || m_serial != serial)
        return false;
    m_linkKnows = true;
    if (m_view->link)
        m_view->link->interactionBegan(wheel);
    return wheel && m_serial == serial;
}

bool WheelInteraction::edit(const Hsv &hsv)
{
    if (hsv == m_view->hsv)
        return true;
    const QPointer<ColorWheel> wheel(m_view->wheel);
    const int serial = m_serial;
    m_view->show(hsv);
    m_view->isUserChoice = true;
    if (m_view->link)
        m_view->link->hsvEdited(wheel, hsv);
    if (!wheel)
        return false;
    // The control's client may have chosen another colour meanwhile; that is the one now shown.
    const Hsv shown = m_view->hsv;
    Q_EMIT wheel->hsvEdited(shown.hue, shown.saturation, shown.value);
    return wheel && m_serial == serial;
}

bool WheelInteraction::end()
{
    return finish(Outcome::Kept);
}

bool WheelInteraction::cancel()
{
    const QPointer<ColorWheel> wheel(m_view->wheel);
    if (edit(m_before))
        finish(Outcome::Cancelled);
    return wheel;
}

bool WheelInteraction::finish(Outcome outcome)
{
    // While the control hears of the end, its client may let the user begin anew. Start and stop
    // alternate strictly, so that comes too early.
    if (m_isFinishing)
        return false;
    if (m_kind == Kind::None)
        return true;
    const QPointer<ColorWheel> wheel(m_view->wheel);
    m_kind = Kind::None;
    ++m_serial;
    m_isFinishing = true;
    if (std::exchange(m_linkKnows, false) && m_view->link)
        m_view->link->interactionEnded(wheel, outcome == Outcome::Cancelled);
    if (!wheel)
        return false;
    m_isFinishing = false;
    Q_EMIT wheel->stopDragSignal();
    return wheel;
}

} // namespace Tessark::UI
