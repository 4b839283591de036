#include "host/SelectionRows_p.h"

#include "host/RowJoin_p.h"
#include "host/SelectionDelegate.h"
#include "host/ValueJson.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QStringList>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

using RowKey = QPair<QString, QString>; // name and type

RowKey keyOf(const Property &property)
{
    return {property.name, property.type};
}

/// Joins the rows of the objects and tells whether all of them could be.
class Joiner
{
public:
    explicit Joiner(const QVector<QVector<Property *>> &objects)
        : m_objects(objects)
    {
        for (const QVector<Property *> &object : objects)
            m_rowsOf.append(namedRows(object));
    }

    /// The row of one object with those that match it in the objects after it.
    JoinedRow joined(int object, Property *property) const
    {
        JoinedRow row{*property, {{object, property}}};
        if (isMarker(*property))
            return row;
        for (int other = object + 1; other < m_objects.size(); ++other)
            join(row, other);
        row.isCommon = row.sources.size() == m_objects.size();
        if (row.hasOwnDefaults || !row.isCommon)
            row.shown.setDefaultValue(QVariant());
        return row;
    }

private:
    static QHash<RowKey, Property *> namedRows(const QVector<Property *> &object)
    {
        QHash<RowKey, Property *> rows;
        for (Property *property : object) {
            if (property && !property->name.isEmpty() && !rows.contains(keyOf(*property)))
                rows.insert(keyOf(*property), property);
        }
        return rows;
    }

    void join(JoinedRow &row, int object) const
    {
        Property *const match = m_rowsOf.at(object).value(keyOf(row.shown));
        if (!match || !joinRow(row.shown, *match))
            return;
        const QVariant &firstDefault = row.sources.first().property->defaultValue;
        if (!isSameValue(row.shown, firstDefault, match->defaultValue))
            row.hasOwnDefaults = true;
        row.sources.append({object, match});
    }

    const QVector<QVector<Property *>> &m_objects;
    QVector<QHash<RowKey, Property *>> m_rowsOf;
};

bool is(const std::vector<JoinedRow> &rows, const QStringList &types)
{
    return !rows.empty() && types.contains(rows.back().shown.type);
}

void dropSeparators(std::vector<JoinedRow> &rows)
{
    while (is(rows, {kPropertyTypeSeparator}))
        rows.pop_back();
}

/// Appends a marker, or takes those before it away that have nothing between them and it.
void appendMarker(std::vector<JoinedRow> &rows, const JoinedRow &marker)
{
    const QString &type = marker.shown.type;
    const bool ends = type == kPropertyTypeEndGroup || type == kPropertyTypeEndTabGroup;
    if (type == kPropertyTypeSeparator) {
        const bool parts =
            !rows.empty()
            && !is(rows, {kPropertyTypeSeparator, kPropertyTypeBeginGroup, kPropertyTypeTab});
        if (parts)
            rows.push_back(marker);
        return;
    }
    if (ends || type == kPropertyTypeTab)
        dropSeparators(rows);
    if ((type == kPropertyTypeTab || type == kPropertyTypeEndTabGroup)
        && is(rows, {kPropertyTypeTab}))
        rows.pop_back();
    const QString &begin =
        type == kPropertyTypeEndGroup ? kPropertyTypeBeginGroup : kPropertyTypeBeginTabGroup;
    if (ends && is(rows, {begin}))
        rows.pop_back();
    else
        rows.push_back(marker);
}

std::vector<JoinedRow> tidied(const std::vector<JoinedRow> &rows)
{
    std::vector<JoinedRow> result;
    for (const JoinedRow &row : rows) {
        if (isMarker(row.shown))
            appendMarker(result, row);
        else
            result.push_back(row);
    }
    dropSeparators(result);
    return result;
}

/// Appends the named rows that only later objects have; they have no place in the first's groups.
void appendOthers(std::vector<JoinedRow> &rows, const Joiner &joiner,
                  const QVector<QVector<Property *>> &objects)
{
    QSet<QString> names;
    for (const JoinedRow &row : rows)
        names.insert(row.shown.name);
    for (int object = 1; object < objects.size(); ++object) {
        for (Property *property : objects.at(object)) {
            if (!property || isMarker(*property) || property->name.isEmpty()
                || names.contains(property->name))
                continue;
            names.insert(property->name);
            rows.push_back(joiner.joined(object, property));
        }
    }
}

} // namespace

std::vector<JoinedRow> joinedRows(const QVector<QVector<Property *>> &objects,
                                  PartialRows partialRows)
{
    std::vector<JoinedRow> rows;
    if (objects.isEmpty())
        return rows;
    const Joiner joiner(objects);
    bool areAll = true;
    for (Property *property : objects.first()) {
        if (!property)
            continue;
        JoinedRow row = joiner.joined(0, property);
        if (row.isCommon || partialRows == PartialRows::Disable)
            rows.push_back(row);
        else
            areAll = false;
    }
    if (partialRows == PartialRows::Disable)
        appendOthers(rows, joiner, objects);
    for (JoinedRow &row : rows) {
        if (!row.isCommon)
            row.shown.setHint(kPropertyHintEnabled, false);
    }
    return areAll ? rows : tidied(rows);
}

bool isMarker(const Property &property)
{
    static const QSet<QString> s_markers{kPropertyTypeBeginGroup,    kPropertyTypeEndGroup,
                                         kPropertyTypeBeginTabGroup, kPropertyTypeEndTabGroup,
                                         kPropertyTypeTab,           kPropertyTypeSeparator};
    return s_markers.contains(property.type);
}

} // namespace Tessark::PropertyHost
