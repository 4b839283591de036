#include "host/SearchOrigin_p.h"

#include <property/Property.h>
#include <property/PropertyVocabulary.h>

#include <QSignalBlocker>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

SearchOrigin::SearchOrigin(ViewPanel &panel)
    : m_folding(panel.folding())
    , m_rows(panel.rows())
{
    noteAll();
}

bool SearchOrigin::isOpen(int group) const
{
    const Group states = m_groups.value(group);
    const bool isOpen = GroupFolding::isOpen(m_rows->at(group));
    return isOpen == states.made ? states.before : isOpen;
}

int SearchOrigin::currentTab(int tabGroup) const
{
    const Tabs states = m_tabs.value(tabGroup);
    const int shown = shownTab(tabGroup);
    return shown == states.made ? states.before : shown;
}

void SearchOrigin::note(int group)
{
    m_groups[group] = {isOpen(group), GroupFolding::isOpen(m_rows->at(group))};
}

void SearchOrigin::noteAll()
{
    for (int row = 0; row < m_rows->count(); ++row) {
        const PanelRow &widgets = m_rows->at(row);
        if (GroupFolding::isGroup(widgets))
            m_groups[row] = {GroupFolding::isOpen(widgets), GroupFolding::isOpen(widgets)};
        else if (widgets.property->type == kPropertyTypeBeginTabGroup)
            m_tabs[row] = {shownTab(row), shownTab(row)};
    }
}

void SearchOrigin::arrangeGroup(int group, bool open)
{
    const bool before = isOpen(group);
    if (GroupFolding::isOpen(m_rows->at(group)) != open)
        m_folding.setOpen(group, open);
    m_groups[group] = {before, GroupFolding::isOpen(m_rows->at(group))};
}

void SearchOrigin::arrangeTab(int tab)
{
    const int tabGroup = tabGroupOf(tab);
    if (tabGroup < 0)
        return;
    const int before = currentTab(tabGroup);
    QTabWidget *const tabs = m_rows->at(tab).tabs;
    {
        // The current tab belongs to the user: to show another is no edit.
        const QSignalBlocker blocker(tabs);
        tabs->setCurrentWidget(m_rows->at(tab).field);
    }
    m_tabs[tabGroup] = {before, shownTab(tabGroup)};
}

void SearchOrigin::keepOpen(int group)
{
    arrangeGroup(group, true);
    m_groups[group].before = true;
}

void SearchOrigin::keepTab(int tab)
{
    arrangeTab(tab);
    if (tabGroupOf(tab) >= 0)
        m_tabs[tabGroupOf(tab)].before = tab;
}

void SearchOrigin::giveBack()
{
    const QList<int> groups = m_groups.keys();
    for (const int group : groups)
        arrangeGroup(group, isOpen(group));
    const QList<int> tabGroups = m_tabs.keys();
    for (const int tabGroup : tabGroups) {
        if (currentTab(tabGroup) >= 0 && currentTab(tabGroup) != shownTab(tabGroup))
            arrangeTab(currentTab(tabGroup));
    }
}

int SearchOrigin::shownTab(int tabGroup) const
{
    const auto *const tabs = qobject_cast<QTabWidget *>(m_rows->at(tabGroup).field);
    return tabs && tabs->currentWidget() ? m_rows->indexOf(tabs->currentWidget()) : -1;
}

/// -1 where the tab or its tab group is gone.
int SearchOrigin::tabGroupOf(int tab) const
{
    const PanelRow &widgets = m_rows->at(tab);
    return widgets.tabs && widgets.field ? m_rows->indexOf(widgets.tabs) : -1;
}

} // namespace Tessark::PropertyHost
