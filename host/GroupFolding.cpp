#include "host/GroupFolding_p.h"

#include <property/PropertyEditor.h>
#include <property/PropertyVocabulary.h>

#include <QAbstractButton>
#include <QSignalBlocker>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

GroupFolding::GroupFolding(RowVisibility &visibility)
    : m_rows(visibility.sharedRows())
    , m_visibility(&visibility)
{
}

bool GroupFolding::isGroup(const PanelRow &row)
{
    return row.property->type == kPropertyTypeBeginGroup;
}

bool GroupFolding::isOpen(const PanelRow &row)
{
    return !row.editor || row.editor->value().toBool();
}

void GroupFolding::groupToggled(int row)
{
    if (row < 0 || !m_visibility)
        return;
    const bool isInside = m_visibility->reasons(row).testFlag(RowVisibility::GroupClosed);
    noteMembers(row, !isInside && isOpen(m_rows->at(row)));
    m_visibility->apply();
}

void GroupFolding::setOpen(int row, bool open)
{
    auto *const button = qobject_cast<QAbstractButton *>(m_rows->at(row).field);
    if (!button)
        return;
    const QSignalBlocker blocker(button);
    button->setChecked(open);
}

void GroupFolding::setAllOpen(bool open)
{
    for (int row = 0; row < m_rows->count(); ++row) {
        if (isGroup(m_rows->at(row)))
            setOpen(row, open);
    }
}

void GroupFolding::update()
{
    if (!m_visibility)
        return;
    for (int row = 0; row < m_rows->count(); ++row) {
        if (isGroup(m_rows->at(row)) && m_rows->at(row).group < 0)
            noteMembers(row, isOpen(m_rows->at(row)));
    }
    m_visibility->apply();
}

void GroupFolding::noteMembers(int row, bool shown)
{
    for (const int member : m_rows->at(row).members) {
        m_visibility->setHidden(member, RowVisibility::GroupClosed, !shown);
        if (isGroup(m_rows->at(member)))
            noteMembers(member, shown && isOpen(m_rows->at(member)));
    }
}

} // namespace Tessark::PropertyHost
