#pragma once

#include "host/PropertyHostExport.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QUndoStack;
class QWidget;

namespace Tessark::PropertyHost {

/**
 * Hands the keys for undo and redo to an undo stack while a field has the focus that has a history of
 * its own: a line of text, a number field, a text of several lines.
 *
 * The keys are those of QKeySequence::Undo and QKeySequence::Redo, and Ctrl+Z and Ctrl+Shift+Z on every
 * platform. They go to the shortcuts of the window's actions first, so that a host's own Undo and Redo
 * actions work; those that no shortcut takes go to the stack. A line of text that is still being edited
 * is finished before, as Return does it, so that what was typed is the step that undo takes back. A
 * "text" row announces no edits: what was typed there since the last refresh is not on the stack.
 */
class TESSARK_PROPERTYHOST_EXPORT UndoKeys : public QObject
{
    Q_OBJECT

public:
    /// Watches the keys that are pressed in widget, a panel or a whole window, which becomes the parent,
    /// and in what it holds, other windows not included. stack is not taken over; without one, or once
    /// it is deleted, the keys do nothing.
    UndoKeys(QUndoStack *stack, QWidget *widget);
    ~UndoKeys() override;

    /// While keepsKeys gives true, the focused field has the keys to itself, for example as long as it
    /// holds text that is not committed. An empty function stands for never, the default.
    void setFieldKeepsKeys(std::function<bool()> keepsKeys);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isWatched(const QObject *object) const;

    QPointer<QUndoStack> m_stack;
    QWidget *m_widget; // the parent
    std::function<bool()> m_fieldKeepsKeys;
};

} // namespace Tessark::PropertyHost
