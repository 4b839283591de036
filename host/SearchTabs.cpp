#include "host/SearchTabs_p.h"

#include <utility>

namespace Tessark::PropertyHost {

SearchTabs::SearchTabs(std::shared_ptr<const PanelRows> rows)
    : m_rows(std::move(rows))
{
    for (int row = 0; row < m_rows->count(); ++row) {
        if (m_rows->at(row).tabs)
            m_tabs.append(row);
    }
}

void SearchTabs::show(const QHash<int, int> &matches)
{
    for (const int tab : std::as_const(m_tabs))
        show(tab, matches.value(tab));
}

void SearchTabs::show(int tab, int matches)
{
    QTabWidget *const tabs = m_rows->at(tab).tabs;
    const int index = tabs ? tabs->indexOf(m_rows->at(tab).field) : -1;
    if (index < 0)
        return;
    const QString now = tabs->tabText(index);
    const Title title = m_counting.take(tab);
    const QString own = !title.shown.isEmpty() && now == title.shown ? title.own : now;
    const QString wanted =
        matches > 0 ? tr("%1 (%2)", "tab, matches on it").arg(own, QString::number(matches)) : own;
    if (matches > 0)
        m_counting.insert(tab, {own, wanted});
    if (wanted != now)
        tabs->setTabText(index, wanted);
}

} // namespace Tessark::PropertyHost
