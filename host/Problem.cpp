#include "host/Problem.h"

#include "host/Messages_p.h"

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

/// The text with control characters spelled out, so that a key from a file can neither break the
/// line nor command a terminal.
QString printable(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar letter : text) {
        if (letter.category() == QChar::Other_Control)
            result += QStringLiteral("\\u%1").arg(letter.unicode(), 4, 16, QLatin1Char('0'));
        else
            result += letter;
    }
    return result;
}

} // namespace

QString Problem::toString(const QString &fileName) const
{
    QString text = fileName;
    if (line > 0)
        text += QLatin1Char(':') + QString::number(line);
    if (line > 0 && column > 0)
        text += QLatin1Char(':') + QString::number(column);
    const QString place = pointer.isEmpty() ? QString() : printable(pointer) + QLatin1String(": ");
    const QString told =
        severity == Severity::Error ? Messages::tr("error: %1") : Messages::tr("warning: %1");
    return text + QLatin1String(": ") + told.arg(place + printable(message));
}

bool hasErrors(const QVector<Problem> &problems)
{
    return std::any_of(problems.cbegin(), problems.cend(), [](const Problem &problem) {
        return problem.severity == Problem::Severity::Error;
    });
}

} // namespace Tessark::PropertyHost
