#include "host/UndoDelegate.h"

#include "host/ValueJson.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

#include <QUndoCommand>
#include <QUndoStack>

namespace Tessark::PropertyHost {

namespace {

constexpr int kCommandId = 0x50726f70; // one id for all, mergeWith() tells properties apart

bool hasUndoableValue(const PropertyUI::Property &property)
{
    const TypeTraits traits = typeTraits(property.type);
    return !traits.structural && traits.kind != ValueKind::None;
}

QString commandText(const PropertyUI::Property &property)
{
    return property.label.isEmpty() ? property.name : property.label;
}

} // namespace

/// One undo step: a lone change or a whole interactive run of one property.
class UndoDelegate::Command final : public QUndoCommand
{
public:
    Command(UndoDelegate *owner, PropertyUI::Property *property, const QVariant &before,
            const QVariant &after)
        : QUndoCommand(commandText(*property))
        , m_owner(owner)
        , m_property(property)
        , m_run(owner->m_run)
        , m_before(before)
        , m_after(after)
    {
    }

    int id() const override { return kCommandId; }

    void undo() override { restore(m_before); }

    void redo() override
    {
        // The stack calls it on push too, when the inner delegate has the value already.
        if (m_pushed)
            restore(m_after);
        m_pushed = true;
    }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *const next = static_cast<const Command *>(other);
        if (next->m_owner != m_owner || next->m_property != m_property || next->m_run != m_run)
            return false;
        m_after = next->m_after;
        setObsolete(isSameValue(*m_property, m_after, m_before));
        return true;
    }

private:
    void restore(const QVariant &value)
    {
        if (m_owner)
            m_owner->restore(m_property, value);
    }

    QPointer<UndoDelegate> m_owner;
    PropertyUI::Property *m_property;
    quint64 m_run;
    QVariant m_before;
    QVariant m_after;
    bool m_pushed = false;
};

UndoDelegate::UndoDelegate(PropertyUI::IPropertyEditorDelegate *delegate, QUndoStack *stack,
                           QObject *parent)
    : QObject(parent)
    , m_delegate(delegate)
    , m_stack(stack)
{
}

UndoDelegate::~UndoDelegate() = default;

PropertyUI::IPropertyEditorDelegate *UndoDelegate::delegate() const
{
    return m_delegate.get();
}

void UndoDelegate::setDelegate(PropertyUI::IPropertyEditorDelegate *delegate)
{
    m_delegate = DelegatePointer(delegate);
}

void UndoDelegate::setValue(PropertyUI::Property *property, const QVariant &value,
                            ChangeFlags flags)
{
    if (!delegate())
        return;
    if (!hasUndoableValue(*property)) {
        delegate()->setValue(property, value, flags);
        return;
    }
    // The inner delegate is written first and asked what it took over. The callback may delete
    // anything, and a stack must not be deleted while it pushes a command.
    const QPointer<UndoDelegate> self(this);
    const QVariant before = delegate()->value(property);
    if (!self || !delegate())
        return;
    if (!(flags & ContinuedChange))
        ++m_run;
    delegate()->setValue(property, value, flags);
    if (!self || !delegate())
        return;
    const QVariant after = delegate()->value(property);
    if (self)
        record(property, before, after);
}

QVariant UndoDelegate::value(PropertyUI::Property *property)
{
    return delegate() ? delegate()->value(property) : QVariant();
}

void UndoDelegate::restore(PropertyUI::Property *property, const QVariant &value)
{
    if (!delegate())
        return;
    const QPointer<UndoDelegate> self(this);
    delegate()->setValue(property, value, NewChange);
    if (self)
        Q_EMIT valueRestored(property);
}

void UndoDelegate::record(PropertyUI::Property *property, const QVariant &before,
                          const QVariant &after)
{
    if (m_stack && !isSameValue(*property, before, after))
        m_stack->push(new Command(this, property, before, after));
}

} // namespace Tessark::PropertyHost
