#include "host/RuleLexer_p.h"

#include "host/Messages_p.h"
#include "host/Suggestion_p.h"

#include <QLocale>

#include <cmath>

namespace Tessark::PropertyHost {

namespace {

const char *const kSigns[] = {"==", "!=", "<=", ">=", "&&", "||", "<", ">", "!", "(",
                              ")",  "[",  "]",  ",",  "+",  "-",  "*", "/", "."};

bool startsName(QChar letter)
{
    return letter.isLetter() || letter == QLatin1Char('_');
}

bool continuesName(QChar letter)
{
    return startsName(letter) || letter.isDigit();
}

bool isDigit(QChar letter)
{
    return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
}

RuleToken makeToken(RuleToken::Kind kind, const QString &text, int position)
{
    RuleToken token;
    token.kind = kind;
    token.text = text;
    token.position = position;
    return token;
}

} // namespace

RuleLexer::RuleLexer(const QString &text)
    : m_text(text)
{
}

RuleToken RuleLexer::next()
{
    while (at(m_position).isSpace())
        ++m_position;
    const QChar letter = at(m_position);
    if (m_position >= m_text.size())
        return makeToken(RuleToken::Kind::End, QString(), m_position);
    if (startsName(letter))
        return readName();
    if (isDigit(letter) || (letter == QLatin1Char('.') && isDigit(at(m_position + 1))))
        return readNumber();
    if (letter == QLatin1Char('\'') || letter == QLatin1Char('"'))
        return readQuoted(letter, RuleToken::Kind::Text);
    if (letter == QLatin1Char('`'))
        return readQuoted(letter, RuleToken::Kind::QuotedName);
    return readSign();
}

/// Letters, digits and underscores, joined by points.
RuleToken RuleLexer::readName()
{
    const int start = m_position;
    while (continuesName(at(m_position))
           || (at(m_position) == QLatin1Char('.') && startsName(at(m_position + 1))))
        ++m_position;
    return makeToken(RuleToken::Kind::Name, m_text.mid(start, m_position - start), start);
}

RuleToken RuleLexer::readNumber()
{
    const int start = m_position;
    while (isDigit(at(m_position)) || at(m_position) == QLatin1Char('.'))
        ++m_position;
    if (at(m_position).toLower() == QLatin1Char('e')) {
        ++m_position;
        if (at(m_position) == QLatin1Char('+') || at(m_position) == QLatin1Char('-'))
            ++m_position;
        while (isDigit(at(m_position)))
            ++m_position;
    }
    const QString text = m_text.mid(start, m_position - start);
    bool ok = false;
    RuleToken token = makeToken(RuleToken::Kind::Number, text, start);
    token.number = QLocale::c().toDouble(text, &ok);
    if (ok && std::isfinite(token.number) && !continuesName(at(m_position)))
        return token;
    return makeToken(RuleToken::Kind::Bad, Messages::tr("%1 is not a number").arg(quoted(text)),
                     start);
}

/// A backslash takes the letter behind it as it is.
RuleToken RuleLexer::readQuoted(QChar quote, RuleToken::Kind kind)
{
    const int start = m_position++;
    QString content;
    while (m_position < m_text.size() && at(m_position) != quote) {
        if (at(m_position) == QLatin1Char('\\') && m_position + 1 < m_text.size())
            ++m_position;
        content += at(m_position++);
    }
    if (m_position++ >= m_text.size())
        return makeToken(RuleToken::Kind::Bad,
                         Messages::tr("the %1 that opens here never closes").arg(quote), start);
    return makeToken(kind, content, start);
}

RuleToken RuleLexer::readSign()
{
    const int start = m_position;
    for (const char *const sign : kSigns) {
        const QLatin1String text(sign);
        if (m_text.mid(start, int(text.size())) != text)
            continue;
        m_position += int(text.size());
        return makeToken(RuleToken::Kind::Sign, text, start);
    }
    const QString hint =
        at(start) == QLatin1Char('=') ? didYouMean(QStringLiteral("==")) : QString();
    return makeToken(RuleToken::Kind::Bad,
                     Messages::tr("%1 is not expected%2").arg(quoted(at(start)), hint), start);
}

QChar RuleLexer::at(int position) const
{
    return position < m_text.size() ? m_text.at(position) : QChar();
}

} // namespace Tessark::PropertyHost
