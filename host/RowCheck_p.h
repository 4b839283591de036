#pragma once

#include "host/NestingCheck_p.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

class ProblemCollector;

/**
 * Tells what is wrong with the rows of a property list, which come in order.
 *
 * Reading a list and validating one share it. pointer names the row where nothing else is said.
 */
class RowCheck
{
public:
    explicit RowCheck(ProblemCollector &problems);

    /// Everything about a row but its rules.
    void checkRow(PropertyUI::Property &property, const QString &pointer);

    /// What is still open at the end of the list.
    void finish();

    void addType(const QString &type, const QString &pointer);
    void tellMissingName(const QString &pointer);
    bool takeName(const QString &name, const QString &pointer);
    bool checkEditor(PropertyUI::Property &property, const QString &pointer);
    void checkHintKey(const QString &key, const QString &hintPointer);
    void checkHintUse(const PropertyUI::Property &property, const QString &pointer);
    void checkChoices(const PropertyUI::Property &property, const QString &pointer);
    void tellUselessBound(const QString &type, const QString &boundPointer);
    void tellMissingMaximum(const QString &pointer);
    void checkBounds(const PropertyUI::Property &property, const QString &pointer);
    void checkDefaultRange(const PropertyUI::Property &property, const QString &pointer);

    /// A suggestion for a message, unless nobody will see it: a document may hold a million slips.
    QString suggest(const QString &text, const QStringList &candidates) const;

private:
    void checkName(const PropertyUI::Property &property, const QString &pointer);
    void checkRange(const PropertyUI::Property &property, const QString &pointer);
    void checkBoundKind(const PropertyUI::Property &property, const QVariant &bound,
                        const QString &boundPointer);
    void checkBoundPair(const QString &pointer, const QVariant &lower, const QString &lowerKey,
                        const QVariant &upper, const QString &upperKey);
    void checkDefault(const PropertyUI::Property &property, const QString &pointer);

    ProblemCollector &m_problems;
    NestingCheck m_nesting;
    QSet<QString> m_names;
};

} // namespace Tessark::PropertyHost
