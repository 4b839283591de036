#include "host/FollowedBounds_p.h"

#include "host/ValueCheck_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool hasWholeNumbers(ValueKind kind)
{
    return kind == ValueKind::Integer || kind == ValueKind::Point || kind == ValueKind::Rect;
}

/// The numbers that a rule gave for a bound of count parts; none when it gave nothing usable.
QVector<double> numbersOf(const RuleValue &value, int count)
{
    if (const auto *const number = std::get_if<double>(&value))
        return QVector<double>(count, *number);
    const auto *const numbers = std::get_if<QVector<double>>(&value);
    return numbers && numbers->size() == count ? *numbers : QVector<double>();
}

double saturated(double number)
{
    return std::clamp(number, double(std::numeric_limits<int>::min()),
                      double(std::numeric_limits<int>::max()));
}

QVariant boundVariant(const Property &property, QVector<double> numbers, double (*round)(double))
{
    if (hasWholeNumbers(typeTraits(property.type).kind)) {
        std::transform(numbers.begin(), numbers.end(), numbers.begin(),
                       [round](double number) { return saturated(round(number)); });
    }
    return valueOfNumbers(property, numbers);
}

double roundUp(double number)
{
    return std::ceil(number);
}

double roundDown(double number)
{
    return std::floor(number);
}

/// The bound with each part that choose() takes of it and of another bound.
QVariant combined(const Property &property, const QVariant &bound, const QVariant &other,
                  const double &(*choose)(const double &, const double &))
{
    QVector<double> numbers = components(bound);
    const QVector<double> others = components(other);
    if (numbers.size() != others.size())
        return bound;
    std::transform(numbers.cbegin(), numbers.cend(), others.cbegin(), numbers.begin(), choose);
    return boundVariant(property, numbers, roundDown);
}

} // namespace

Range rangeOf(const Property &property)
{
    return {property.minValue, property.maxValue, property.hardMaxValue};
}

void setRange(Property &property, const Range &range)
{
    property.setRange(range.minimum, range.maximum, range.hardMaximum);
}

bool isSameRange(const Range &left, const Range &right)
{
    return left.minimum == right.minimum && left.maximum == right.maximum
           && left.hardMaximum == right.hardMaximum;
}

Range followedRange(const Property &property, const Range &declared, const RuleValue &minimum,
                    const RuleValue &maximum)
{
    const auto names = componentNames(typeTraits(property.type).kind);
    const int count = std::max(1, static_cast<int>(names.size()));
    const QVector<double> low = numbersOf(minimum, count);
    const QVector<double> high = numbersOf(maximum, count);
    const QVariant followedMinimum =
        low.isEmpty() ? QVariant() : boundVariant(property, low, roundUp);
    const QVariant followedMaximum =
        high.isEmpty() ? QVariant() : boundVariant(property, high, roundDown);

    Range range = declared;
    if (followedMinimum.isValid())
        range.minimum = followedMinimum;
    if (followedMaximum.isValid()) {
        range.maximum = combined(property, followedMaximum, range.minimum, std::max<double>);
        range.hardMaximum = range.maximum;
    } else if (followedMinimum.isValid()) {
        range.minimum = combined(property, followedMinimum, range.maximum, std::min<double>);
    }
    return range;
}

} // namespace Tessark::PropertyHost
