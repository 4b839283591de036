#include "host/RuleEngine.h"

#include "host/DelegatePointer.h"
#include "host/FollowedBounds_p.h"
#include "host/ProblemCollector_p.h"
#include "host/PropertyList.h"
#include "host/RuleNames_p.h"
#include "host/RuleRows_p.h"
#include "host/RuleSet_p.h"
#include "host/ValueJson.h"

#include <property/IPropertyEditorDelegate.h>
#include <property/Property.h>
#include <property/PropertyEditorPanel.h>

#include <QPointer>
#include <QSet>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool isBound(RuleUse use)
{
    return use == RuleUse::Minimum || use == RuleUse::Maximum;
}

} // namespace

/// What the panel knows as its delegate. Panel and engine share it, so either may go first.
class RuleEngine::Front final : public IPropertyEditorDelegate
{
public:
    Front(RuleEngine *engine, IPropertyEditorDelegate *delegate)
        : m_engine(engine)
        , m_delegate(delegate)
    {
    }

    IPropertyEditorDelegate *inner() const { return m_delegate.get(); }

    void setValue(Property *property, const QVariant &value, ChangeFlags flags) override
    {
        // The delegate may delete everything, this object included.
        const QPointer<RuleEngine> engine = m_engine;
        if (inner())
            inner()->setValue(property, value, flags);
        if (engine)
            engine->valueWritten(property);
    }

    QVariant value(Property *property) override
    {
        const QPointer<RuleEngine> engine = m_engine;
        QVariant value = inner() ? inner()->value(property) : QVariant();
        if (engine)
            engine->valueSeen(property, value);
        return value;
    }

private:
    QPointer<RuleEngine> m_engine;
    DelegatePointer m_delegate;
};

/// A rule with what it gave when it was evaluated last.
struct RuleEngine::AppliedRule
{
    Rule rule;
    bool holds = true;
    RuleValue bound;
};

/// A range of which a bound follows.
struct RuleEngine::FollowedRange
{
    Range declared; // in the list
    int minimumRule = -1;
    int maximumRule = -1;
};

RuleEngine::RuleEngine(const PropertyList &list, IPropertyEditorDelegate *delegate, QObject *parent)
    : QObject(parent)
    , m_list(list.lifetime())
    , m_front(std::make_shared<Front>(this, delegate))
{
    readList(list);
    update();
    m_unshownRanges.clear(); // the panel to come is built with them
}

RuleEngine::~RuleEngine()
{
    if (m_list.expired())
        return;
    for (auto range = m_rangeOf.cbegin(); range != m_rangeOf.cend(); ++range)
        setRange(*m_properties.at(range.key()),
                 m_ranges[static_cast<std::size_t>(range.value())].declared);
}

IPropertyEditorDelegate *RuleEngine::delegate() const
{
    return m_front.get();
}

void RuleEngine::attach(PropertyEditorPanel *panel)
{
    m_panelRows.reset();
    if (!panel || m_list.expired())
        return;
    // The connection keeps the panel's delegate alive until the panel is gone.
    connect(panel, &QObject::destroyed, panel, [front = m_front] {});
    QSet<const Property *> ruled;
    for (const AppliedRule &applied : m_rules) {
        if (!isBound(applied.rule.use))
            ruled.insert(m_properties.at(applied.rule.row));
    }
    m_panelRows = std::make_unique<RuleRows>(panel, ruled);
    const QPointer<RuleEngine> self(this);
    update();
    if (!self)
        return;
    const QSet<int> unshown = std::exchange(m_unshownRanges, {});
    for (const int row : unshown) {
        if (self && !m_list.expired())
            showRange(row);
    }
    if (self && !m_list.expired() && m_panelRows)
        tellRows();
}

QVector<Problem> RuleEngine::problems() const
{
    return m_problems;
}

bool RuleEngine::isVisible(const Property *property) const
{
    const int row = m_rowOf.value(property, -1);
    return std::none_of(m_rules.cbegin(), m_rules.cend(), [row](const AppliedRule &applied) {
        return applied.rule.row == row && applied.rule.use == RuleUse::Visible && !applied.holds;
    });
}

bool RuleEngine::isEnabled(const Property *property) const
{
    const int row = m_rowOf.value(property, -1);
    return std::none_of(m_rules.cbegin(), m_rules.cend(), [row](const AppliedRule &applied) {
        return applied.rule.row == row && applied.rule.use == RuleUse::Enabled && !applied.holds;
    });
}

void RuleEngine::update()
{
    const QPointer<RuleEngine> self(this);
    const QList<int> sources = m_rulesReading.keys();
    for (const int source : sources) {
        IPropertyEditorDelegate *const inner = m_list.expired() ? nullptr : m_front->inner();
        const QVariant value = inner ? inner->value(m_properties.at(source)) : QVariant();
        if (!self)
            return;
        m_lastValues.insert(source, value);
    }
    QVector<int> all;
    for (int i = 0; i < static_cast<int>(m_rules.size()); ++i)
        all.append(i);
    evaluate(all);
}

