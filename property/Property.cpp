#include "property/Property.h"

#include <utility>

namespace Tessark::PropertyUI {

Property::Property(const QString &itemName, const QString &itemLabel, QString itemType)
    : name(itemName)
    , label(itemLabel)
    , type(std::move(itemType))
{
}

Property::Property(const QString &itemName, const QString &itemLabel, QString itemType,
                   const QVariant &min, const QVariant &max, const QVariant &value)
    : name(itemName)
    , label(itemLabel)
    , type(std::move(itemType))
    , minValue(min)
    , maxValue(max)
    , hardMaxValue(max) // on purpose: the hard maximum starts equal to the soft one
    , defaultValue(value)
{
}

Property &Property::setRange(const QVariant &min, const QVariant &max)
{
    return setRange(min, max, max);
}

Property &Property::setRange(const QVariant &min, const QVariant &max, const QVariant &hardMax)
{
    minValue = min;
    maxValue = max;
    hardMaxValue = hardMax;
    return *this;
}

Property &Property::setDefaultValue(const QVariant &value)
{
    defaultValue = value;
    return *this;
}

Property &Property::setHardMaxValue(const QVariant &value)
{
    hardMaxValue = value;
    return *this;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): hosts are built with this signature
Property &Property::setHint(const QString &key, QVariant value)
{
    hints.insert(key, value);
    return *this;
}

QVariant Property::hint(const QString &key) const
{
    return hints.value(key);
}

} // namespace Tessark::PropertyUI
