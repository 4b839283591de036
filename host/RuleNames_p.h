#pragma once

#include "host/RuleTree_p.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// The value of a row, or one component of it, as rules see it: like its JSON form. Missing when
/// the value is invalid, of another kind than the row's, or not finite.
RuleValue ruleValue(const PropertyUI::Property &property, const QVariant &value, int component);

/// What the rows of a list are called in rules, and what rules may do with them.
class RuleNames
{
public:
    /// The properties must outlive this object.
    explicit RuleNames(const QVector<const PropertyUI::Property *> &rows);

    /// The row of a name, or -1.
    int find(const QString &name) const;

    const PropertyUI::Property &property(int row) const;

    RuleType typeOf(const RuleOperand &operand) const;

    /// How many numbers the whole value of a row consists of.
    int componentCount(int row) const;

    /// Why the row's value can never equal the constant, or an empty text.
    QString objection(int row, const RuleValue &constant) const;

    /// A suggestion for a name that is none, unless the list and its mistakes are too many.
    QString suggest(const QString &name) const;

private:
    QVector<const PropertyUI::Property *> m_rows;
    QHash<QString, int> m_rowsByName;
    QStringList m_names;
    mutable int m_comparisonsLeft; // of names, so that a list full of mistakes is read in time
};

} // namespace Tessark::PropertyHost
