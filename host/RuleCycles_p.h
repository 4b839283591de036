#pragma once

#include <QVector>

#include <vector>

namespace Tessark::PropertyHost {

/// Rows that depend on other rows, by a rule or by lying inside of what another row opens.
class RuleGraph
{
public:
    static constexpr int kNoRule = -1;

    explicit RuleGraph(int rowCount);

    void add(int row, int dependsOn, int rule = kNoRule);

    /// A circle of rows, the first one not repeated, and a rule that is part of it.
    struct Circle
    {
        QVector<int> rows;
        int rule = kNoRule;
    };

    /// Circles without which there are none; a circle without a rule is none.
    std::vector<Circle> circles() const;

private:
    struct Edge
    {
        int target;
        int rule;
    };

    std::vector<std::vector<Edge>> m_edges; // by row
};

} // namespace Tessark::PropertyHost
