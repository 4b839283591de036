#include "host/RuleNames_p.h"

#include "host/Messages_p.h"
#include "host/Suggestion_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueJson.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kMaximumComparisons = 20000;
constexpr int kMaximumSuggestedLength = 64;

RuleValue valueOfJson(const QJsonValue &json)
{
    if (json.isBool())
        return json.toBool();
    if (json.isDouble())
        return json.toDouble();
    if (json.isString())
        return json.toString();
    if (!json.isArray())
        return {};
    QVector<double> numbers;
    const QJsonArray array = json.toArray();
    for (const auto &entry : array)
        numbers.append(entry.toDouble());
    return numbers;
}

/// A part of the JSON form of a composite value; a rate of compression of 0 is not written.
RuleValue componentOfJson(const QJsonValue &json, const QStringList &names, int component)
{
    if (json.isArray())
        return valueOfJson(json.toArray().at(component));
    if (json.isObject())
        return component == 0 ? valueOfJson(json.toObject().value(names.first()))
                              : RuleValue(json.toObject().value(names.at(component)).toDouble());
    return {};
}

/// Values in text form are read, since rules ask for what the text means.
QVariant withoutTextForm(const Property &property, ValueKind kind, const QVariant &value)
{
    if (value.userType() != QMetaType::QString || componentNames(kind).isEmpty())
        return value;
    ConversionError ignored;
    return convertValue(property, QJsonValue(value.toString()), QString(), ignored)
        .value_or(QVariant());
}

/// The type of scalars that all have the same one.
RuleType commonType(const QVariantList &values)
{
    const auto typeOf = [](const QVariant &value) {
        const RuleValue scalar = valueOfJson(QJsonValue::fromVariant(value));
        if (std::holds_alternative<bool>(scalar))
            return RuleType::Boolean;
        if (std::holds_alternative<double>(scalar))
            return RuleType::Number;
        return std::holds_alternative<QString>(scalar) ? RuleType::Text : RuleType::Any;
    };
    if (values.isEmpty())
        return RuleType::Any;
    const RuleType first = typeOf(values.first());
    const bool allSame = std::all_of(values.cbegin(), values.cend(),
                                     [&](const QVariant &value) { return typeOf(value) == first; });
    return allSame ? first : RuleType::Any;
}

RuleType typeOfChoice(const Property &property)
{
    const QVariant values = property.hint(kPropertyHintValues);
    return values.isValid() ? commonType(values.toList()) : RuleType::Number;
}

RuleType typeOfWhole(const Property &property)
{
    switch (typeTraits(property.type).kind) {
    case ValueKind::Boolean:
        return RuleType::Boolean;
    case ValueKind::Integer:
    case ValueKind::Number:
        return RuleType::Number;
    case ValueKind::Text:
    case ValueKind::Texture:
        return RuleType::Text;
    case ValueKind::Choice:
        return typeOfChoice(property);
    case ValueKind::Any:
        return RuleType::Any;
    default:
        return RuleType::Numbers;
    }
}

QString objectionToIndex(const Property &property, const RuleValue &constant)
{
    const auto count = static_cast<int>(property.hint(kPropertyHintDisplayValues).toList().size());
    const auto *const number = std::get_if<double>(&constant);
    if (!number || (*number >= 0 && *number < count && std::trunc(*number) == *number))
        return {};
    return Messages::tr("%1 has no choice %2, the list has %n", nullptr, count)
        .arg(quoted(property.name), QString::number(*number));
}

} // namespace

RuleValue ruleValue(const Property &property, const QVariant &value, int component)
{
    const ValueKind kind = typeTraits(property.type).kind;
    // A choice that the list lacks is a value all the same.
    if (kind != ValueKind::Choice && !isOfKind(property, value))
        return {};
    const QJsonValue json = valueToJson(property, withoutTextForm(property, kind, value));
    return component < 0 ? valueOfJson(json)
                         : componentOfJson(json, componentNames(kind), component);
}

RuleNames::RuleNames(const QVector<const Property *> &rows)
    : m_rows(rows)
    , m_comparisonsLeft(kMaximumComparisons)
{
    for (int row = 0; row < rows.size(); ++row) {
        const QString &name = rows.at(row)->name;
        if (name.isEmpty() || m_rowsByName.contains(name))
            continue;
        m_rowsByName.insert(name, row);
        m_names.append(name);
    }
}

int RuleNames::find(const QString &name) const
{
    return m_rowsByName.value(name, -1);
}

const Property &RuleNames::property(int row) const
{
    return *m_rows.at(row);
}

RuleType RuleNames::typeOf(const RuleOperand &operand) const
{
    const Property &row = property(operand.row);
    if (operand.component < 0)
        return typeOfWhole(row);
    const bool isFormat = typeTraits(row.type).kind == ValueKind::ImageFormat;
    return isFormat && operand.component == 0 ? RuleType::Text : RuleType::Number;
}

int RuleNames::componentCount(int row) const
{
    return static_cast<int>(componentNames(typeTraits(property(row).type).kind).size());
}

QString RuleNames::objection(int row, const RuleValue &constant) const
{
    const Property &choices = property(row);
    if (typeTraits(choices.type).kind != ValueKind::Choice)
        return {};
    const QVariant values = choices.hint(kPropertyHintValues);
    if (!values.isValid())
        return objectionToIndex(choices, constant);
    QStringList texts;
    const QVariantList list = values.toList();
    for (const QVariant &value : list) {
        if (valueOfJson(QJsonValue::fromVariant(value)) == constant)
            return {};
        texts.append(value.toString());
    }
    const auto *const text = std::get_if<QString>(&constant);
    if (!text)
        return Messages::tr("this is not one of the values of %1").arg(quoted(choices.name));
    return Messages::tr("%1 is not one of the values of %2%3")
        .arg(quoted(*text), quoted(choices.name), suggestion(*text, texts));
}

QString RuleNames::suggest(const QString &name) const
{
    const int count = static_cast<int>(m_names.size());
    if (name.size() > kMaximumSuggestedLength || count > m_comparisonsLeft)
        return {};
    m_comparisonsLeft -= count;
    return suggestion(name, m_names);
}

} // namespace Tessark::PropertyHost
