#include "host/RuleSet_p.h"

#include "host/HostHints.h"
#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/RuleCycles_p.h"
#include "host/RuleNames_p.h"
#include "host/RuleParser_p.h"
#include "host/Suggestion_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

#include <QSet>

#include <algorithm>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kMaximumConditions = 32;
constexpr int kMaximumNamedRows = 8; // of a circle

struct HintUse
{
    QLatin1String hint;
    RuleUse use = RuleUse::Visible;
};

const HintUse kHintUses[] = {
    {kHostHintVisibleWhen, RuleUse::Visible},
    {kHostHintEnabledWhen, RuleUse::Enabled},
    {kHostHintMinimumFollows, RuleUse::Minimum},
    {kHostHintMaximumFollows, RuleUse::Maximum},
};

bool isBound(RuleUse use)
{
    return use == RuleUse::Minimum || use == RuleUse::Maximum;
}

bool isEnd(const QString &type)
{
    return type == kPropertyTypeEndGroup || type == kPropertyTypeEndTabGroup;
}

/// The texts of a rule, or none when the hint is neither a text nor a list of texts.
QStringList textsOf(const QVariant &hint)
{
    if (hint.userType() == QMetaType::QString)
        return {hint.toString()};
    if (hint.userType() == QMetaType::QStringList)
        return hint.toStringList();
    return {};
}

bool hasRuleHint(const CheckedRow &row)
{
    return std::any_of(std::begin(kHintUses), std::end(kHintUses), [&row](const HintUse &use) {
        return row.property->hints.contains(use.hint);
    });
}

/// How the row is called in messages.
QString rowName(const Property &property)
{
    if (!property.name.isEmpty())
        return quoted(property.name);
    return property.label.isEmpty() ? property.type : quoted(property.label);
}

/// The rows that open what each row lies in, by row; -1 for none.
QVector<int> enclosingRows(const QVector<CheckedRow> &rows)
{
    QVector<int> result;
    QVector<int> open; // rows of groups, tab groups and, directly inside of these, tabs
    const auto isOpenTab = [&] {
        return !open.isEmpty() && rows.at(open.last()).property->type == kPropertyTypeTab;
    };
    for (int row = 0; row < rows.size(); ++row) {
        const QString &type = rows.at(row).property->type;
        if ((type == kPropertyTypeTab || type == kPropertyTypeEndTabGroup) && isOpenTab())
            open.removeLast();
        if (isEnd(type) && !open.isEmpty())
            open.removeLast();
        result.append(open.isEmpty() ? -1 : open.last());
        if (type == kPropertyTypeBeginGroup || type == kPropertyTypeBeginTabGroup
            || type == kPropertyTypeTab)
            open.append(row);
    }
    return result;
}

class RuleReader final
{
public:
    RuleReader(const QVector<CheckedRow> &rows, const RuleNames &names, ProblemCollector &problems)
        : m_rows(rows)
        , m_names(names)
        , m_problems(problems)
    {
    }

    std::vector<Rule> read();

private:
    void readRule(int row, const HintUse &use, const QVariant &hint);
    bool isPlacedWell(int row, RuleUse use, const QString &pointer);
    std::optional<RuleTree> readText(int row, RuleUse use, const QString &text,
                                     const QString &pointer);
    void removeCircles(const QVector<RuleUse> &uses, const char *message);
    QString circleText(const QVector<int> &rows) const;
    void keepAllBut(const QSet<int> &removed);

    const QVector<CheckedRow> &m_rows;
    const RuleNames &m_names;
    ProblemCollector &m_problems;
    std::vector<Rule> m_rules;
    std::vector<QString> m_pointers; // of the rules' hints
};

std::vector<Rule> RuleReader::read()
{
    for (int row = 0; row < m_rows.size(); ++row) {
        const auto &hints = m_rows.at(row).property->hints;
        for (const HintUse &use : kHintUses) {
            const auto hint = hints.constFind(use.hint);
            if (hint != hints.constEnd() && hint->isValid())
                readRule(row, use, *hint);
        }
    }
    if (m_rules.empty())
        return {};
    removeCircles(
        {RuleUse::Visible, RuleUse::Enabled},
        QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "these rules go in a circle: %1"));
    removeCircles({RuleUse::Minimum}, QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages",
                                                        "these minima go in a circle: %1"));
    removeCircles({RuleUse::Maximum}, QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages",
                                                        "these maxima go in a circle: %1"));
    return std::move(m_rules);
}

