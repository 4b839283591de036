#include "host/RowText_p.h"

#include "host/ValueJson.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

QString numberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString arrayText(const QJsonArray &array)
{
    QStringList texts;
    for (const auto &element : array) {
        if (!element.isDouble()) // of a type of the host
            return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
        texts.append(numberText(element.toDouble()));
    }
    return texts.join(QLatin1Char(' '));
}

/// The only element of a JSON array, so that the text may be any JSON value.
QJsonValue jsonOfText(const QString &text)
{
    const QByteArray array = '[' + text.toUtf8() + ']';
    const QJsonArray elements = QJsonDocument::fromJson(array).array();
    return elements.size() == 1 ? elements.first() : QJsonValue(QJsonValue::Undefined);
}

/// An array of the numbers in the text, or undefined.
QJsonValue numbersOfText(const QString &text)
{
    static const QRegularExpression s_separator(QStringLiteral("\\s*[,;]\\s*|\\s+"));
    QJsonArray numbers;
    const QStringList parts = text.split(s_separator);
    for (const QString &part : parts) {
        bool isNumber = false;
        const double number = part.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number))
            return QJsonValue::Undefined;
        numbers.append(number);
    }
    return numbers;
}

QJsonValue numberInLocale(const QString &text)
{
    bool isNumber = false;
    const double number = QLocale().toDouble(text, &isNumber);
    return isNumber && std::isfinite(number) ? QJsonValue(number)
                                             : QJsonValue(QJsonValue::Undefined);
}

/// The value of the only choice that is shown as the text.
std::optional<QVariant> choiceOfText(const Property &property, const QString &text)
{
    const QVariantList shown = property.hint(kPropertyHintDisplayValues).toList();
    if (typeTraits(property.type).kind != ValueKind::Choice || shown.count(text) != 1)
        return std::nullopt;
    const auto index = shown.indexOf(text);
    const QVariant values = property.hint(kPropertyHintValues);
    if (values.isNull())
        return static_cast<int>(index);
    return index < values.toList().size() ? std::optional(values.toList().at(index)) : std::nullopt;
}

} // namespace

QString textOfValue(const Property &property, const QVariant &value)
{
    const QJsonValue json = valueToJson(property, value);
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return numberText(json.toDouble());
    case QJsonValue::String:
        return json.toString();
    case QJsonValue::Array:
        return arrayText(json.toArray());
    case QJsonValue::Object:
        return QString::fromUtf8(QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact));
    default:
        return {};
    }
}

std::optional<QVariant> valueOfText(const Property &property, const QString &text)
{
    if (typeTraits(property.type).kind == ValueKind::Text)
        return text;
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    QString ignored;
    // Numbers come before texts, whose readers take single precision.
    for (const QJsonValue &json : {jsonOfText(trimmed), numbersOfText(trimmed), QJsonValue(trimmed),
                                   numberInLocale(trimmed)}) {
        auto value = json.isUndefined() ? std::nullopt : valueFromJson(property, json, ignored);
        if (value)
            return value;
    }
    return choiceOfText(property, trimmed);
}

} // namespace Tessark::PropertyHost
