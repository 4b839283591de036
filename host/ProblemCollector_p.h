#pragma once

#include "host/Problem.h"

#include <QString>
#include <QVector>

#include <functional>

namespace Tessark::PropertyHost {

/// pointer extended by a key of the object, or an index of the array, that it names.
QString childPointer(const QString &pointer, const QString &key);
QString childPointer(const QString &pointer, int index);

/// The pointer to a row of a property list.
QString rowPointer(int row);

/**
 * Gathers the problems of one document.
 *
 * A document may be 16 MiB of mistakes, so after kMaximumProblems it only counts them.
 */
class ProblemCollector
{
public:
    static constexpr int kMaximumProblems = 10000;

    void error(const QString &pointer, const QString &message);
    void warning(const QString &pointer, const QString &message);

    /// True when further problems are only counted, so that their messages need no care.
    bool isFull() const;

    /// Everything gathered; a last entry tells how many problems are not listed, if there are any.
    QVector<Problem> take();

    /// The same for a property list. The problems of its rows, which their pointers tell, get the
    /// index of the row and the name that nameOf() gives for it, and come in the order of the rows.
    QVector<Problem> take(const std::function<QString(int row)> &nameOf);

private:
    void add(Problem::Severity severity, const QString &pointer, const QString &message);

    QVector<Problem> m_problems;
    int m_unlistedErrors = 0;
    int m_unlistedWarnings = 0;
};

} // namespace Tessark::PropertyHost
