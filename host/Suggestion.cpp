#include "host/Suggestion_p.h"

#include "host/Messages_p.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace Tessark::PropertyHost {

namespace {

constexpr int kMaximumQuotedLength = 80;
constexpr int kMaximumSlips = 2;

/// How many letters have to be inserted, removed or replaced to turn one text into the other.
int editDistance(const QString &from, const QString &to)
{
    std::vector<int> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : from) {
        int diagonal = row.front()++;
        for (std::size_t column = 1; column < row.size(); ++column) {
            const bool same = letter == to.at(static_cast<int>(column) - 1);
            const int replaced = diagonal + (same ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString quoted(const QString &text)
{
    const bool isLong = text.size() > kMaximumQuotedLength;
    const QString shown = isLong ? text.left(kMaximumQuotedLength) + QLatin1String("...") : text;
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

QString didYouMean(const QString &text)
{
    return Messages::tr(" (did you mean %1?)").arg(quoted(text));
}

QString suggestion(const QString &text, const QStringList &candidates)
{
    QString best;
    // A slip too many for a short text would turn it into any other.
    int bestDistance = std::min<int>(kMaximumSlips, static_cast<int>(text.size()) - 1) + 1;
    for (const QString &candidate : candidates) {
        if (std::abs(candidate.size() - text.size()) > kMaximumSlips)
            continue;
        const int distance = editDistance(text, candidate);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = candidate;
        }
    }
    return best.isEmpty() ? QString() : didYouMean(best);
}

} // namespace Tessark::PropertyHost
