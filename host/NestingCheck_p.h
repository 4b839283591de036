#pragma once

#include <QString>

#include <vector>

namespace Tessark::PropertyHost {

class ProblemCollector;

/**
 * Checks that groups and tab groups close in the order in which they opened, and that tabs stand
 * in tab groups.
 */
class NestingCheck
{
public:
    explicit NestingCheck(ProblemCollector &problems);

    /// Takes the next row of the list, of any type; pointer names the row.
    void addRow(const QString &type, const QString &pointer);

    /// Tells which groups are still open at the end of the list.
    void finish();

private:
    enum class Kind { Group, TabGroup };

    struct Opening
    {
        Kind kind;
        QString pointer;
    };

    void open(Kind kind, const QString &pointer);
    void close(Kind kind, const QString &type, const QString &pointer);
    void checkTab(const QString &pointer);
    int &count(Kind kind);

    ProblemCollector &m_problems;
    std::vector<Opening> m_open; // innermost last
    int m_groups = 0;            // how many of m_open are groups
    int m_tabGroups = 0;         // how many are tab groups
};

} // namespace Tessark::PropertyHost
