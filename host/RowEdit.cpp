#include "host/RowEdit_p.h"

#include "host/ChangedRows_p.h"
#include "host/FocusedField_p.h"
#include "host/SelectionDelegate.h"
#include "host/ValueKind_p.h"
#include "host/ViewPanel_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>

#include <QAbstractSpinBox>
#include <QUndoStack>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

ViewPanel *panelOf(const PropertyEditor &editor)
{
    return static_cast<ViewPanel *>(editor.parent());
}

/// The editor, which has to be alive, shows the value in all of its fields, silently.
void showIn(PropertyEditor &editor, const QVariant &value)
{
    const QPointer<PropertyEditor> alive(&editor);
    editor.setValue(value);
    if (alive)
        showInFocusedField(editor, value);
}

/// Tells the host, as the panel does of any edit. A field with the focus has a run, which would take it
/// for one more edit of its own.
void announceAlone(PropertyEditor &editor, const QVariant &value)
{
    const QPointer<PropertyEditor> alive(&editor);
    const QPointer<QAbstractSpinBox> field = focusedFieldOf(editor);
    if (field)
        Q_EMIT editor.endInteractiveChange();
    if (alive)
        panelOf(editor)->announce(editor, value);
    if (alive && field && field->hasFocus())
        Q_EMIT alive->startInteractiveChange();
}

} // namespace

RowEdit::RowEdit(const DelegateChain &delegates)
    : m_delegates(delegates)
{
}

void RowEdit::setToDefault(const PanelRow &row) const
{
    m_delegates.flush();
    SelectionDelegate *const selection = row.editor ? m_delegates.selection() : nullptr;
    if (selection && selection->setToDefault(row.property))
        show(row);
    else
        setToOwnDefault(row);
}

/// The one of the property.
void RowEdit::setToOwnDefault(const PanelRow &row)
{
    const QPointer<PropertyEditor> editor = row.editor;
    const QVariant value = editor ? row.property->defaultValue : QVariant();
    if (value.isNull())
        return;
    showIn(*editor, value);
    // A default that the fields cannot hold would else remain one that the row differs from.
    if (editor)
        announceAlone(*editor,
                      differsFromDefault(*row.property, editor->value()) ? value : QVariant());
}

void RowEdit::set(const PanelRow &row, const QVariant &value) const
{
    const QPointer<PropertyEditor> editor = row.editor;
    if (!editor)
        return;
    showIn(*editor, value);
    SelectionDelegate *const selection = editor ? m_delegates.selection() : nullptr;
    if (selection && selection->isMixed(row.property)) {
        // In such a row an edit is about the fields that it changes; this one is about all of them.
        const QVariant shown = editor->value();
        m_delegates.flush();
        if (selection == m_delegates.selection() && selection->assign(row.property, shown))
            show(row);
    } else if (editor) {
        // The editor would tell a picture without the path that it came from.
        const bool isPicture = typeTraits(row.property->type).kind == ValueKind::Picture;
        announceAlone(*editor, isPicture ? value : QVariant());
    }
}

std::optional<Problem> RowEdit::change(const PanelRow &row, const RelativeEdit &edit) const
{
    m_delegates.flush();
    SelectionDelegate *const selection = row.editor ? m_delegates.selection() : nullptr;
    if (!selection)
        return std::nullopt;
    auto problem = selection->applyRelative(row.property, edit.operation, edit.operand);
    if (!problem)
        show(row);
    return problem;
}

void RowEdit::asOneStep(const QString &name, const std::function<void()> &edits) const
{
    const QPointer<QUndoStack> stack = m_delegates.undoStack();
    if (stack)
        stack->beginMacro(name);
    edits();
    if (stack)
        stack->endMacro();
}

/// What the row holds now. The panel asks for it, so everything that stands in front of the delegate
/// hears of it.
void RowEdit::show(const PanelRow &row) const
{
    const QPointer<PropertyEditor> editor = row.editor;
    const QVariant value = editor ? panelOf(*editor)->value(row.property) : QVariant();
    if (editor)
        showIn(*editor, value);
}

} // namespace Tessark::PropertyHost
