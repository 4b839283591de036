#include "host/JsonInput_p.h"

#include "host/Messages_p.h"

#include <QJsonParseError>

#include <algorithm>
#include <iterator>

namespace Tessark::PropertyHost {

namespace {

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// How many bytes the character that starts with this byte has, or 0 if none can.
int sequenceLength(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

/// True when the second byte makes neither an overlong form, nor a surrogate, nor a character
/// beyond the last one.
bool fitsSecondByte(unsigned char first, unsigned char second)
{
    switch (first) {
    case 0xE0:
        return second >= 0xA0;
    case 0xED:
        return second <= 0x9F;
    case 0xF0:
        return second >= 0x90;
    case 0xF4:
        return second <= 0x8F;
    default:
        return true;
    }
}

bool isCharacter(const QByteArray &text, int offset, int length)
{
    if (length == 0 || length > text.size() - offset)
        return false;
    for (int i = 1; i < length; ++i) {
        if (!isContinuation(text.at(offset + i)))
            return false;
    }
    return length == 1
           || fitsSecondByte(static_cast<unsigned char>(text.at(offset)),
                             static_cast<unsigned char>(text.at(offset + 1)));
}

/// Offset of the first byte that is not part of a UTF-8 character, or -1.
int firstInvalidByte(const QByteArray &text)
{
    const int size = static_cast<int>(text.size());
    for (int offset = 0; offset < size;) {
        const int length = sequenceLength(static_cast<unsigned char>(text.at(offset)));
        if (!isCharacter(text, offset, length))
            return offset;
        offset += length;
    }
    return -1;
}

/// An error at the character that starts at offset, or behind the last one.
Problem problemAt(const QByteArray &text, int offset, const QString &message)
{
    const auto position = text.cbegin() + offset;
    const auto lineStart =
        std::find(std::make_reverse_iterator(position), text.crend(), '\n').base();
    Problem problem;
    problem.message = message;
    problem.line = 1 + static_cast<int>(std::count(text.cbegin(), position, '\n'));
    problem.column = 1 + static_cast<int>(std::count_if(lineStart, position, [](char byte) {
                         return !isContinuation(byte);
                     }));
    return problem;
}

/// True when the parser took for a number what does not even start like one; it then reports the
/// place itself, and not the one behind it.
bool isNoNumber(const QByteArray &text, const QJsonParseError &error)
{
    const QByteArray numberBytes("+-.0123456789eE");
    return error.error == QJsonParseError::IllegalNumber
           && (error.offset <= 0 || !numberBytes.contains(text.at(error.offset - 1)));
}

/// Offset of the character that the parser stumbled over. The parser reports where it would have
/// gone on, which is one byte later, except for what follows a complete document.
int offendingCharacter(const QByteArray &text, const QJsonParseError &error)
{
    const bool isExact = error.error == QJsonParseError::GarbageAtEnd || isNoNumber(text, error);
    int offset = std::clamp(error.offset - (isExact ? 0 : 1), 0, static_cast<int>(text.size()));
    while (offset > 0 && offset < text.size() && isContinuation(text.at(offset)))
        --offset;
    return offset;
}

Problem syntaxProblem(const QByteArray &text, const QJsonParseError &error)
{
    return problemAt(text, offendingCharacter(text, error),
                     isNoNumber(text, error) ? Messages::tr("illegal value") : error.errorString());
}

} // namespace

std::optional<QJsonDocument> parseJson(const QByteArray &json, QVector<Problem> &problems)
{
    const bool hasMark = json.startsWith("\xEF\xBB\xBF");
    const QByteArray text = hasMark ? json.mid(3) : json;
    if (text.trimmed().isEmpty()) {
        problems.append(problemAt(text, 0, Messages::tr("the document is empty")));
        return std::nullopt;
    }
    const int invalid = firstInvalidByte(text);
    if (invalid >= 0) {
        const auto byte = static_cast<unsigned char>(text.at(invalid));
        problems.append(
            problemAt(text, invalid,
                      Messages::tr("invalid UTF-8: byte 0x%1").arg(byte, 2, 16, QLatin1Char('0'))));
        return std::nullopt;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        problems.append(syntaxProblem(text, error));
        return std::nullopt;
    }
    return document;
}

} // namespace Tessark::PropertyHost
