#include "host/UndoDelegate.h"

#include "host/FocusedField_p.h"
#include "host/UndoRun_p.h"
#include "host/ValueJson.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <QAbstractButton>
#include <QUndoStack>

#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool isGroup(const Property &property)
{
    return property.type == kPropertyTypeBeginGroup;
}

/// The editors of a property in a panel; any of them may go while the others are worked on.
QVector<QPointer<PropertyEditor>> editorsOf(const PropertyEditorPanel &panel,
                                            const Property *property)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, property->type);
    QVector<QPointer<PropertyEditor>> result;
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (editor && editor->editedProperty() == property)
            result.append(editor);
    }
    return result;
}

} // namespace

class UndoDelegate::Command final : public UndoRun
{
public:
    Command(UndoDelegate *owner, Property *property, const QVariant &before, const QVariant &after)
        : UndoRun(owner, property, owner->m_run)
        , m_owner(owner)
        , m_property(property)
        , m_before(before)
        , m_after(after)
        , m_isFolding(isGroup(*property))
    {
    }

    bool isFolding() const { return m_isFolding; }

protected:
    void restoreOrigin() override { restore(m_before); }

    void restoreOutcome() override { restore(m_after); }

    bool takeOutcome(const UndoRun &later) override
    {
        m_after = static_cast<const Command &>(later).m_after;
        return !isSameValue(*m_property, m_after, m_before);
    }

private:
    void restore(const QVariant &value)
    {
        if (m_owner)
            m_owner->restore(m_property, value);
    }

    QPointer<UndoDelegate> m_owner;
    Property *m_property;
    QVariant m_before;
    QVariant m_after;
    bool m_isFolding;
};

UndoDelegate::UndoDelegate(IPropertyEditorDelegate *delegate, QUndoStack *stack, QObject *parent)
    : QObject(parent)
    , m_delegate(delegate)
    , m_stack(stack)
{
}

UndoDelegate::~UndoDelegate() = default;

IPropertyEditorDelegate *UndoDelegate::delegate() const
{
    return m_delegate.get();
}

void UndoDelegate::setDelegate(IPropertyEditorDelegate *delegate)
{
    m_delegate = DelegatePointer(delegate);
}

QUndoStack *UndoDelegate::undoStack() const
{
    return m_stack;
}

void UndoDelegate::attach(PropertyEditorPanel *panel)
{
    if (!panel || m_panels.contains(panel))
        return;
    m_panels.removeAll(QPointer<PropertyEditorPanel>()); // those that were deleted
    m_panels.append(panel);
    QVector<PropertyEditor *> editors;
    panel->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (editor)
            watchRuns(editor);
    }
}

bool UndoDelegate::isFolding(const QUndoCommand *command)
{
    const auto *const own = dynamic_cast<const Command *>(command);
    return own && own->isFolding();
}

void UndoDelegate::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    if (!delegate())
        return;
    breakIntoRuns(property);
    if (isGroup(*property)) {
        setGroupOpen(property, value.toBool(), flags);
        return;
    }
    if (m_isRestoring || !carriesValue(property->type)) {
        delegate()->setValue(property, value, flags);
        return;
    }
    // The inner delegate is written first and asked what it took over. The callback may delete
    // anything, and a stack must not be deleted while it pushes a command.
    const QPointer<UndoDelegate> self(this);
    const QVariant before = delegate()->value(property);
    if (!self || !delegate())
        return;
    m_run = runOf(property, flags);
    delegate()->setValue(property, value, flags);
    if (!self || !delegate())
        return;
    const QVariant after = delegate()->value(property);
    if (self)
        record(property, before, after);
}

QVariant UndoDelegate::value(Property *property)
{
    return delegate() ? delegate()->value(property) : QVariant();
}

/// Whether a group is open belongs to the panel, whatever the inner delegate keeps of it; before the
/// toggle it was the opposite.
void UndoDelegate::setGroupOpen(Property *group, bool isOpen, ChangeFlags flags)
{
    const auto echo = m_echoes.constFind(group);
    if (echo != m_echoes.constEnd()) {
        const bool isEcho = *echo == isOpen;
        m_echoes.erase(echo);
        if (isEcho)
            return; // written already
    }
    const QPointer<UndoDelegate> self(this);
    m_run = ++m_lastRun;
    delegate()->setValue(group, isOpen, flags);
    if (self && !m_isRestoring)
        record(group, !isOpen, isOpen);
}

void UndoDelegate::watchRuns(PropertyEditor *editor)
{
    const Property *const property = editor->editedProperty();
    const auto end = [this, property] { m_openRuns.remove(property); };
    connect(editor, &PropertyEditor::startInteractiveChange, this,
            [this, property] { m_openRuns.insert(property, 0); });
    connect(editor, &PropertyEditor::endInteractiveChange, this, end);
    connect(editor, &QObject::destroyed, this, end);
}

/// A focused field keeps its run open while another row is edited, by the wheel for example. The panel
/// takes all changes after that for lone ones; here they are a run again.
void UndoDelegate::breakIntoRuns(const Property *changed)
{
    for (auto run = m_openRuns.begin(); run != m_openRuns.end(); ++run) {
        if (run.key() != changed && *run == 0)
            *run = ++m_lastRun;
    }
}

quint64 UndoDelegate::runOf(const Property *property, ChangeFlags flags)
{
    if (flags & ContinuedChange)
        return m_run;
    const quint64 broken = m_openRuns.value(property, 0);
    return broken != 0 ? broken : ++m_lastRun;
}

void UndoDelegate::endAllRuns()
{
    m_run = ++m_lastRun;
    for (quint64 &run : m_openRuns) {
        if (run != 0)
            run = ++m_lastRun;
    }
}

void UndoDelegate::record(Property *property, const QVariant &before, const QVariant &after)
{
    if (m_stack && !isSameValue(*property, before, after))
        m_stack->push(new Command(this, property, before, after));
}

void UndoDelegate::restore(Property *property, const QVariant &value)
{
    if (!delegate())
        return;
    const QPointer<UndoDelegate> self(this);
    endAllRuns();
    m_isRestoring = true;
    delegate()->setValue(property, value, NewChange);
    if (self)
        showRestored(property, value);
    if (self)
        Q_EMIT valueRestored(property);
    if (self)
        m_isRestoring = false;
}

void UndoDelegate::showRestored(Property *property, const QVariant &value)
{
    const QPointer<UndoDelegate> self(this);
    const auto panels = m_panels; // a callback may attach one more
    for (const QPointer<PropertyEditorPanel> &panel : panels) {
        const auto editors =
            self && panel ? editorsOf(*panel, property) : QVector<QPointer<PropertyEditor>>();
        for (const QPointer<PropertyEditor> &editor : editors) {
            if (self && panel && editor)
                showInRow(panel, editor, value);
        }
    }
}

void UndoDelegate::showInRow(PropertyEditorPanel *panel, PropertyEditor *editor,
                             const QVariant &value)
{
    Property *const property = editor->editedProperty();
    const QPointer<PropertyEditor> alive(editor);
    if (!isGroup(*property)) {
        const QVariant shown = panel->value(property);
        if (alive)
            alive->setValue(shown);
        if (alive)
            showInFocusedField(*alive, shown);
        return;
    }
    // Editors of groups show no values: the user's way is the only one.
    auto *const box = qobject_cast<QAbstractButton *>(editor->widget(nullptr));
    if (!box || box->isChecked() == value.toBool())
        return;
    m_echoes.insert(property, value.toBool());
    box->setChecked(value.toBool());
}

} // namespace Tessark::PropertyHost
