#include "host/RuleCycles_p.h"

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

/// A row on the way of a search, and how many of its edges were followed.
struct Step
{
    int row;
    std::size_t next = 0;
    int rule; // that led to the row
};

enum class Mark { New, OnTheWay, Done };

RuleGraph::Circle closeCircle(const std::vector<Step> &way, int target, int closingRule)
{
    RuleGraph::Circle circle;
    circle.rule = closingRule;
    const auto first = std::find_if(way.cbegin(), way.cend(),
                                    [target](const Step &step) { return step.row == target; });
    for (auto step = first; step != way.cend(); ++step) {
        circle.rows.append(step->row);
        if (step != first && circle.rule == RuleGraph::kNoRule)
            circle.rule = step->rule;
    }
    return circle;
}

} // namespace

RuleGraph::RuleGraph(int rowCount)
    : m_edges(static_cast<std::size_t>(rowCount))
{
}

void RuleGraph::add(int row, int dependsOn, int rule)
{
    m_edges[static_cast<std::size_t>(row)].push_back({dependsOn, rule});
}

/// Searches in depth, without recursion: a list may chain any number of rows.
std::vector<RuleGraph::Circle> RuleGraph::circles() const
{
    std::vector<Circle> result;
    std::vector<Mark> marks(m_edges.size(), Mark::New);
    std::vector<Step> way;
    for (std::size_t start = 0; start < m_edges.size(); ++start) {
        if (marks[start] == Mark::New)
            way.push_back({static_cast<int>(start), 0, kNoRule});
        while (!way.empty()) {
            const auto row = static_cast<std::size_t>(way.back().row);
            marks[row] = Mark::OnTheWay;
            if (way.back().next == m_edges[row].size()) {
                marks[row] = Mark::Done;
                way.pop_back();
                continue;
            }
            const Edge &edge = m_edges[row][way.back().next++];
            const Mark mark = marks[static_cast<std::size_t>(edge.target)];
            if (mark == Mark::New)
                way.push_back({edge.target, 0, edge.rule});
            else if (mark == Mark::OnTheWay)
                result.push_back(closeCircle(way, edge.target, edge.rule));
        }
    }
    return result;
}

} // namespace Tessark::PropertyHost
