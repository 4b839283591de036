#include "host/RelativeEdit.h"

#include "host/Messages_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"
#include "host/ValueParts_p.h"

#include <property/Property.h>

#include <QPointF>
#include <QRegularExpression>
#include <QVector3D>
#include <QVector4D>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr double kPercentPerOne = 100.0;

bool hasArithmetic(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
    case ValueKind::Number:
    case ValueKind::Vector2:
    case ValueKind::Vector3:
    case ValueKind::Vector4:
    case ValueKind::Point:
    case ValueKind::PointF:
    case ValueKind::Size:
    case ValueKind::SizeF:
        return true;
    default:
        return false;
    }
}

bool isWhole(ValueKind kind)
{
    return kind == ValueKind::Integer || kind == ValueKind::Point || kind == ValueKind::Size;
}

int componentCount(const Property &property)
{
    return std::max(1, static_cast<int>(componentNames(typeTraits(property.type).kind).size()));
}

bool isFinite(const QVector<double> &numbers)
{
    return std::all_of(numbers.cbegin(), numbers.cend(),
                       [](double number) { return std::isfinite(number); });
}

/// As many numbers as a value has: one stands for all components. None when the operand does not fit.
QVector<double> operandNumbers(const Property &property, const QVariant &operand)
{
    const int count = componentCount(property);
    const QVector<double> numbers = numbersOf(property, operand);
    if (numbers.size() == 1)
        return QVector<double>(count, numbers.first());
    return numbers.size() == count ? numbers : QVector<double>();
}

double combined(RelativeOperation operation, double left, double right)
{
    switch (operation) {
    case RelativeOperation::Add:
        return left + right;
    case RelativeOperation::Subtract:
        return left - right;
    case RelativeOperation::Multiply:
        return left * right;
    case RelativeOperation::Divide:
        return left / right;
    }
    return left;
}

double boundAt(const QVector<double> &bound, int index, double fallback)
{
    if (bound.size() == 1)
        return bound.first();
    return index < bound.size() ? bound.at(index) : fallback;
}

/// A range whose ends are the wrong way round is its minimum, as its editor shows it.
double intoRange(const Property &property, int index, double number)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const QVariant &maximum =
        property.hardMaxValue.isValid() ? property.hardMaxValue : property.maxValue;
    const double high = boundAt(numbersOf(property, maximum), index, infinity);
    const double low = boundAt(numbersOf(property, property.minValue), index, -infinity);
    return std::max(low, std::min(high, number));
}

double roundedWhole(ValueKind kind, double number)
{
    const double smallest = kind == ValueKind::Size ? 1 : std::numeric_limits<int>::min();
    return std::clamp(std::round(number), smallest, double(std::numeric_limits<int>::max()));
}

/// Why the edit cannot be made of the property's values, or an empty text.
QString refusal(const Property &property, const RelativeEdit &edit, const QVector<double> &operand)
{
    if (!hasArithmetic(typeTraits(property.type).kind))
        return Messages::tr("type \"%1\" has no arithmetic").arg(property.type);
    if (operand.isEmpty()) {
        const int count = componentCount(property);
        return count == 1 ? Messages::tr("the operand is not a number")
                          : Messages::tr("the operand is neither a number nor %n", nullptr, count);
    }
    if (!isFinite(operand))
        return Messages::tr("the operand is not a finite number");
    if (edit.operation == RelativeOperation::Divide && operand.contains(0.0))
        return Messages::tr("division by zero");
    return {};
}

QString withoutSuffix(const Property &property, const QString &text)
{
    const QString suffix = property.type == kPropertyTypePercent
                               ? QStringLiteral("%")
                               : property.hint(kPropertyHintSuffix).toString().trimmed();
    return !suffix.isEmpty() && text.endsWith(suffix) ? text.chopped(suffix.size()).trimmed()
                                                      : text;
}

/// Stored units in one of those that the row shows.
double storedPerShown(const Property &property)
{
    if (property.type == kPropertyTypePercent)
        return 1 / kPercentPerOne;
    const QVariant scale = property.hint(kPropertyHintDisplayScale);
    const double shownPerStored = scale.isNull() ? 1 : scale.toDouble();
    return shownPerStored == 0 ? 1 : 1 / shownPerStored;
}

std::optional<QVector<double>> parsedNumbers(const QString &text)
{
    static const QRegularExpression s_separator(QStringLiteral("\\s*,\\s*|\\s+"));
    QVector<double> numbers;
    const QStringList parts = text.split(s_separator);
    for (const QString &part : parts) {
        bool isNumber = false;
        numbers.append(part.toDouble(&isNumber));
        if (!isNumber || !std::isfinite(numbers.last()))
            return std::nullopt;
    }
    return numbers;
}

std::optional<RelativeOperation> parsedOperation(QChar sign)
{
    switch (sign.unicode()) {
    case '+':
        return RelativeOperation::Add;
    case '-':
        return RelativeOperation::Subtract;
    case '*':
        return RelativeOperation::Multiply;
    case '/':
        return RelativeOperation::Divide;
    default:
        return std::nullopt;
    }
}

/// Several numbers in the variant that their count asks for.
QVariant vectorOf(const QVector<double> &numbers)
{
    QVector4D vector;
    for (int i = 0; i < numbers.size(); ++i)
        vector[i] = static_cast<float>(numbers.at(i));
    switch (numbers.size()) {
    case 2:
        return QPointF(numbers.at(0), numbers.at(1));
    case 3:
        return vector.toVector3D();
    default:
        return vector;
    }
}

} // namespace

std::optional<RelativeEdit> parseRelativeEdit(const QString &text, const Property &property)
{
    const QString trimmed = text.trimmed();
    if (trimmed.size() < 3 || trimmed.at(1) != QLatin1Char('=')
        || !hasArithmetic(typeTraits(property.type).kind))
        return std::nullopt;
    const auto operation = parsedOperation(trimmed.at(0));
    auto numbers = parsedNumbers(withoutSuffix(property, trimmed.mid(2).trimmed()));
    if (!operation || !numbers)
        return std::nullopt;
    if (numbers->size() != 1 && numbers->size() != componentCount(property))
        return std::nullopt;
    if (*operation == RelativeOperation::Add || *operation == RelativeOperation::Subtract) {
        for (double &number : *numbers)
            number *= storedPerShown(property);
    }
    return RelativeEdit{*operation,
                        numbers->size() == 1 ? QVariant(numbers->first()) : vectorOf(*numbers)};
}

std::optional<QVariant> applyRelativeEdit(const Property &property, const QVariant &value,
                                          const RelativeEdit &edit, QString &error)
{
    const ValueKind kind = typeTraits(property.type).kind;
    const QVector<double> operand = operandNumbers(property, edit.operand);
    error = refusal(property, edit, operand);
    if (!error.isEmpty())
        return std::nullopt;
    QVector<double> numbers = numbersOf(property, value);
    if (numbers.size() != operand.size() || !isFinite(numbers)) {
        error = Messages::tr("the value is not %1").arg(kindName(kind));
        return std::nullopt;
    }
    for (int i = 0; i < numbers.size(); ++i) {
        numbers[i] = intoRange(property, i, combined(edit.operation, numbers.at(i), operand.at(i)));
        if (isWhole(kind))
            numbers[i] = roundedWhole(kind, numbers.at(i));
    }
    const QVariant result = isFinite(numbers) ? valueOfNumbers(property, numbers) : QVariant();
    if (!result.isValid()) {
        error = Messages::tr("the result is not %1").arg(kindName(kind));
        return std::nullopt;
    }
    return result;
}

} // namespace Tessark::PropertyHost
