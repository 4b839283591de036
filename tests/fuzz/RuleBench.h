#pragma once

#include <host/PropertyList.h>
#include <host/RuleEngine.h>
#include <property/IPropertyEditorDelegate.h>

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <optional>

namespace Fuzz {

class FuzzInput;

/// Rows of every kind that rules may read or stand at, within a group and a tab too.
Tessark::PropertyHost::PropertyList ruleRows();

/// These rows with rules, one a line. Its first letter is the row's, "a" for the first one, its second
/// the hint's: "v" visible, "e" enabled, "m" minimum, "M" maximum.
Tessark::PropertyHost::PropertyList listWithRules(const QByteArray &rules);

/// The rules alone, without letters.
QStringList conditionsIn(const QByteArray &rules);

/// A value that rules are likely to ask for, or to stumble over.
QVariant ruleValueFor(FuzzInput &input);

/// A host's values by name, which may be of any type. What was never set is a value of the row's own.
class RuleValues : public Tessark::PropertyUI::IPropertyEditorDelegate
{
public:
    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(Tessark::PropertyUI::Property *property) override;

    int reads = 0;

private:
    QHash<QString, QVariant> m_values;
};

/// What rules say of a row. Its range is in numbers, since those of a list that was read may be of other
/// types.
struct RuleState
{
    bool visible = true;
    bool enabled = true;
    QVector<double> minimum;
    QVector<double> maximum;
    QVector<double> hardMaximum;

    bool operator==(const RuleState &other) const;
};

/// The rows without an engine, and with one. Ranges are not reversed.
QVector<RuleState> statesOf(const Tessark::PropertyHost::PropertyList &list);
QVector<RuleState> statesOf(const Tessark::PropertyHost::PropertyList &list,
                            const Tessark::PropertyHost::RuleEngine &engine);

void requireSameStates(const QVector<RuleState> &states, const QVector<RuleState> &expected,
                       const char *claim);

/// Whether a row is shown, with the groups around it; nothing for tab groups and what is in them, which
/// pages show and hide too.
std::optional<bool> isShownByRules(const Tessark::PropertyUI::Property *property,
                                   const Tessark::PropertyHost::PropertyList &list,
                                   const Tessark::PropertyHost::RuleEngine &engine);

} // namespace Fuzz
