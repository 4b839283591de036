#include "host/SearchText_p.h"

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

// Below are marks of Indic and Japanese syllables, without which these are others.
constexpr int kFirstAccentClass = 10;

constexpr uint kAsciiEnd = 0x80;

bool isAccent(uint character)
{
    return QChar::category(character) == QChar::Mark_NonSpacing
           && QChar::combiningClass(character) >= kFirstAccentClass;
}

QString withoutAccents(const QString &decomposed)
{
    QString letters;
    const auto characters = decomposed.toUcs4();
    for (const char32_t character : characters) {
        if (!isAccent(character))
            letters += QString::fromUcs4(&character, 1);
    }
    return letters;
}

QString foldedCharacter(const QString &character)
{
    if (character.at(0).unicode() < kAsciiEnd)
        return character.toLower();
    // Some letters are only told by their upper case that they are two.
    return withoutAccents(character.normalized(QString::NormalizationForm_KD))
        .toUpper()
        .toCaseFolded();
}

/// A folded text that knows where its characters come from.
struct FoldedText
{
    explicit FoldedText(const QString &original)
    {
        for (int i = 0; i < original.size();) {
            const bool isPair = original.at(i).isHighSurrogate() && i + 1 < original.size()
                                && original.at(i + 1).isLowSurrogate();
            const int length = isPair ? 2 : 1;
            const QString folded = foldedCharacter(original.mid(i, length));
            text += folded;
            origins.insert(origins.end(), folded.size(), i);
            i += length;
        }
        origins.append(static_cast<int>(original.size()));
    }

    TextPart originOf(int begin, int length) const
    {
        // A character may be folded into several, of which a word may end with the first.
        const auto next =
            std::upper_bound(origins.cbegin(), origins.cend(), origins.at(begin + length - 1));
        return {origins.at(begin), *next - origins.at(begin)};
    }

    QString text;
    QVector<int> origins; // of each QChar, and the end
};

void merge(QVector<TextPart> &parts)
{
    std::sort(parts.begin(), parts.end(),
              [](const TextPart &left, const TextPart &right) { return left.begin < right.begin; });
    QVector<TextPart> merged;
    for (const TextPart &part : std::as_const(parts)) {
        if (merged.isEmpty() || merged.last().begin + merged.last().length < part.begin) {
            merged.append(part);
            continue;
        }
        TextPart &last = merged.last();
        last.length = std::max(last.length, part.begin + part.length - last.begin);
    }
    parts = merged;
}

} // namespace

QString foldedForSearch(const QString &text)
{
    const auto isAscii = [](QChar character) { return character.unicode() < kAsciiEnd; };
    return std::all_of(text.cbegin(), text.cend(), isAscii) ? text.toLower()
                                                            : FoldedText(text).text;
}

QStringList searchWords(const QString &text)
{
    QStringList words;
    const QStringList written = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : written) {
        const QString folded = foldedForSearch(word);
        if (!folded.isEmpty() && !words.contains(folded))
            words.append(folded);
    }
    return words;
}

QVector<TextPart> partsWithWords(const QString &text, const QStringList &words)
{
    const FoldedText folded(text);
    QVector<TextPart> parts;
    for (const QString &word : words) {
        auto at = folded.text.indexOf(word);
        for (; at >= 0; at = folded.text.indexOf(word, at + word.size()))
            parts.append(folded.originOf(static_cast<int>(at), static_cast<int>(word.size())));
    }
    merge(parts);
    return parts;
}

} // namespace Tessark::PropertyHost
