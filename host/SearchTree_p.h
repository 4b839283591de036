#pragma once

#include "host/PanelRows_p.h"

#include <vector>

namespace Tessark::PropertyHost {

/// What each row is to a search: by row, all of the same length.
struct SearchFacts
{
    explicit SearchFacts(int rows)
        : hasWords(static_cast<std::size_t>(rows))
        , isChanged(static_cast<std::size_t>(rows))
        , isOffered(static_cast<std::size_t>(rows))
    {
    }

    bool isForWords = false;     // words are looked for
    bool isForChanges = false;   // only rows with another value than the default
    std::vector<bool> hasWords;  // all of them
    std::vector<bool> isChanged; // read only if isForChanges
    std::vector<bool> isOffered; // neither rules nor the host hide the row itself
};

struct SearchResult
{
    std::vector<bool> isShown; // by row
    QVector<int> matches;      // rows, in panel order
};

/// How the rows of a panel lie inside each other: in groups, on tab pages, and these in tab groups.
class SearchTree
{
public:
    explicit SearchTree(const PanelRows &rows);

    /// The group, tab or tab group that the row lies in, or -1.
    int parent(int row) const { return at(row).parent; }

    /// Which rows a search shows. A match shows everything around it, and a group, tab or tab group
    /// that is one all that it has inside.
    SearchResult search(const SearchFacts &facts) const;

private:
    struct Row
    {
        int parent = -1;
        bool hasRows = false; // is a group, tab or tab group
    };

    const Row &at(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    std::vector<Row> m_rows;
};

} // namespace Tessark::PropertyHost
