#include "host/ChangedRows_p.h"

#include "host/PictureJson_p.h"
#include "host/SelectionDelegate.h"
#include "host/ValueKind_p.h"
#include "host/ValueParts_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>

#include <algorithm>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool haveSameNumbers(const QVector<double> &left, const QVector<double> &right)
{
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(), isSamePart);
}

bool isSameValue(const Property &property, const QVariant &value, const QVariant &other)
{
    const ValueKind kind = typeTraits(property.type).kind;
    if (kind == ValueKind::Picture)
        return isShownAs(other, value);
    if (kind == ValueKind::Boolean)
        return value.toBool() == other.toBool();
    const bool isNumber = kind == ValueKind::Integer || kind == ValueKind::Number;
    const auto split = isNumber ? numbersOf : partsOf;
    const QVector<double> numbers = split(property, value);
    return numbers.isEmpty() ? value == other : haveSameNumbers(numbers, split(property, other));
}

/// Whether an object that has the row differs from its own default.
bool isChangedForAny(const SelectionDelegate &selection, const Property &property)
{
    const QVector<SelectionMember> members = selection.members();
    return std::any_of(
        members.cbegin(), members.cend(), [&property](const SelectionMember &member) {
            const QVector<Property *> rows = member.properties();
            return std::any_of(rows.cbegin(), rows.cend(), [&](Property *row) {
                return row->name == property.name && row->type == property.type
                       && !row->defaultValue.isNull() && member.delegate()
                       && !isSameValue(*row, member.delegate()->value(row), row->defaultValue);
            });
        });
}

} // namespace

ChangedRows::ChangedRows(IPropertyEditorDelegate *delegate)
    : m_delegate(delegate)
{
}

bool ChangedRows::isChanged(const PanelRow &row) const
{
    const Property &property = *row.property;
    if (!row.editor || !carriesValue(property.type))
        return false;
    const auto *const selection = dynamic_cast<const SelectionDelegate *>(m_delegate.get());
    if (selection && selection->hasDefault(&property)
        && (property.defaultValue.isNull() || selection->isMixed(&property)))
        return isChangedForAny(*selection, property);
    return !property.defaultValue.isNull()
           && !isSameValue(property, row.editor->value(), property.defaultValue);
}

} // namespace Tessark::PropertyHost
