#pragma once

#include "host/RowVisibility_p.h"

#include <QPointer>

#include <memory>

namespace Tessark::PropertyHost {

/**
 * Opens and closes the groups of a panel, those on tab pages too. A group that is inside of another
 * one stays as it is when that one opens or closes.
 */
class GroupFolding
{
public:
    explicit GroupFolding(RowVisibility &visibility);

    static bool isGroup(const PanelRow &row);
    static bool isOpen(const PanelRow &row);

    /// Shows or hides the rows of a group that was toggled.
    void groupToggled(int row);

    /// Opens or closes groups, silently. update() makes the rows follow.
    void setOpen(int row, bool open);
    void setAllOpen(bool open);
    void update();

private:
    void noteMembers(int row, bool shown);

    std::shared_ptr<const PanelRows> m_rows;
    QPointer<RowVisibility> m_visibility;
};

} // namespace Tessark::PropertyHost
