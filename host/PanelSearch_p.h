#pragma once

#include "host/ChangedRows_p.h"
#include "host/SearchHighlight_p.h"
#include "host/SearchIndex_p.h"
#include "host/SearchMark_p.h"
#include "host/SearchOrigin_p.h"
#include "host/SearchTabs_p.h"
#include "host/SearchTree_p.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

namespace Tessark::PropertyHost {

/**
 * Shows, of the rows of a panel, those that are searched for: the others are hidden, groups around
 * matches opened, labels and tabs marked. Silent: what it opens is no edit.
 *
 * It can be deleted at any time, as the panel and everything else may be by what a row calls that
 * comes or goes; each function may be the last. end() shows the rows again.
 */
class PanelSearch final : public QObject
{
    Q_OBJECT

public:
    /// What there is to search is read now. The panel owns this object.
    explicit PanelSearch(ViewPanel &panel);
    ~PanelSearch() override;

    /// What the user has arranged, and what is given back.
    SearchOrigin &origin() { return m_origin; }
    const SearchOrigin &origin() const { return m_origin; }

    /// Shows the rows with all words of the text and, if onlyChanged, another value than their
    /// default; all for an empty text without it.
    void search(const QString &text, bool onlyChanged);

    bool isSearching() const { return !m_words.isEmpty() || m_isOnlyChanged; }

    /// Reads the texts of the rows of the property again.
    void update(const PropertyUI::Property *property);

    /// Values may be others: shows rows that are changed now as well. Those that are not any more
    /// stay until the next search().
    void valuesChanged();

    /// Rows of matches, in panel order.
    const QVector<int> &matches() const { return m_matches; }

    /// Where in matches() the user is, or -1.
    int current() const;

    /// Makes this one of matches() the current one: opens what is around it. The caller scrolls.
    void setCurrent(int match);

    /// Goes on after something else has arranged groups and tabs; origin().giveBack() comes before.
    void takeAgain();

    /// Shows all rows, and what was open before; what is around the current match stays open.
    void end();

Q_SIGNALS:
    /// Matches, or the current one, are others.
    void matchesChanged();

private:
    enum class Groups {
        Open, // those around matches
        Leave,
    };

    bool noteChanges();
    void addChangedRows();
    SearchFacts facts();
    void apply(Groups groups);
    void arrangeGroups(const std::vector<bool> &isShown, Groups groups);
    bool showRows();
    void markTabs();
    void rowsChanged();
    void showMark();
    QVector<int> rowsAround(int row) const;

    ViewPanel &m_panel;
    std::shared_ptr<const PanelRows> m_rows;
    SearchOrigin m_origin;
    SearchIndex m_index;
    SearchTree m_tree;
    ChangedRows m_changedRows;
    SearchHighlight m_highlight;
    SearchTabs m_tabs;
    QPointer<SearchMark> m_mark; // owned by the page of the row
    QStringList m_words;
    bool m_isOnlyChanged = false;
    std::vector<bool> m_isChanged; // by row, since the last search()
    std::vector<bool> m_isShown;   // by row, of the result before
    QVector<int> m_matches;
    int m_current = -1; // row
    bool m_isApplying = false;
    bool m_isValueCheckPending = false;
};

} // namespace Tessark::PropertyHost
