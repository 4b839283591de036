#include "host/ChangedRows_p.h"

#include "host/SelectionDelegate.h"
#include "host/ValueJson.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"
#include "host/ValueParts_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/TextureChoice.h>
#include <property/ValueCodecs.h>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kMatrixElements = 9;
constexpr double kElementTolerance = 1e-7; // texts are read in single precision

bool isEditable(const Property &property)
{
    const QVariant enabled = property.hint(kPropertyHintEnabled);
    return carriesValue(property.type) && property.type != kPropertyTypeStaticText
           && (!enabled.isValid() || enabled.toBool());
}

/// Hosts that keep a float give back 0.100000001490116 for 0.1. A value with more digits than a float
/// has is compared to the last one.
bool isSameNumber(double value, double other)
{
    const bool isFloat = double(float(value)) == value;
    return value == other || (isFloat && value == double(float(other)));
}

bool isSameNumber(const QVariant &value, const QVariant &other)
{
    bool isNumber = false;
    bool isOtherNumber = false;
    const double number = value.toDouble(&isNumber);
    const double otherNumber = other.toDouble(&isOtherNumber);
    return isNumber && isOtherNumber && isSameNumber(number, otherNumber);
}

bool areSameParts(const QVector<double> &value, const QVector<double> &other)
{
    return !value.isEmpty() && value.size() == other.size()
           && std::equal(value.cbegin(), value.cend(), other.cbegin(), isSamePart);
}

/// Entries of the hint "values" are compared as they are, or as the texts that they are.
bool isSameChoice(const QVariant &value, const QVariant &other)
{
    return value == other || isSameNumber(value, other)
           || (value.canConvert<QString>() && other.canConvert<QString>()
               && value.toString() == other.toString());
}

/// By its elements: transforms with and without shear have the same parts.
bool isSameMatrix(const QVariant &value, const QVariant &other)
{
    const auto matrixOf = [](const QVariant &variant) {
        return variant.userType() == QMetaType::QString ? QMatrix3x3_fromString(variant.toString())
                                                        : variant.value<DoubleMatrix3x3>();
    };
    const DoubleMatrix3x3 left = matrixOf(value);
    const DoubleMatrix3x3 right = matrixOf(other);
    return std::equal(left.constData(), left.constData() + kMatrixElements, right.constData(),
                      [](double one, double another) {
                          const double size = std::max({1.0, std::abs(one), std::abs(another)});
                          return std::abs(one - another) <= kElementTolerance * size;
                      });
}

QString textureName(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? value.toString()
                                                  : value.value<TextureChoice>().name;
}

bool isSameAs(const Property &property, const QVariant &value, const QVariant &other)
{
    switch (typeTraits(property.type).kind) {
    case ValueKind::Boolean:
        return value.toBool() == other.toBool();
    case ValueKind::Text:
        return value.toString() == other.toString();
    case ValueKind::Integer:
    case ValueKind::Number:
        return isSameNumber(value, other);
    case ValueKind::Choice:
        return isSameChoice(value, other);
    case ValueKind::Matrix:
        return isSameMatrix(value, other);
    case ValueKind::Texture:
        return textureName(value) == textureName(other);
    default:
        return areSameParts(partsOf(property, value), partsOf(property, other))
               || isSameValue(property, value, other);
    }
}

} // namespace

bool differsFromDefault(const Property &property, const QVariant &value)
{
    if (property.defaultValue.isNull() || !isEditable(property))
        return false;
    const QVariant held = value.isValid() ? value : initialValue(property);
    return !isSameAs(property, held, property.defaultValue);
}

ChangedRows::ChangedRows(const DelegateChain &delegates)
    : m_delegates(delegates)
{
}

bool ChangedRows::hasDefault(const Property &property) const
{
    const SelectionDelegate *const selection = m_delegates.selection();
    return isEditable(property)
           && (!property.defaultValue.isNull() || (selection && selection->hasDefault(&property)));
}

bool ChangedRows::isChanged(const PanelRow &row) const
{
    // The host may delete whose these are.
    const ChangedRows self = *this;
    const PanelRow asked = row;
    auto *const panel =
        row.editor ? qobject_cast<PropertyEditorPanel *>(row.editor->parent()) : nullptr;
    if (!panel || !hasDefault(*row.property))
        return false;
    const QVariant value = panel->value(asked.property);
    return asked.editor && self.isChanged(asked, value);
}

bool ChangedRows::isChanged(const PanelRow &row, const QVariant &value) const
{
    if (!hasDefault(*row.property))
        return false;
    // An edit that waits has not reached the objects yet.
    const SelectionDelegate *const selection = m_delegates.selection();
    const bool isMixed = selection && selection->isMixed(row.property);
    return (selection && selection->differsFromDefault(row.property))
           || (!isMixed && differsFromDefault(*row.property, value));
}

} // namespace Tessark::PropertyHost
