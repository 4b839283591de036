#include "host/PanelSearch_p.h"

#include "host/SearchText_p.h"
#include "host/SearchedTexts_p.h"

#include <property/Property.h>

#include <QHash>

namespace Tessark::PropertyHost {

using PropertyUI::Property;

PanelSearch::PanelSearch(ViewPanel &panel)
    : QObject(&panel)
    , m_panel(panel)
    , m_rows(panel.rows())
    , m_origin(panel)
    , m_index(m_rows->count())
    , m_tree(*m_rows)
    , m_changedRows(DelegateChain(panel.source()))
    , m_highlight(m_rows, &panel)
    , m_tabs(m_rows)
    , m_isChanged(m_rows->all().size())
    , m_isShown(m_rows->all().size(), true)
{
    for (int row = 0; row < m_rows->count(); ++row)
        m_index.setTexts(row, textsOfRow(*m_rows->at(row).property));
    connect(&panel, &ViewPanel::valueEdited, this, &PanelSearch::valuesChanged);
    connect(&panel.visibility(), &RowVisibility::rowsChanged, this, &PanelSearch::rowsChanged);
}

PanelSearch::~PanelSearch()
{
    delete m_mark;
}

void PanelSearch::search(const QString &text, bool onlyChanged)
{
    m_words = searchWords(text);
    m_isOnlyChanged = onlyChanged;
    m_isChanged.assign(m_isChanged.size(), false);
    if (noteChanges())
        apply(Groups::Open);
}

void PanelSearch::update(const Property *property)
{
    const QVector<int> rows = m_rows->indexesOf(property);
    for (const int row : rows)
        m_index.setTexts(row, textsOfRow(*property));
    if (isSearching() && !rows.isEmpty())
        apply(Groups::Leave);
}

/// Not now: other values may follow this one, and be worked out by the host.
void PanelSearch::valuesChanged()
{
    if (!m_isOnlyChanged || m_isValueCheckPending)
        return;
    m_isValueCheckPending = true;
    QMetaObject::invokeMethod(this, &PanelSearch::addChangedRows, Qt::QueuedConnection);
}

int PanelSearch::current() const
{
    return static_cast<int>(m_matches.indexOf(m_current));
}

void PanelSearch::setCurrent(int match)
{
    const QPointer<PanelSearch> self(this);
    m_current = m_matches.value(match, -1);
    const QVector<int> rows = rowsAround(m_current);
    for (int i = 0; self && i < rows.size(); ++i) {
        if (m_rows->at(rows.at(i)).tabs)
            m_origin.arrangeTab(rows.at(i));
        else if (GroupFolding::isGroup(m_rows->at(rows.at(i))) && rows.at(i) != m_current)
            m_origin.arrangeGroup(rows.at(i), true);
    }
    if (!self || !showRows())
        return;
    showMark();
    Q_EMIT matchesChanged();
}

void PanelSearch::takeAgain()
{
    m_origin.noteAll();
    apply(Groups::Open);
}

void PanelSearch::end()
{
    const QPointer<PanelSearch> self(this);
    const QVector<int> kept = rowsAround(m_current);
    for (const int row : kept) {
        if (m_rows->at(row).tabs)
            m_origin.keepTab(row);
        else if (GroupFolding::isGroup(m_rows->at(row)) && row != m_current)
            m_origin.keepOpen(row);
    }
    m_origin.giveBack();
    if (!self)
        return;
    m_current = -1;
    search(QString(), false);
}

/// Adds the rows that are changed now. False if this is not there any more: a host may be asked.
bool PanelSearch::noteChanges()
{
    const QPointer<PanelSearch> self(this);
    for (int row = 0; m_isOnlyChanged && row < m_rows->count(); ++row) {
        if (m_isChanged[static_cast<std::size_t>(row)])
            continue;
        const bool isChanged = m_changedRows.isChanged(m_rows->at(row));
        if (!self)
            return false;
        m_isChanged[static_cast<std::size_t>(row)] = isChanged;
    }
    return true;
}

void PanelSearch::addChangedRows()
{
    m_isValueCheckPending = false;
    if (m_isOnlyChanged && noteChanges())
        apply(Groups::Leave);
}

SearchFacts PanelSearch::facts()
{
    SearchFacts facts(m_rows->count());
    facts.isForWords = !m_words.isEmpty();
    facts.isForChanges = m_isOnlyChanged;
    facts.isChanged = m_isChanged;
    constexpr auto kOthers = RowVisibility::Reasons(RowVisibility::Rule) | RowVisibility::Host;
    for (int row = 0; row < m_rows->count(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        facts.hasWords[at] = m_index.matches(row, m_words);
        facts.isOffered[at] =
            m_rows->at(row).field && !(m_panel.visibility().currentReasons(row) & kOthers);
    }
    return facts;
}

void PanelSearch::apply(Groups groups)
{
    SearchResult result{std::vector<bool>(m_isShown.size(), true), {}};
    if (isSearching())
        result = m_tree.search(facts());
    m_matches = result.matches;
    for (int row = 0; row < m_rows->count(); ++row) {
        // The tabs of a tab group are seen all or none.
        const bool isShown = m_rows->at(row).tabs || result.isShown[static_cast<std::size_t>(row)];
        m_panel.visibility().setHidden(row, RowVisibility::Filter, !isShown);
    }
    arrangeGroups(result.isShown, groups);
    m_isShown = result.isShown;
    if (!showRows())
        return;
    m_highlight.show(m_words, m_matches);
    markTabs();
    if (current() < 0)
        m_current = -1;
    showMark();
    Q_EMIT matchesChanged();
}

/// Opens groups that have something to show, or those of them that were not there before.
void PanelSearch::arrangeGroups(const std::vector<bool> &isShown, Groups groups)
{
    std::vector<bool> hasShown(isShown.size());
    for (int row = 0; row < m_rows->count(); ++row) {
        if (isShown[static_cast<std::size_t>(row)] && m_tree.parent(row) >= 0)
            hasShown[static_cast<std::size_t>(m_tree.parent(row))] = true;
    }
    for (int row = 0; row < m_rows->count(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        if (!GroupFolding::isGroup(m_rows->at(row)))
            continue;
        if (groups == Groups::Open || !m_isShown[at])
            m_origin.arrangeGroup(row, m_origin.isOpen(row) || (isSearching() && hasShown[at]));
        else
            m_origin.note(row);
    }
}

/// False if this is not there any more: rows that come or go may run code of the host.
bool PanelSearch::showRows()
{
    const QPointer<PanelSearch> self(this);
    m_isApplying = true;
    m_panel.folding().update();
    if (self)
        m_isApplying = false;
    return self;
}

void PanelSearch::markTabs()
{
    QHash<int, int> matches;
    for (const int match : std::as_const(m_matches)) {
        for (int row = match; isSearching() && row >= 0; row = m_tree.parent(row))
            matches[row] += m_rows->at(row).tabs ? 1 : 0;
    }
    m_tabs.show(matches);
}

/// What others did: rules, the host, and the user with groups.
void PanelSearch::rowsChanged()
{
    if (!m_isApplying)
        apply(Groups::Leave);
}

/// Tabs need no mark: the current one is seen to be so.
void PanelSearch::showMark()
{
    delete m_mark;
    if (m_current < 0 || m_rows->at(m_current).tabs || !m_rows->at(m_current).field)
        return;
    const PanelRow &row = m_rows->at(m_current);
    m_mark = new SearchMark(row.field->parentWidget(), row.label, row.field);
}

/// The row, if there is one, and what it lies in, from the outside to the inside.
QVector<int> PanelSearch::rowsAround(int row) const
{
    QVector<int> rows;
    for (; row >= 0; row = m_tree.parent(row))
        rows.prepend(row);
    return rows;
}

} // namespace Tessark::PropertyHost
