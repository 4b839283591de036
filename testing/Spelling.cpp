#include "testing/Spelling_p.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace Tessark::PropertyTest {

namespace {

constexpr int kMostSlips = 2;

/// How many letters are to be inserted, taken away or replaced to make one word of the other.
int slipsBetween(const QString &word, const QString &other)
{
    std::vector<int> line(std::size_t(other.size()) + 1);
    std::iota(line.begin(), line.end(), 0);
    for (int i = 0; i < word.size(); ++i) {
        int above = line[0]++; // in the line before, one to the left
        for (std::size_t j = 1; j < line.size(); ++j) {
            const int replaced = above + (word.at(i) == other.at(int(j) - 1) ? 0 : 1);
            above = line[j];
            line[j] = std::min({line[j] + 1, line[j - 1] + 1, replaced});
        }
    }
    return line.back();
}

} // namespace

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString nearest(const QString &word, const QStringList &words)
{
    const auto slips = [&word](const QString &other) { return slipsBetween(word, other); };
    const auto found =
        std::min_element(words.begin(), words.end(),
                         [&](const QString &a, const QString &b) { return slips(a) < slips(b); });
    const bool isNear = found != words.end() && slips(*found) <= kMostSlips
                        && slips(*found) < std::max(2, int(word.size()));
    return isNear ? *found : QString();
}

QString possibilities(const QString &word, const QStringList &words)
{
    if (words.isEmpty())
        return QStringLiteral(" (there are none)");
    const QString all = QStringLiteral("there are ") + words.join(QStringLiteral(", "));
    const QString near = nearest(word, words);
    return near.isEmpty() ? QStringLiteral(" (%1)").arg(all)
                          : QStringLiteral(" (did you mean %1? %2)").arg(quoted(near), all);
}

} // namespace Tessark::PropertyTest
