#include "testing/ScriptLine_p.h"

#include "testing/Spelling_p.h"

namespace Tessark::PropertyTest {

ScriptLine::ScriptLine(const QString &line)
{
    const QString text = line.trimmed();
    if (!text.startsWith(QLatin1Char('#')))
        split(text);
}

QString ScriptLine::take(const QString &what)
{
    if (!m_error.isEmpty() || m_next >= m_words.size()) {
        fail(what);
        return QString();
    }
    return m_words.at(m_next++).text;
}

QString ScriptLine::takeOneOf(const QStringList &words)
{
    const bool isThere = m_error.isEmpty() && m_next < m_words.size();
    const Word word = isThere ? m_words.at(m_next) : Word{QString(), false};
    if (isThere && !word.isQuoted && words.contains(word.text)) {
        ++m_next;
        return word.text;
    }
    fail(words.size() == 1 ? quoted(words.first()) : QStringLiteral("another word"));
    if (isThere && words.size() > 1)
        m_error += possibilities(word.text, words);
    return QString();
}

bool ScriptLine::skip(const QString &word)
{
    const bool isIt = m_error.isEmpty() && m_next < m_words.size() && !m_words.at(m_next).isQuoted
                      && m_words.at(m_next).text == word;
    m_next += isIt ? 1 : 0;
    return isIt;
}

double ScriptLine::takeNumber()
{
    bool isNumber = false;
    const double number = take(QStringLiteral("a number")).toDouble(&isNumber);
    if (!isNumber && m_error.isEmpty()) {
        --m_next;
        fail(QStringLiteral("a number"));
    }
    return number;
}

int ScriptLine::takeCount()
{
    bool isNumber = false;
    const int number = take(QStringLiteral("a whole number")).toInt(&isNumber);
    if (!isNumber && m_error.isEmpty()) {
        --m_next;
        fail(QStringLiteral("a whole number"));
    }
    return number;
}

QString ScriptLine::takeRest(const QString &what)
{
    QStringList texts = {take(what)};
    while (m_error.isEmpty() && m_next < m_words.size())
        texts.append(m_words.at(m_next++).text);
    return texts.join(QLatin1Char(' '));
}

QStringList ScriptLine::takeList()
{
    QStringList list;
    QStringList entry;
    const auto endEntry = [&] {
        if (!entry.isEmpty())
            list.append(entry.join(QLatin1Char(' ')));
        entry.clear();
    };
    for (; m_error.isEmpty() && m_next < m_words.size(); ++m_next) {
        const Word &word = m_words.at(m_next);
        const QStringList parts =
            word.isQuoted ? QStringList(word.text) : word.text.split(QLatin1Char(','));
        for (int i = 0; i < parts.size(); ++i) {
            if (i > 0)
                endEntry();
            if (word.isQuoted || !parts.at(i).isEmpty())
                entry.append(parts.at(i));
        }
    }
    endEntry();
    return list;
}

bool ScriptLine::isFollowedBy(const QStringList &words) const
{
    return m_next + 1 < m_words.size() && !m_words.at(m_next + 1).isQuoted
           && words.contains(m_words.at(m_next + 1).text);
}

bool ScriptLine::isDone()
{
    if (m_error.isEmpty() && m_next < m_words.size())
        fail(QStringLiteral("the end of the line"));
    return m_error.isEmpty();
}

/// Blanks separate words, quotes keep them together; a backslash keeps a quote, and "\n" is a break.
void ScriptLine::split(const QString &line)
{
    int i = 0;
    while (i < line.size()) {
        if (line.at(i).isSpace()) {
            ++i;
            continue;
        }
        if (line.mid(i, 2) == QLatin1String("# "))
            return;
        Word word{QString(), line.at(i) == QLatin1Char('"')};
        i += word.isQuoted ? 1 : 0;
        const auto isEnd = [&](QChar c) {
            return word.isQuoted ? c == QLatin1Char('"') : c.isSpace();
        };
        for (; i < line.size() && !isEnd(line.at(i)); ++i) {
            const bool isEscape =
                word.isQuoted && line.at(i) == QLatin1Char('\\') && i + 1 < line.size();
            i += isEscape ? 1 : 0;
            const bool isBreak = isEscape && line.at(i) == QLatin1Char('n');
            word.text += isBreak ? QLatin1Char('\n') : line.at(i);
        }
        if (word.isQuoted && i >= line.size())
            m_error = QStringLiteral("a quote is not closed");
        i += word.isQuoted ? 1 : 0;
        m_words.append(word);
    }
}

void ScriptLine::fail(const QString &expected)
{
    if (!m_error.isEmpty())
        return;
    const QString found = m_next < m_words.size() ? quoted(m_words.at(m_next).text)
                                                  : QStringLiteral("the end of the line");
    m_error = QStringLiteral("word %1: expected %2, found %3")
                  .arg(QString::number(m_next + 1), expected, found);
}

} // namespace Tessark::PropertyTest
