#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Tessark::PropertyHost {

/// A part of a text, counted in QChars.
struct TextPart
{
    int begin = 0;
    int length = 0;

    friend bool operator==(const TextPart &left, const TextPart &right)
    {
        return left.begin == right.begin && left.length == right.length;
    }
};

/// The text as it is compared: upper and lower case, accents and forms of a letter make no difference.
/// Marks that make another letter or another syllable of one stay.
QString foldedForSearch(const QString &text);

/// The words of what the user looks for, folded, each once.
QStringList searchWords(const QString &text);

/// Where in the text, which is not folded, the words of searchWords() are. In order and apart.
QVector<TextPart> partsWithWords(const QString &text, const QStringList &words);

} // namespace Tessark::PropertyHost
