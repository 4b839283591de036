#pragma once

#include "host/PanelRows_p.h"

#include <QCoreApplication>
#include <QHash>

#include <memory>

namespace Tessark::PropertyHost {

/// Shows on the tabs of a panel how many matches of a search their pages have: "Shape (2)". A title
/// that the host changes meanwhile is taken over.
class SearchTabs
{
    Q_DECLARE_TR_FUNCTIONS(Tessark::PropertyHost::SearchTabs)

public:
    explicit SearchTabs(std::shared_ptr<const PanelRows> rows);

    /// The matches by row of the tab; none for any other tab.
    void show(const QHash<int, int> &matches);

private:
    struct Title
    {
        QString own;
        QString shown;
    };

    void show(int tab, int matches);

    std::shared_ptr<const PanelRows> m_rows;
    QVector<int> m_tabs;          // rows
    QHash<int, Title> m_counting; // by row, those that show a number
};

} // namespace Tessark::PropertyHost
