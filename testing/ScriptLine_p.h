#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Tessark::PropertyTest {

/// The words of a line up to a "#" before a blank, read one after the other. The first word that is not as expected is noted, and
/// everything after it reads as empty.
class ScriptLine
{
public:
    explicit ScriptLine(const QString &line);

    bool isBlank() const { return m_words.isEmpty(); }

    /// The next word without its quotes; an error, naming what, at the end of the line.
    QString take(const QString &what);

    /// The next word, which is one of these, not quoted; an error otherwise.
    QString takeOneOf(const QStringList &words);

    /// Goes past the next word if it is this one, not quoted.
    bool skip(const QString &word);

    double takeNumber();
    int takeCount(); // a whole number

    /// All that is left, of which there is something; blanks between words count as one.
    QString takeRest(const QString &what);

    /// All that is left, apart at commas outside of quotes; empty where nothing is left.
    QStringList takeList();

    /// Whether the word after the next is one of these.
    bool isFollowedBy(const QStringList &words) const;

    /// Whether all words were read and were as expected.
    bool isDone();

    QString error() const { return m_error; }

private:
    struct Word
    {
        QString text;
        bool isQuoted;
    };

    void split(const QString &line);
    void fail(const QString &expected);

    QVector<Word> m_words;
    int m_next = 0;
    QString m_error;
};

} // namespace Tessark::PropertyTest
