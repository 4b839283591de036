#pragma once

#include "host/RuleTree_p.h"

#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// The range of a property.
struct Range
{
    QVariant minimum;
    QVariant maximum;
    QVariant hardMaximum;
};

Range rangeOf(const PropertyUI::Property &property);
void setRange(PropertyUI::Property &property, const Range &range);
bool isSameRange(const Range &left, const Range &right);

/// The range of a property whose declared bounds give way to the values that rules gave for them,
/// unless these are missing. Whole numbers are rounded inwards.
Range followedRange(const PropertyUI::Property &property, const Range &declared,
                    const RuleValue &minimum, const RuleValue &maximum);

} // namespace Tessark::PropertyHost