void RuleReader::readRule(int row, const HintUse &use, const QVariant &hint)
{
    const QString pointer = childPointer(
        childPointer(m_rows.at(row).pointer, QStringLiteral("hints")), QString(use.hint));
    const QStringList texts = textsOf(hint);
    const bool isList = hint.userType() == QMetaType::QStringList;
    if (texts.isEmpty() || (isBound(use.use) && isList)) {
        m_problems.error(pointer, isBound(use.use)
                                      ? Messages::tr("expected an expression as text")
                                      : Messages::tr("expected a condition as text, or several"));
        return;
    }
    if (texts.size() > kMaximumConditions) {
        m_problems.error(pointer, Messages::tr("a rule may have %n conditions at most", nullptr,
                                               kMaximumConditions));
        return;
    }
    Rule rule;
    rule.row = row;
    rule.use = use.use;
    bool isGood = isPlacedWell(row, use.use, pointer);
    for (int i = 0; i < texts.size(); ++i) {
        const auto tree =
            readText(row, use.use, texts.at(i), isList ? childPointer(pointer, i) : pointer);
        isGood = isGood && tree;
        if (!isGood)
            continue;
        rule.conditions.push_back(*tree);
        const QVector<int> sources = tree->rows();
        std::copy_if(sources.cbegin(), sources.cend(), std::back_inserter(rule.sources),
                     [&rule](int source) { return !rule.sources.contains(source); });
    }
    if (!isGood)
        return;
    m_rules.push_back(std::move(rule));
    m_pointers.push_back(pointer);
}

bool RuleReader::isPlacedWell(int row, RuleUse use, const QString &pointer)
{
    const QString &type = m_rows.at(row).property->type;
    if (!isBound(use) && isEnd(type)) {
        m_problems.error(pointer,
                         Messages::tr("the rule belongs to the row that opens what %1 closes")
                             .arg(quoted(type)));
        return false;
    }
    if (isBound(use) && typeTraits(type).range == RangeUse::None) {
        m_problems.error(pointer, Messages::tr("rows of type %1 have no range").arg(quoted(type)));
        return false;
    }
    return true;
}

std::optional<RuleTree> RuleReader::readText(int row, RuleUse use, const QString &text,
                                             const QString &pointer)
{
    const ValueKind kind = typeTraits(m_rows.at(row).property->type).kind;
    RuleError error;
    auto tree = isBound(use) ? parseBound(text, m_names, int(componentNames(kind).size()), error)
                             : parseCondition(text, m_names, error);
    if (!tree) {
        m_problems.error(pointer, Messages::tr("character %1: %2")
                                      .arg(QString::number(error.position + 1), error.message));
    }
    return tree;
}

/// Tells the circles among the rules of some uses, and takes a rule of each out. message is a
/// text of Messages.
void RuleReader::removeCircles(const QVector<RuleUse> &uses, const char *message)
{
    RuleGraph graph(static_cast<int>(m_rows.size()));
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        if (!uses.contains(m_rules[i].use))
            continue;
        for (const int source : std::as_const(m_rules[i].sources))
            graph.add(m_rules[i].row, source, static_cast<int>(i));
    }
    if (uses.contains(RuleUse::Visible)) {
        const QVector<int> enclosing = enclosingRows(m_rows);
        for (int row = 0; row < enclosing.size(); ++row) {
            if (enclosing.at(row) >= 0)
                graph.add(row, enclosing.at(row));
        }
    }
    QSet<int> removed;
    for (const RuleGraph::Circle &circle : graph.circles()) {
        m_problems.error(m_pointers[static_cast<std::size_t>(circle.rule)],
                         Messages::tr(message).arg(circleText(circle.rows)));
        removed.insert(circle.rule);
    }
    keepAllBut(removed);
}

QString RuleReader::circleText(const QVector<int> &rows) const
{
    QStringList names;
    for (const int row : rows.mid(0, kMaximumNamedRows))
        names.append(rowName(*m_rows.at(row).property));
    if (rows.size() > kMaximumNamedRows)
        names.append(QStringLiteral("..."));
    names.append(names.first());
    return names.join(QLatin1String(", "));
}

void RuleReader::keepAllBut(const QSet<int> &removed)
{
    if (removed.isEmpty())
        return;
    std::vector<Rule> rules;
    std::vector<QString> pointers;
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        if (removed.contains(static_cast<int>(i)))
            continue;
        rules.push_back(std::move(m_rules[i]));
        pointers.push_back(std::move(m_pointers[i]));
    }
    m_rules = std::move(rules);
    m_pointers = std::move(pointers);
}

} // namespace

const QStringList &ruleHints()
{
    static const QStringList s_hints = [] {
        QStringList hints;
        for (const HintUse &use : kHintUses)
            hints.append(use.hint);
        return hints;
    }();
    return s_hints;
}

std::vector<Rule> readRules(const QVector<CheckedRow> &rows, ProblemCollector &problems)
{
    const bool hasRules = std::any_of(rows.cbegin(), rows.cend(), hasRuleHint);
    if (!hasRules)
        return {};
    QVector<const Property *> properties;
    for (const CheckedRow &row : rows)
        properties.append(row.property);
    const RuleNames names(properties);
    return RuleReader(rows, names, problems).read();
}

} // namespace Tessark::PropertyHost
