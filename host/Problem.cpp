#include "host/Problem.h"

#include <algorithm>

namespace Tessark::PropertyHost {

QString Problem::toString(const QString &fileName) const
{
    QString text = fileName;
    if (line > 0)
        text += QLatin1Char(':') + QString::number(line);
    if (line > 0 && column > 0)
        text += QLatin1Char(':') + QString::number(column);
    text += severity == Severity::Error ? QLatin1String(": error: ") : QLatin1String(": warning: ");
    if (!pointer.isEmpty())
        text += pointer + QLatin1String(": ");
    return text + message;
}

bool hasErrors(const QVector<Problem> &problems)
{
    return std::any_of(problems.cbegin(), problems.cend(), [](const Problem &problem) {
        return problem.severity == Problem::Severity::Error;
    });
}

} // namespace Tessark::PropertyHost
