#include "UndoKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace Tessark::PropertyPanel {

UndoKeys::UndoKeys(QWidget *window, std::function<bool()> fieldKeepsKeys)
    : QObject(window)
    , m_window(window)
    , m_fieldKeepsKeys(std::move(fieldKeepsKeys))
{
    qApp->installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const auto *const key = static_cast<QKeyEvent *>(event);
    const auto *const widget = qobject_cast<QWidget *>(watched);
    if (!key->matches(QKeySequence::Undo) && !key->matches(QKeySequence::Redo))
        return false;
    if (!widget || widget->window() != m_window || m_fieldKeepsKeys())
        return false;
    // A field would accept the event and so keep the key from the shortcuts.
    event->ignore();
    return true;
}

} // namespace Tessark::PropertyPanel