void RuleEngine::readList(const PropertyList &list)
{
    ProblemCollector collector;
    QVector<CheckedRow> rows;
    m_properties = list.properties();
    for (int row = 0; row < m_properties.size(); ++row) {
        rows.append({m_properties.at(row), rowPointer(row)});
        m_rowOf.insert(m_properties.at(row), row);
    }
    for (Rule &rule : readRules(rows, collector)) {
        const auto index = static_cast<int>(m_rules.size());
        for (const int source : std::as_const(rule.sources))
            m_rulesReading[source].append(index);
        if (isBound(rule.use)) {
            if (!m_rangeOf.contains(rule.row)) {
                m_rangeOf.insert(rule.row, static_cast<int>(m_ranges.size()));
                m_ranges.push_back({rangeOf(*m_properties.at(rule.row)), -1, -1});
            }
            FollowedRange &range = m_ranges[static_cast<std::size_t>(m_rangeOf.value(rule.row))];
            (rule.use == RuleUse::Minimum ? range.minimumRule : range.maximumRule) = index;
        }
        m_rules.push_back({std::move(rule), true, {}});
    }
    m_problems = collector.take([this](int row) { return m_properties.at(row)->name; });
}

void RuleEngine::valueSeen(const Property *property, const QVariant &value)
{
    const int row = m_list.expired() ? -1 : m_rowOf.value(property, -1);
    const auto reading = m_rulesReading.constFind(row);
    if (reading == m_rulesReading.constEnd()
        || isSameValue(*property, m_lastValues.value(row), value))
        return;
    m_lastValues.insert(row, value);
    evaluate(QVector<int>(*reading));
}

void RuleEngine::valueWritten(Property *property)
{
    if (m_list.expired() || !m_rulesReading.contains(m_rowOf.value(property, -1)))
        return;
    const QPointer<RuleEngine> self(this);
    const QVariant value = m_front->inner() ? m_front->inner()->value(property) : QVariant();
    if (self)
        valueSeen(property, value);
}

void RuleEngine::evaluate(const QVector<int> &rules)
{
    const QPointer<RuleEngine> self(this);
    QVector<int> ranges;
    QSet<int> rangedRows;
    for (const int index : rules) {
        const bool isNew = evaluateRule(index);
        if (!self || m_list.expired())
            return;
        const Rule &rule = m_rules[static_cast<std::size_t>(index)].rule;
        if (!isNew)
            continue;
        if (isBound(rule.use) && !rangedRows.contains(rule.row)) {
            rangedRows.insert(rule.row);
            ranges.append(rule.row);
        }
        if (!m_panelRows)
            continue;
        const bool holds = m_rules[static_cast<std::size_t>(index)].holds;
        if (rule.use == RuleUse::Visible)
            m_panelRows->setVisible(m_properties.at(rule.row), holds);
        else if (rule.use == RuleUse::Enabled)
            m_panelRows->setEnabled(m_properties.at(rule.row), holds);
    }
    if (m_panelRows)
        m_panelRows->apply();
    if (self)
        applyRanges(ranges);
}

/// True when the rule gives something else than before.
bool RuleEngine::evaluateRule(int index)
{
    const QPointer<RuleEngine> self(this);
    const Rule rule = m_rules[static_cast<std::size_t>(index)].rule;
    const auto read = [this, &self](const RuleOperand &operand) {
        IPropertyEditorDelegate *const inner =
            self && !m_list.expired() ? m_front->inner() : nullptr;
        if (!inner)
            return RuleValue();
        Property *const property = m_properties.at(operand.row);
        const QVariant value = inner->value(property);
        return self && !m_list.expired() ? ruleValue(*property, value, operand.component)
                                         : RuleValue();
    };
    if (isBound(rule.use)) {
        const RuleValue bound = rule.conditions.front().evaluate(read);
        if (!self)
            return false;
        return std::exchange(m_rules[static_cast<std::size_t>(index)].bound, bound) != bound;
    }
    const bool holds = std::all_of(rule.conditions.cbegin(), rule.conditions.cend(),
                                   [&read](const RuleTree &tree) { return tree.holds(read); });
    if (!self)
        return false;
    return std::exchange(m_rules[static_cast<std::size_t>(index)].holds, holds) != holds;
}

void RuleEngine::applyRanges(const QVector<int> &rows)
{
    const QPointer<RuleEngine> self(this);
    for (const int row : rows) {
        if (!self || m_list.expired())
            return;
        applyRange(row);
    }
}

void RuleEngine::applyRange(int row)
{
    Property *const property = m_properties.at(row);
    const FollowedRange &followed = m_ranges[static_cast<std::size_t>(m_rangeOf.value(row))];
    const auto boundOf = [this](int rule) {
        return rule < 0 ? RuleValue() : m_rules[static_cast<std::size_t>(rule)].bound;
    };
    const Range range = followedRange(*property, followed.declared, boundOf(followed.minimumRule),
                                      boundOf(followed.maximumRule));
    if (isSameRange(rangeOf(*property), range))
        return;
    setRange(*property, range);
    const QPointer<RuleEngine> self(this);
    showRange(row);
    if (self)
        Q_EMIT rangeChanged(property);
}

void RuleEngine::showRange(int row)
{
    if (!m_panelRows) {
        m_unshownRanges.insert(row);
        return;
    }
    Property *const property = m_properties.at(row);
    const QPointer<RuleEngine> self(this);
    const QVariant value = m_front->inner() ? m_front->inner()->value(property) : QVariant();
    if (self && m_panelRows)
        m_panelRows->showRange(property, value);
}

/// Tells a panel that is new what the rules said already.
void RuleEngine::tellRows()
{
    for (const AppliedRule &applied : m_rules) {
        Property *const property = m_properties.at(applied.rule.row);
        if (applied.rule.use == RuleUse::Visible)
            m_panelRows->setVisible(property, applied.holds);
        else if (applied.rule.use == RuleUse::Enabled)
            m_panelRows->setEnabled(property, applied.holds);
    }
    m_panelRows->apply();
}

} // namespace Tessark::PropertyHost
