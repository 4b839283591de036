#include "host/SearchTree_p.h"

#include <property/Property.h>
#include <property/PropertyVocabulary.h>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

int parentOf(const PanelRows &rows, int row)
{
    const PanelRow &widgets = rows.at(row);
    if (widgets.group >= 0)
        return widgets.group;
    const QObject *const around = widgets.tabs    ? widgets.tabs.data()
                                  : widgets.field ? widgets.field->parentWidget()
                                                  : nullptr;
    const int parent = rows.indexOf(around);
    return parent < row ? parent : -1; // what is around comes first
}

bool hasRows(const Property &property)
{
    return property.type == kPropertyTypeBeginGroup || property.type == kPropertyTypeTab
           || property.type == kPropertyTypeBeginTabGroup;
}

} // namespace

SearchTree::SearchTree(const PanelRows &rows)
    : m_rows(static_cast<std::size_t>(rows.count()))
{
    for (int row = 0; row < rows.count(); ++row) {
        m_rows[static_cast<std::size_t>(row)] = {parentOf(rows, row),
                                                 hasRows(*rows.at(row).property)};
    }
}

SearchResult SearchTree::search(const SearchFacts &facts) const
{
    const std::size_t count = m_rows.size();
    std::vector<bool> isOffered = facts.isOffered;
    std::vector<bool> isInside(count); // of what has the words itself
    std::vector<bool> isShown(count);
    std::vector<bool> isMatch(count);
    for (std::size_t row = 0; row < count; ++row) {
        if (m_rows[row].parent >= 0) {
            const auto parent = static_cast<std::size_t>(m_rows[row].parent);
            isOffered[row] = isOffered[row] && isOffered[parent];
            isInside[row] = isInside[parent] || (facts.isForWords && facts.hasWords[parent]);
        }
        const bool isWanted = isOffered[row] && (!facts.isForChanges || facts.isChanged[row]);
        isMatch[row] = isWanted && facts.hasWords[row];
        isShown[row] = isWanted && (isInside[row] || facts.hasWords[row]);
    }
    // What is inside comes later.
    for (std::size_t row = count; row-- > 0;) {
        if (facts.isForChanges && m_rows[row].hasRows)
            isMatch[row] = facts.isForWords && facts.hasWords[row] && isShown[row];
        if (isShown[row] && m_rows[row].parent >= 0)
            isShown[static_cast<std::size_t>(m_rows[row].parent)] = true;
    }
    SearchResult result{std::move(isShown), {}};
    for (std::size_t row = 0; row < count; ++row) {
        if (isMatch[row])
            result.matches.append(static_cast<int>(row));
    }
    return result;
}

} // namespace Tessark::PropertyHost
