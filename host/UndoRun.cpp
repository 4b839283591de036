#include "host/UndoRun_p.h"

#include <property/Property.h>

#include <utility>

namespace Tessark::PropertyHost {

namespace {

constexpr int kCommandId = 0x50726f70; // one id for all, mergeWith() tells runs apart

} // namespace

UndoRun::UndoRun(const QObject *owner, const PropertyUI::Property *property, quint64 run)
    : QUndoCommand(property->label.isEmpty() ? property->name : property->label)
    , m_owner(owner)
    , m_property(property)
    , m_run(run)
{
}

int UndoRun::id() const
{
    return kCommandId;
}

void UndoRun::undo()
{
    restoreOrigin();
}

void UndoRun::redo()
{
    if (std::exchange(m_isPushed, true))
        restoreOutcome();
}

bool UndoRun::mergeWith(const QUndoCommand *other)
{
    const auto *const later = dynamic_cast<const UndoRun *>(other);
    if (!later || !m_owner || later->m_owner != m_owner || later->m_property != m_property
        || later->m_run != m_run)
        return false;
    setObsolete(!takeOutcome(*later));
    return true;
}

} // namespace Tessark::PropertyHost
