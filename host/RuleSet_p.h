#pragma once

#include "host/RuleTree_p.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <vector>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

class ProblemCollector;

enum class RuleUse { Visible, Enabled, Minimum, Maximum };

/// One rule of a row; several conditions of the same hint are one rule.
struct Rule
{
    int row = 0;
    RuleUse use = RuleUse::Visible;
    std::vector<RuleTree> conditions; // all must hold; exactly one for a bound
    QVector<int> sources;             // the rows that it reads, each once
};

/// A row of a list with the place where its problems are.
struct CheckedRow
{
    PropertyUI::Property *property = nullptr;
    QString pointer;
};

/// All keys of hints that hold rules.
const QStringList &ruleHints();

/**
 * The rules of a list that can be applied; what is wrong with the others goes to problems.
 *
 * Rules go in a circle when the rows that a row needs to be shown or usable need that row in turn,
 * being inside of a group or tab included; and when minima, or maxima, follow one another. A
 * minimum and a maximum may follow each other's rows, as those of a pair of limits do.
 */
std::vector<Rule> readRules(const QVector<CheckedRow> &rows, ProblemCollector &problems);

} // namespace Tessark::PropertyHost
