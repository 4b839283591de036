#pragma once

#include "host/PanelState_p.h"
#include "host/ViewPanel_p.h"

#include <memory>
#include <optional>

class QScrollArea;

namespace Tessark::PropertyHost {

class SearchOrigin;

/// Reads what the user has arranged in the panel of a view, and arranges it so again. Silent.
class PanelMemory
{
public:
    /// All must outlive this object. While the panel is searched, origin says what the user has
    /// arranged; null otherwise.
    PanelMemory(ViewPanel &panel, QScrollArea &area, const SearchOrigin *origin = nullptr);

    /// Without the width of the label column.
    PanelState state() const;

    /// Each is for a part of the state; rows that the panel does not have are passed over. Host code
    /// may run and delete the panel, since rows come and go and the focus moves.
    void restoreGroupsAndTabs(const PanelState &state);
    void restorePlace(const std::optional<PanelState::Place> &place); // it must be laid out
    void restoreFocus(const PanelState::Focus &focus);

private:
    QMap<QString, QVector<int>> rowsByName(const QString &type) const;
    RowName nameOf(int row) const;
    int find(const RowName &name) const;
    bool isInView(int row) const;
    int topOf(int row) const;
    bool isOpen(int group) const;
    int currentTab(int tabGroup, const QTabWidget &tabs) const;
    std::optional<PanelState::Place> place() const;
    std::optional<PanelState::Focus> focus() const;
    void restoreTab(const PanelRow &tabGroup, const PanelState::Tab &tab) const;

    ViewPanel &m_panel;
    QScrollArea &m_area;
    const SearchOrigin *m_origin;
    std::shared_ptr<const PanelRows> m_rows;
};

} // namespace Tessark::PropertyHost
