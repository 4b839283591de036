#pragma once

#include "host/PanelState_p.h"
#include "host/ViewPanel_p.h"

#include <QHash>

#include <memory>
#include <optional>

namespace Tessark::PropertyHost {

/**
 * What the user has arranged in a panel while a search arranges it otherwise: open groups, current
 * tabs, the place that is scrolled to and the focus. Groups that the user opens or closes and tabs that
 * he chooses meanwhile count as well.
 */
class SearchOrigin
{
public:
    std::optional<PanelState::Place> place;
    std::optional<PanelState::Focus> focus;

    /// Groups and tabs as they are now; the others are the caller's. The panel must outlive this
    /// object.
    explicit SearchOrigin(ViewPanel &panel);

    /// Whether the user has the group open.
    bool isOpen(int group) const;

    /// The page that the user has chosen of a tab group: its row, or -1.
    int currentTab(int tabGroup) const;

    /// Notes what the user has done to the group.
    void note(int group);

    /// Takes what is shown now of all groups and tabs for what the user has arranged.
    void noteAll();

    /// Opens or closes a group, and makes a tab the current one, for the search. Silent; rows of the
    /// group do not follow yet.
    void arrangeGroup(int group, bool open);
    void arrangeTab(int tab);

    /// The same, for good.
    void keepOpen(int group);
    void keepTab(int tab);

    /// Arranges everything as the user has it. Silent; rows of groups do not follow yet.
    void giveBack();

private:
    struct Group
    {
        bool before = false;
        bool made = false; // by the search
    };
    struct Tabs
    {
        int before = -1;
        int made = -1;
    };

    int shownTab(int tabGroup) const;
    int tabGroupOf(int tab) const;

    GroupFolding &m_folding;
    std::shared_ptr<const PanelRows> m_rows;
    QHash<int, Group> m_groups; // by row
    QHash<int, Tabs> m_tabs;    // by row of the tab group
};

} // namespace Tessark::PropertyHost
