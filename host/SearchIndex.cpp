#include "host/SearchIndex_p.h"

#include "host/SearchText_p.h"

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

constexpr QLatin1Char kBetweenTexts('\n'); // in no word

} // namespace

SearchIndex::SearchIndex(int rows)
    : m_texts(static_cast<std::size_t>(rows))
{
}

void SearchIndex::setTexts(int row, const QStringList &texts)
{
    m_texts[static_cast<std::size_t>(row)] = foldedForSearch(texts.join(kBetweenTexts));
}

bool SearchIndex::matches(int row, const QStringList &words) const
{
    const QString &text = m_texts[static_cast<std::size_t>(row)];
    return std::all_of(words.cbegin(), words.cend(),
                       [&text](const QString &word) { return text.contains(word); });
}

} // namespace Tessark::PropertyHost
