#pragma once

#include "host/PropertyHostExport.h"

#include <QString>
#include <QVector>

namespace Tessark::PropertyHost {

/**
 * One thing that is wrong with an input file.
 *
 * A problem of syntax has a line and a column, both counted from 1, the column in characters. A
 * problem of meaning has a JSON pointer to the value it is about, as in "/properties/3/min". A
 * problem of the file as a whole has neither. A problem of a property list's row also has the index
 * of the row and its name.
 */
struct TESSARK_PROPERTYHOST_EXPORT Problem
{
    enum class Severity {
        Warning, // the rest is used as it stands
        Error,   // what the pointer names could not be used
    };

    Severity severity = Severity::Error;
    QString message;
    QString pointer;
    int line = 0;   // 0 when unknown
    int column = 0; // 0 when unknown
    int row = -1;   // index of the row that the problem is about, -1 when it is about none
    QString name;   // the name of that row, if it has one

    /// One line for people and scripts: "list.json:3:17: error: ..." when the line is known,
    /// otherwise "list.json: error: /properties/3/min: ...", without the pointer if it is empty.
    QString toString(const QString &fileName) const;
};

/// True when at least one of the problems is an error.
TESSARK_PROPERTYHOST_EXPORT bool hasErrors(const QVector<Problem> &problems);

} // namespace Tessark::PropertyHost
