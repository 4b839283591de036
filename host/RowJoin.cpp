#include "host/RowJoin_p.h"

#include "host/FollowedBounds_p.h"
#include "host/HostHints.h"
#include "host/RuleSet_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"
#include "host/ValueParts_p.h"

#include <property/Property.h>
#include <property/TextureChoice.h>

#include <QStringList>
#include <QVector>

#include <algorithm>
#include <functional>
#include <optional>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// What says how a value is to be read, or which values there are.
const QStringList &agreeingHints()
{
    static const QStringList s_hints{
        kPropertyHintValues,           kPropertyHintDisplayValues,  kPropertyHintSuffix,
        kPropertyHintDisplayScale,     kPropertyHintAspectRatio,    kPropertyHintFullSize,
        kPropertyHintXfrmNoPosition,   kPropertyHintXfrmNoRotation, kPropertyHintXfrmNoScale,
        kPropertyHintXfrmUniformScale, kHostHintTextures,
    };
    return s_hints;
}

QStringList textureNames(const QVariant &hint)
{
    QStringList names;
    const QVariantList textures = hint.toList();
    for (const QVariant &texture : textures)
        names.append(texture.value<TextureChoice>().name);
    return names;
}

/// The ends of a range as numbers; empty where there is none.
struct Bounds
{
    QVector<double> minimum;
    QVector<double> maximum;
    QVector<double> hardMaximum;
};

/// A bound as its editor reads it: an absent one is 0 where the editor needs one.
QVector<double> boundOf(const Property &property, const QVariant &bound)
{
    const TypeTraits traits = typeTraits(property.type);
    const auto count = std::max<qsizetype>(1, componentNames(traits.kind).size());
    QVector<double> numbers = numbersOf(property, bound);
    if (numbers.isEmpty() && traits.range == RangeUse::NeedsRange)
        numbers.append(0.0);
    return numbers.size() == 1 ? QVector<double>(static_cast<int>(count), numbers.first())
                               : numbers;
}

template <typename Choose>
void combine(QVector<double> &bound, const QVector<double> &other, Choose choose)
{
    if (bound.isEmpty() || other.isEmpty()) {
        bound += other;
        return;
    }
    for (int i = 0; i < std::min(bound.size(), other.size()); ++i)
        bound[i] = choose(bound.at(i), other.at(i));
}

double larger(double left, double right)
{
    return std::max(left, right);
}

double smaller(double left, double right)
{
    return std::min(left, right);
}

/// A range whose ends are the wrong way round is its minimum, as its editor shows it.
Bounds boundsOf(const Property &property)
{
    Bounds bounds{boundOf(property, property.minValue), boundOf(property, property.maxValue),
                  boundOf(property, property.hardMaxValue)};
    if (!bounds.minimum.isEmpty() && !bounds.maximum.isEmpty())
        combine(bounds.maximum, bounds.minimum, larger);
    if (!bounds.minimum.isEmpty() && !bounds.hardMaximum.isEmpty())
        combine(bounds.hardMaximum, bounds.minimum, larger);
    return bounds;
}

bool isEmptyRange(const QVector<double> &minimum, const QVector<double> &maximum)
{
    const auto count = std::min(minimum.size(), maximum.size());
    return !std::equal(minimum.cbegin(), minimum.cbegin() + count, maximum.cbegin(),
                       std::less_equal<>());
}

QVariant boundVariant(const Property &property, const QVector<double> &bound)
{
    return bound.isEmpty() ? QVariant() : valueOfNumbers(property, bound);
}

/// What lies in the ranges of both, or nothing.
std::optional<Range> commonRange(const Property &left, const Property &right)
{
    const Range range = rangeOf(left);
    if (isSameRange(range, rangeOf(right)) || typeTraits(left.type).range == RangeUse::None)
        return range;
    Bounds bounds = boundsOf(left);
    const Bounds others = boundsOf(right);
    combine(bounds.minimum, others.minimum, larger);
    combine(bounds.maximum, others.maximum, smaller);
    combine(bounds.hardMaximum, others.hardMaximum, smaller);
    if (isEmptyRange(bounds.minimum, bounds.hardMaximum))
        return std::nullopt;
    // Sliders may end where the other's begin, though typed in values still meet.
    if (isEmptyRange(bounds.minimum, bounds.maximum))
        bounds.maximum = bounds.hardMaximum;
    return Range{boundVariant(left, bounds.minimum), boundVariant(left, bounds.maximum),
                 boundVariant(left, bounds.hardMaximum)};
}

bool isDisabled(const Property &property)
{
    const QVariant enabled = property.hint(kPropertyHintEnabled);
    return enabled.isValid() && !enabled.toBool();
}

} // namespace

bool isSameHint(const QString &key, const QVariant &left, const QVariant &right)
{
    if (key == kHostHintTextures)
        return textureNames(left) == textureNames(right);
    return left == right;
}

bool isSameRow(const Property &left, const Property &right)
{
    if (left.name != right.name || left.type != right.type || left.label != right.label)
        return false;
    const QStringList keys = left.hints.keys();
    return keys == right.hints.keys()
           && std::all_of(keys.cbegin(), keys.cend(), [&](const QString &key) {
                  return isSameHint(key, left.hint(key), right.hint(key));
              });
}

bool joinRow(Property &row, const Property &other)
{
    for (const QString &key : agreeingHints()) {
        if (!isSameHint(key, row.hint(key), other.hint(key)))
            return false;
    }
    const auto range = commonRange(row, other);
    if (!range)
        return false;
    setRange(row, *range);
    for (const QString &key : ruleHints()) {
        if (row.hint(key) != other.hint(key))
            row.hints.remove(key);
    }
    if (isDisabled(other))
        row.setHint(kPropertyHintEnabled, false);
    return true;
}

} // namespace Tessark::PropertyHost
