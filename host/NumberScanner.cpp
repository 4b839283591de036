#include "host/NumberScanner_p.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyHost {

namespace {

constexpr QLatin1Char kPoint('.');
constexpr QLatin1Char kComma(',');
constexpr QLatin1Char kBackquote('`');
constexpr int kGroupSize = 3;

bool isDigit(QChar letter)
{
    return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
}

bool isMark(QChar letter)
{
    return letter == kPoint || letter == kComma;
}

bool startsName(QChar letter)
{
    return letter.isLetter() || letter == QLatin1Char('_');
}

bool continuesName(QChar letter)
{
    return startsName(letter) || isDigit(letter);
}

QChar plainEquivalent(QChar letter)
{
    if (letter.isDigit())
        return QLatin1Char(static_cast<char>('0' + letter.digitValue()));
    switch (letter.unicode()) {
    case 0x2212: // minus sign
        return QLatin1Char('-');
    case 0x00D7: // multiplication sign
    case 0x00B7: // middle dot
    case 0x22C5: // dot operator
        return QLatin1Char('*');
    case 0x00F7: // division sign
        return QLatin1Char('/');
    case 0x066A: // Arabic percent sign
        return QLatin1Char('%');
    case 0x066B: // Arabic decimal separator
        return kPoint;
    case 0x066C: // Arabic thousands separator
        return kComma;
    default:
        return letter;
    }
}

bool areGroups(const QStringList &groups)
{
    const auto isFull = [](const QString &group) { return group.size() == kGroupSize; };
    return !groups.first().isEmpty() && groups.first().size() <= kGroupSize
           && std::all_of(groups.cbegin() + 1, groups.cend(), isFull);
}

/// The digits with a point as the only mark; nothing if the marks contradict one another. One mark
/// is the decimal mark. Of two different ones the last is, and the others form groups of three
/// digits; one mark more than once forms groups as well.
QString withPoint(QString digits)
{
    const bool isMixed = digits.contains(kPoint) && digits.contains(kComma);
    if (!isMixed && digits.count(kPoint) + digits.count(kComma) <= 1)
        return digits.replace(kComma, kPoint);
    const auto last = std::max(digits.lastIndexOf(kPoint), digits.lastIndexOf(kComma));
    const QChar lastMark = digits.at(last);
    if (isMixed && digits.count(lastMark) > 1)
        return {};
    const QChar groupMark = isMixed == (lastMark == kPoint) ? QChar(kComma) : QChar(kPoint);
    const QStringList groups = (isMixed ? digits.left(last) : digits).split(groupMark);
    if (!areGroups(groups))
        return {};
    return groups.join(QString()) + (isMixed ? kPoint + digits.mid(last + 1) : QString());
}

} // namespace

NumberScanner::NumberScanner(const QString &text)
    : m_text(text)
{
}

int NumberScanner::position()
{
    while (m_position < size() && m_text.at(m_position).isSpace())
        ++m_position;
    return m_position;
}

bool NumberScanner::take(char sign)
{
    if (at(position()) != QLatin1Char(sign))
        return false;
    ++m_position;
    return true;
}

bool NumberScanner::takeText(const QString &text)
{
    const int end = position() + static_cast<int>(text.size());
    if (text.isEmpty() || m_text.mid(m_position, static_cast<int>(text.size())) != text)
        return false;
    if (continuesName(text.back()) && continuesName(at(end)))
        return false;
    m_position = end;
    return true;
}

std::optional<double> NumberScanner::takeNumber()
{
    const int start = position();
    const int end = numberEnd(start);
    QString digits;
    int i = start;
    for (; i < end && (isDigit(at(i)) || isMark(at(i))); ++i)
        digits += at(i);
    QString text = withPoint(digits);
    for (; i < end; ++i)
        text += at(i);
    bool ok = false;
    const double number = QLocale::c().toDouble(text, &ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    m_position = end;
    return number;
}

QString NumberScanner::takeName()
{
    const int start = position();
    const bool isQuoted = at(start) == kBackquote;
    const int end =
        isQuoted ? static_cast<int>(m_text.indexOf(kBackquote, start + 1)) : nameEnd(start);
    if (end <= start)
        return {};
    m_position = isQuoted ? end + 1 : end;
    return isQuoted ? m_text.mid(start + 1, end - start - 1) : m_text.mid(start, end - start);
}

bool NumberScanner::isNumberNext()
{
    const int start = position();
    return isDigit(at(start)) || (isMark(at(start)) && isDigit(at(start + 1)));
}

QString NumberScanner::nextPart()
{
    const int start = position();
    const int end = isNumberNext() ? numberEnd(start) : nameEnd(start);
    return m_text.mid(start, std::max(end - start, 1));
}

QChar NumberScanner::at(int position) const
{
    return position < size() ? plainEquivalent(m_text.at(position)) : QChar();
}

/// Behind digits, marks and an exponent. A letter e that no digits follow is none.
int NumberScanner::numberEnd(int start) const
{
    int end = start;
    while (isDigit(at(end)) || isMark(at(end)))
        ++end;
    if (at(end).toLower() != QLatin1Char('e'))
        return end;
    int exponent = end + 1;
    if (at(exponent) == QLatin1Char('+') || at(exponent) == QLatin1Char('-'))
        ++exponent;
    if (!isDigit(at(exponent)))
        return end;
    while (isDigit(at(exponent)))
        ++exponent;
    return exponent;
}

int NumberScanner::nameEnd(int start) const
{
    int end = start;
    if (!startsName(at(start)))
        return start;
    while (continuesName(at(end)) || (at(end) == kPoint && startsName(at(end + 1))))
        ++end;
    return end;
}

} // namespace Tessark::PropertyHost
