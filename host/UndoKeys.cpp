#include "host/UndoKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QUndoStack>
#include <QWidget>

#include <utility>

namespace Tessark::PropertyHost {

namespace {

enum class Step { None, Undo, Redo };

Step stepOf(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool isZ = event.key() == Qt::Key_Z;
    if (event.matches(QKeySequence::Undo) || (isZ && modifiers == Qt::ControlModifier))
        return Step::Undo;
    if (event.matches(QKeySequence::Redo)
        || (isZ && modifiers == (Qt::ControlModifier | Qt::ShiftModifier)))
        return Step::Redo;
    return Step::None;
}

void finishTyping(QObject *field)
{
    auto *const line = qobject_cast<QLineEdit *>(field);
    if (line && line->isModified())
        Q_EMIT line->editingFinished();
}

} // namespace

UndoKeys::UndoKeys(QUndoStack *stack, QWidget *widget)
    : QObject(widget)
    , m_stack(stack)
    , m_widget(widget)
{
    // On the application, since children come and go.
    qApp->installEventFilter(this);
}

UndoKeys::~UndoKeys() = default;

void UndoKeys::setFieldKeepsKeys(std::function<bool()> keepsKeys)
{
    m_fieldKeepsKeys = std::move(keepsKeys);
}

bool UndoKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool asksForShortcuts = event->type() == QEvent::ShortcutOverride;
    if ((!asksForShortcuts && event->type() != QEvent::KeyPress) || !isWatched(watched))
        return false;
    const Step step = stepOf(*static_cast<QKeyEvent *>(event));
    if (step == Step::None || (m_fieldKeepsKeys && m_fieldKeepsKeys()))
        return false;
    event->setAccepted(!asksForShortcuts); // a field would keep the key from the shortcuts
    if (asksForShortcuts)
        return true;
    const QPointer<QUndoStack> stack(m_stack); // the host may delete this object
    finishTyping(watched);
    if (stack && step == Step::Undo)
        stack->undo();
    else if (stack)
        stack->redo();
    return true;
}

bool UndoKeys::isWatched(const QObject *object) const
{
    const auto *const widget = qobject_cast<const QWidget *>(object);
    return widget && (widget == m_widget || m_widget->isAncestorOf(widget));
}

} // namespace Tessark::PropertyHost
