#pragma once

#include "host/DelegatePointer.h"
#include "host/PropertyHostExport.h"

#include <property/IPropertyEditorDelegate.h>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>

class QUndoCommand;
class QUndoStack;

namespace Tessark::PropertyUI {
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

/**
 * Stands in front of another delegate and turns each edit into a command of an undo stack.
 *
 *     UndoDelegate undo(&store, &stack);
 *     PropertyEditorPanel panel(properties, &undo, nullptr);
 *     undo.attach(&panel);
 *     panel.updateUI();
 *
 * A command is named after the property's label. The changes of one interactive run (a first
 * change and the ContinuedChanges after it) make one command; a run that ends where it began
 * leaves none, and neither does a change that the inner delegate does not take over. Changes after
 * undo or redo begin another command, even if they continue a run.
 *
 * Folding and opening a group is a command as well, since what the user sees comes back by it; see
 * isFolding(). Turning to another tab page is none: it hides nothing that the tabs do not show, and
 * would stand between the user and the last edit. It is passed on only, as is all else without a value
 * to go back to: clicks on actions, separators, the ends of groups.
 *
 * Undo and redo write the inner delegate as a NewChange, show the value in attached panels and emit
 * valueRestored(); an edit does not, since the panel that made it shows it already. What the host
 * writes while they run is passed on without a command.
 *
 * Stack, inner delegate, panels and this object belong to the host and may be deleted in any order:
 * without stack, edits are only passed on; without inner delegate, or once this object is gone, undoing
 * a command does nothing. An inner delegate that is no QObject cannot be watched: call
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

    /// The stack that was given, or null when there is none or it was deleted.
    QUndoStack *undoStack() const;

    /// Shows in panel what undo and redo restore, until the panel is deleted: in the rows of the
    /// property alone, with the values that the panel's own delegate gives. Groups fold and open. The
    /// panel's delegate is this object or one that passes on to it. Any number of panels can be
    /// attached; null is ignored, and so is a panel that is attached already.
    void attach(PropertyUI::PropertyEditorPanel *panel);

    /// True for a command that folds or opens a group: to a host that asks whether a document was
    /// changed it may not count. False for null and for commands of others.
    static bool isFolding(const QUndoCommand *command);

    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;

    /// The inner delegate's value, or an invalid variant without one.
    QVariant value(PropertyUI::Property *property) override;

Q_SIGNALS:
    /// Undo or redo wrote the property's value to the inner delegate, and attached panels show it.
    /// Connect it to what refreshes anything else.
    void valueRestored(Tessark::PropertyUI::Property *property);

private:
    class Command;

    void setGroupOpen(PropertyUI::Property *group, bool isOpen, ChangeFlags flags);
    void watchRuns(PropertyUI::PropertyEditor *editor);
    void breakIntoRuns(const PropertyUI::Property *changed);
    quint64 runOf(const PropertyUI::Property *property, ChangeFlags flags);
    void endAllRuns();
    void record(PropertyUI::Property *property, const QVariant &before, const QVariant &after);
    void restore(PropertyUI::Property *property, const QVariant &value);
    void showRestored(PropertyUI::Property *property, const QVariant &value);
    void showInRow(PropertyUI::PropertyEditorPanel *panel, PropertyUI::PropertyEditor *editor,
                   const QVariant &value);

    DelegatePointer m_delegate;
    QPointer<QUndoStack> m_stack;
    QVector<QPointer<PropertyUI::PropertyEditorPanel>> m_panels;
    QHash<const PropertyUI::Property *, quint64> m_openRuns; // 0 unless broken into
    QHash<const PropertyUI::Property *, bool> m_echoes;      // of groups that undo folds or opens
    quint64 m_run = 0;     // of the last change, so that a command merges only changes of its own
    quint64 m_lastRun = 0; // counts
    bool m_isRestoring = false;
};

} // namespace Tessark::PropertyHost
