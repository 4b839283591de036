#pragma once

#include "host/DelegatePointer.h"
#include "host/PropertyHostExport.h"

#include <property/IPropertyEditorDelegate.h>

#include <QObject>
#include <QPointer>
#include <QVariant>

class QUndoStack;

namespace Tessark::PropertyHost {

/**
 * Stands in front of another delegate and turns each edit into a command of an undo stack.
 *
 * A command is named after the property's label. The changes of one interactive run (a first
 * change and the ContinuedChanges after it) make one command; a run that ends where it began
 * leaves none, and neither does a change that the inner delegate does not take over. Changes of
 * types without a value to go back to (actions, separators, and the markers of groups and tabs,
 * whose state belongs to the user) are passed on without a command.
 *
 * Undo and redo write the inner delegate as a NewChange and emit valueRestored(); an edit does not,
 * since the panel that made it shows it already.
 *
 * Stack, inner delegate and this object belong to the host and may be deleted in any order: without
 * stack, edits are only passed on; without inner delegate, or once this object is gone, undoing a
 * command does nothing. An inner delegate that is no QObject cannot be watched: call
 * setDelegate(nullptr) before it goes. The properties must outlive the commands; clear the stack
 * before deleting them.
 */
class TESSARK_PROPERTYHOST_EXPORT UndoDelegate : public QObject,
                                                 public PropertyUI::IPropertyEditorDelegate
{
    Q_OBJECT

public:
    /// Neither delegate nor stack is taken over; both may be null.
    UndoDelegate(PropertyUI::IPropertyEditorDelegate *delegate, QUndoStack *stack,
                 QObject *parent = nullptr);
    ~UndoDelegate() override;

    /// The inner delegate, or null when there is none or it was deleted.
    PropertyUI::IPropertyEditorDelegate *delegate() const;
    void setDelegate(PropertyUI::IPropertyEditorDelegate *delegate);

    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;

    /// The inner delegate's value, or an invalid variant without one.
    QVariant value(PropertyUI::Property *property) override;

Q_SIGNALS:
    /// Undo or redo wrote the property's value to the inner delegate. Connect it to what refreshes
    /// the panel.
    void valueRestored(Tessark::PropertyUI::Property *property);

private:
    class Command;

    void restore(PropertyUI::Property *property, const QVariant &value);
    void record(PropertyUI::Property *property, const QVariant &before, const QVariant &after);

    DelegatePointer m_delegate;
    QPointer<QUndoStack> m_stack;
    quint64 m_run = 0; // counts interactive runs, so that a command merges only changes of its own
};

} // namespace Tessark::PropertyHost
