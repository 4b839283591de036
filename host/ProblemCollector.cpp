#include "host/ProblemCollector_p.h"

#include "host/ListKeys_p.h"
#include "host/Messages_p.h"

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

namespace {

/// The row of a property list that a pointer leads to or into, or -1.
int rowOfPointer(const QString &pointer)
{
    bool ok = false;
    const int row = pointer.section(QLatin1Char('/'), 2, 2).toInt(&ok);
    return ok && pointer.section(QLatin1Char('/'), 1, 1) == kKeyProperties ? row : -1;
}

} // namespace

QString childPointer(const QString &pointer, const QString &key)
{
    QString escaped = key;
    escaped.replace(QLatin1Char('~'), QLatin1String("~0"));
    escaped.replace(QLatin1Char('/'), QLatin1String("~1"));
    return pointer + QLatin1Char('/') + escaped;
}

QString childPointer(const QString &pointer, int index)
{
    return pointer + QLatin1Char('/') + QString::number(index);
}

QString rowPointer(int row)
{
    return childPointer(childPointer(QString(), kKeyProperties), row);
}

void ProblemCollector::error(const QString &pointer, const QString &message)
{
    add(Problem::Severity::Error, pointer, message);
}

void ProblemCollector::warning(const QString &pointer, const QString &message)
{
    add(Problem::Severity::Warning, pointer, message);
}

bool ProblemCollector::isFull() const
{
    return m_problems.size() >= kMaximumProblems;
}

QVector<Problem> ProblemCollector::take()
{
    if (m_unlistedErrors > 0 || m_unlistedWarnings > 0) {
        Problem rest;
        rest.severity =
            m_unlistedErrors > 0 ? Problem::Severity::Error : Problem::Severity::Warning;
        rest.message = Messages::tr("%1 and %2 are not listed")
                           .arg(Messages::tr("%n more errors", nullptr, m_unlistedErrors),
                                Messages::tr("%n more warnings", nullptr, m_unlistedWarnings));
        m_problems.append(rest);
    }
    m_unlistedErrors = 0;
    m_unlistedWarnings = 0;
    return std::exchange(m_problems, {});
}

QVector<Problem> ProblemCollector::take(const std::function<QString(int)> &nameOf)
{
    for (Problem &problem : m_problems) {
        problem.row = rowOfPointer(problem.pointer);
        if (problem.row >= 0)
            problem.name = nameOf(problem.row);
    }
    std::stable_sort(
        m_problems.begin(), m_problems.end(),
        [](const Problem &left, const Problem &right) { return left.row < right.row; });
    return take();
}

void ProblemCollector::add(Problem::Severity severity, const QString &pointer,
                           const QString &message)
{
    if (isFull()) {
        ++(severity == Problem::Severity::Error ? m_unlistedErrors : m_unlistedWarnings);
        return;
    }
    Problem problem;
    problem.severity = severity;
    problem.message = message;
    problem.pointer = pointer;
    m_problems.append(problem);
}

} // namespace Tessark::PropertyHost
