#include "host/JsonConversion_p.h"

#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"

#include <property/ValueCodecs.h>

#include <QRegularExpression>
#include <QRgba64>

#include <cmath>
#include <limits>

namespace Tessark::PropertyHost {

namespace {

bool fitsInt(double number)
{
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

bool isWhole(double number)
{
    return std::trunc(number) == number;
}

bool isNumberText(const QString &text)
{
    // Stricter than toFloat(), which takes surrounding blanks, "inf" and "nan" too.
    static const QRegularExpression s_number(
        QStringLiteral("\\A[+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?\\z"));
    bool ok = false;
    // cppcheck-suppress ignoredReturnValue ; what counts is whether it is a number
    text.toFloat(&ok);
    return ok && s_number.match(text).hasMatch();
}

std::optional<QJsonArray> arrayFromJson(const QJsonValue &json, int count, const char *what,
                                        ConversionError &error)
{
    if (!json.isArray()) {
        error.message = expectedMessage(Messages::tr(what), json);
        return std::nullopt;
    }
    const QJsonArray array = json.toArray();
    if (array.size() != count) {
        error.message = Messages::tr("expected %1, found an array of %n", nullptr,
                                     static_cast<int>(array.size()))
                            .arg(Messages::tr(what));
        return std::nullopt;
    }
    return array;
}

bool checkFraction(double fraction, const QString &path, ConversionError &error)
{
    if (fraction >= 0.0 && fraction <= 1.0)
        return true;
    error.message = Messages::tr("a colour component must lie between 0 and 1");
    error.path = path;
    return false;
}

/// A fraction in the steps that QColor keeps.
quint16 channel(double fraction)
{
    return static_cast<quint16>(std::lround(fraction * std::numeric_limits<quint16>::max()));
}

std::optional<QColor> colorFromArray(const QJsonValue &json, Alpha alpha, ConversionError &error)
{
    const bool withAlpha = alpha == Alpha::With && json.toArray().size() == 4;
    const char *const what =
        alpha == Alpha::With
            ? QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "3 or 4 fractions")
            : QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "3 fractions");
    const auto numbers = numbersFromJson(json, withAlpha ? 4 : 3, what, error);
    if (!numbers)
        return std::nullopt;
    for (int i = 0; i < numbers->size(); ++i) {
        if (!checkFraction(numbers->at(i), childPointer(QString(), i), error))
            return std::nullopt;
    }
    return QColor::fromRgba64(channel(numbers->at(0)), channel(numbers->at(1)),
                              channel(numbers->at(2)), channel(withAlpha ? numbers->at(3) : 1.0));
}

bool checkFractionsText(const QStringList &parts, ConversionError &error)
{
    for (const QString &part : parts) {
        if (!checkFraction(part.toDouble(), QString(), error))
            return false;
    }
    return true;
}

/// True when QColor_fromString() takes the text as fractions, and not as a name or hash notation.
bool hasFractions(const QStringList &parts)
{
    return parts.size() == 3 || parts.size() == 4
           || (parts.size() == 1 && isNumberText(parts.first()));
}

std::optional<QColor> colorFromText(const QString &text, Alpha alpha, ConversionError &error)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    if (hasFractions(parts)) {
        const int count = static_cast<int>(parts.size());
        if (!checkNumbersText(text, count, OneForAll::No, error)
            || !checkFractionsText(parts, error))
            return std::nullopt;
    } else if (!QColor::isValidColor(text)) {
        error.message = Messages::tr("%1 is not a colour").arg(quoted(text));
        return std::nullopt;
    }
    const QColor color = PropertyUI::QColor_fromString(text);
    if (alpha == Alpha::Without && color.alpha() != 255) {
        error.message = Messages::tr("%1 is not an opaque colour").arg(quoted(text));
        return std::nullopt;
    }
    return color;
}

} // namespace

QString jsonKindName(const QJsonValue &json)
{
    switch (json.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return Messages::tr("a boolean");
    case QJsonValue::Double:
        return Messages::tr("a number");
    case QJsonValue::String:
        return Messages::tr("a string");
    case QJsonValue::Array:
        return Messages::tr("an array");
    case QJsonValue::Object:
        return Messages::tr("an object");
    case QJsonValue::Undefined:
        break;
    }
    return Messages::tr("nothing");
}

QString expectedMessage(const QString &what, const QJsonValue &json)
{
    return Messages::tr("expected %1, found %2").arg(what, jsonKindName(json));
}

