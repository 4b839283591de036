#pragma once

#include "host/Problem.h"
#include "host/PropertyHostExport.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QVariant>
#include <QVector>

#include <memory>
#include <vector>

namespace Tessark::PropertyUI {
class IPropertyEditorDelegate;
class Property;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

class PropertyList;
class RuleRows;

/**
 * Applies the rules of a property list to a panel: rows that are shown or usable only while a
 * condition holds, and bounds that follow other values. docs/rules.md describes the language.
 *
 *     RuleEngine rules(list, &store);
 *     PropertyEditorPanel panel(list.properties(), rules.delegate(), nullptr);
 *     rules.attach(&panel);
 *     panel.updateUI();
 *
 * It stands in front of the delegate, so every edit in the panel and every refresh of it brings the
 * rows up to date; only rules that read a value which changed are evaluated. A host that shows
 * values in another way calls update().
 *
 * A rule never changes a value. A hidden row leaves no gap; a rule on a row that begins a group or
 * tab group, or on a tab, is about all of it. Groups that the user folded stay folded. Where a bound
 * follows, it is written to the property, the hard maximum with the maximum, and the editors show
 * it; a value that lies outside then stays what it is, its field shows it cut to the range. A minimum
 * stops at a maximum that does not follow; else the maximum gives way. A bound whose rule gives no
 * number is the one that the list has. Rules with mistakes are passed over.
 *
 * List, panel, delegate and this object belong to the host and may go in any order. A delegate that
 * is no QObject cannot be watched and must not go before the panel.
 */
class TESSARK_PROPERTYHOST_EXPORT RuleEngine : public QObject
{
    Q_OBJECT

public:
    /// Reads the rules of the list, and the values that they need from delegate, which may be null.
    RuleEngine(const PropertyList &list, PropertyUI::IPropertyEditorDelegate *delegate,
               QObject *parent = nullptr);

    /// Gives the properties back the ranges that the list has. The panel stays as it is.
    ~RuleEngine() override;

    /// What the panel is to have for a delegate. It passes everything on to the one given, and lives
    /// as long as this object and, once attached, the panel.
    PropertyUI::IPropertyEditorDelegate *delegate() const;

    /// Applies the rules to a panel that has delegate(), instead of one before; null for none.
    void attach(PropertyUI::PropertyEditorPanel *panel);

    /// What is wrong with rules; the same as PropertyList::validate() says of them.
    QVector<Problem> problems() const;

    /// What the row's own rules say; true for a row without rules or of another list.
    bool isVisible(const PropertyUI::Property *property) const;
    bool isEnabled(const PropertyUI::Property *property) const;

public Q_SLOTS:
    /// Evaluates all rules with the delegate's values.
    void update();

Q_SIGNALS:
    /// A bound that follows was written to the property, and its editors show the new range.
    void rangeChanged(Tessark::PropertyUI::Property *property);

private:
    class Front;
    struct AppliedRule;
    struct FollowedRange;

    void readList(const PropertyList &list);
    void valueSeen(const PropertyUI::Property *property, const QVariant &value);
    void valueWritten(PropertyUI::Property *property);
    void evaluate(const QVector<int> &rules);
    bool evaluateRule(int index);
    void applyRanges(const QVector<int> &rows);
    void applyRange(int row);
    void showRange(int row);
    void tellRows();

    std::weak_ptr<const void> m_list; // expires with the properties
    QVector<PropertyUI::Property *> m_properties;
    QHash<const PropertyUI::Property *, int> m_rowOf;
    std::vector<AppliedRule> m_rules;
    QHash<int, QVector<int>> m_rulesReading; // by the row that is read
    QHash<int, QVariant> m_lastValues;       // of the rows that are read
    std::vector<FollowedRange> m_ranges;
    QHash<int, int> m_rangeOf; // index in m_ranges by row
    QSet<int> m_unshownRanges; // changed before there was a panel
    QVector<Problem> m_problems;
    std::shared_ptr<Front> m_front;
    std::unique_ptr<RuleRows> m_panelRows;
};

} // namespace Tessark::PropertyHost
