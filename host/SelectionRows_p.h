#pragma once

#include <property/Property.h>

#include <QVector>

#include <vector>

namespace Tessark::PropertyHost {

enum class PartialRows;

/// Where a row's value is: the index of an object and its property there.
struct RowSource
{
    int object;
    PropertyUI::Property *property;
};

/// A row that stands for those of several objects.
struct JoinedRow
{
    PropertyUI::Property shown;
    QVector<RowSource> sources;
    bool isCommon = true;        // every object has it
    bool hasOwnDefaults = false; // not all objects have the same default
};

/// The rows that stand for all objects, whose properties are given, in the order of the first. Markers
/// of groups and tabs are the first's; where rows were left out, groups, tabs and separators that
/// became pointless are too.
std::vector<JoinedRow> joinedRows(const QVector<QVector<PropertyUI::Property *>> &objects,
                                  PartialRows partialRows);

/// True for rows that begin, end or part groups and tabs, and for separators.
bool isMarker(const PropertyUI::Property &property);

} // namespace Tessark::PropertyHost