std::optional<bool> booleanFromJson(const QJsonValue &json, ConversionError &error)
{
    if (json.isBool())
        return json.toBool();
    error.message = expectedMessage(Messages::tr("a boolean"), json);
    return std::nullopt;
}

std::optional<QString> textFromJson(const QJsonValue &json, ConversionError &error)
{
    if (json.isString())
        return json.toString();
    error.message = expectedMessage(Messages::tr("a string"), json);
    return std::nullopt;
}

std::optional<double> numberFromJson(const QJsonValue &json, ConversionError &error)
{
    if (json.isDouble())
        return json.toDouble();
    error.message = expectedMessage(Messages::tr("a number"), json);
    return std::nullopt;
}

std::optional<int> integerFromJson(const QJsonValue &json, ConversionError &error)
{
    if (!json.isDouble()) {
        error.message = expectedMessage(Messages::tr("a whole number"), json);
        return std::nullopt;
    }
    const double number = json.toDouble();
    if (!isWhole(number)) {
        error.message = Messages::tr("expected a whole number, found %1").arg(number);
        return std::nullopt;
    }
    if (!fitsInt(number)) {
        error.message = Messages::tr("a whole number must lie between %1 and %2")
                            .arg(std::numeric_limits<int>::min())
                            .arg(std::numeric_limits<int>::max());
        return std::nullopt;
    }
    return static_cast<int>(number);
}

std::optional<QVector<double>> numbersFromJson(const QJsonValue &json, int count, const char *what,
                                               ConversionError &error)
{
    const auto array = arrayFromJson(json, count, what, error);
    if (!array)
        return std::nullopt;
    QVector<double> numbers;
    for (int i = 0; i < count; ++i) {
        const auto number = numberFromJson(array->at(i), error);
        if (!number) {
            error.path = childPointer(QString(), i);
            return std::nullopt;
        }
        numbers.append(*number);
    }
    return numbers;
}

std::optional<QVector<int>> integersFromJson(const QJsonValue &json, int count, const char *what,
                                             ConversionError &error)
{
    const auto array = arrayFromJson(json, count, what, error);
    if (!array)
        return std::nullopt;
    QVector<int> numbers;
    for (int i = 0; i < count; ++i) {
        const auto number = integerFromJson(array->at(i), error);
        if (!number) {
            error.path = childPointer(QString(), i);
            return std::nullopt;
        }
        numbers.append(*number);
    }
    return numbers;
}

bool checkNumbersText(const QString &text, int count, OneForAll oneForAll, ConversionError &error)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    if (parts.size() != count && !(oneForAll == OneForAll::Yes && parts.size() == 1)) {
        error.message =
            Messages::tr("expected %n numbers with single spaces between, found %1", nullptr, count)
                .arg(quoted(text));
        return false;
    }
    for (const QString &part : parts) {
        if (!isNumberText(part)) {
            error.message =
                Messages::tr("%1 in %2 is not a number").arg(quoted(part), quoted(text));
            return false;
        }
    }
    return true;
}

bool checkKeys(const QJsonObject &object, const QStringList &known, const QString &required,
               ConversionError &error)
{
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        if (!known.contains(it.key())) {
            error.message = Messages::tr("unknown key%1").arg(suggestion(it.key(), known));
            error.path = childPointer(QString(), it.key());
            return false;
        }
    }
    if (!object.contains(required))
        error.message = Messages::tr("\"%1\" is missing").arg(required);
    return object.contains(required);
}

std::optional<QSize> sizeFromJson(const QJsonValue &json, ConversionError &error)
{
    const auto numbers = integersFromJson(json, 2, kSizeForm, error);
    return numbers ? std::optional(QSize(numbers->at(0), numbers->at(1))) : std::nullopt;
}

std::optional<QColor> colorFromJson(const QJsonValue &json, Alpha alpha, ConversionError &error)
{
    if (json.isArray())
        return colorFromArray(json, alpha, error);
    if (json.isString())
        return colorFromText(json.toString(), alpha, error);
    error.message = expectedMessage(Messages::tr("a colour as text or array of fractions"), json);
    return std::nullopt;
}

std::optional<QVariant> scalarFromJson(const QJsonValue &json, ConversionError &error)
{
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::String:
        return json.toString();
    case QJsonValue::Double: {
        const double number = json.toDouble();
        const bool isInt = isWhole(number) && fitsInt(number);
        return isInt ? QVariant(static_cast<int>(number)) : json.toVariant();
    }
    default:
        error.message = expectedMessage(Messages::tr("a string, a number or a boolean"), json);
        return std::nullopt;
    }
}

} // namespace Tessark::PropertyHost
