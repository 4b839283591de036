#include "host/MetaFields_p.h"

#include "host/ValueJson_p.h"

#include <property/ValueCodecs.h>

#include <QHash>
#include <QMetaEnum>
#include <QMetaProperty>

#include <algorithm>
#include <limits>
#include <type_traits>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// The widest range whose slider still counts thousandths.
constexpr float kLimit = 1e6F;

using Fields = QHash<int, SharedField>;

void add(Fields &fields, int type, const ObjectField &field)
{
    fields.insert(type, std::make_shared<const ObjectField>(field));
}

/// Whether a row holds the very variant of the property, which need not be made anew for each look.
template <typename Value>
constexpr bool kIsRowVariant =
    std::is_base_of_v<
        PlainStructField<Value>,
        StructField<Value>> || std::is_same_v<Value, int> || std::is_same_v<Value, double>;

template <typename Value>
ObjectField fieldOfType()
{
    ObjectField field = makeObjectField<Value>();
    if (kIsRowVariant<Value>)
        field.toRow = nullptr;
    return field;
}

template <typename Value>
void addPlain(Fields &fields)
{
    add(fields, qMetaTypeId<Value>(), fieldOfType<Value>());
}

template <typename Value>
void addRanged(Fields &fields, const QVariant &minimum, const QVariant &maximum)
{
    ObjectField field = fieldOfType<Value>();
    field.prepare = [minimum, maximum](PropertyRow row) { row.range(minimum, maximum); };
    add(fields, qMetaTypeId<Value>(), field);
}

template <typename Value>
void addInteger(Fields &fields)
{
    addRanged<Value>(fields, int(std::numeric_limits<Value>::min()),
                     int(std::numeric_limits<Value>::max()));
}

/// Integers that an int holds only some of: others are shown as the nearest one that it does.
template <typename Value>
void addWideInteger(Fields &fields)
{
    using Limits = std::numeric_limits<int>;
    static constexpr int kLowest = std::numeric_limits<Value>::is_signed ? Limits::min() : 0;
    const auto toRow = [](const QVariant &variant) {
        const auto value = variant.value<Value>();
        if constexpr (std::numeric_limits<Value>::is_signed)
            return static_cast<int>(std::clamp<qint64>(value, Limits::min(), Limits::max()));
        else
            return static_cast<int>(std::min<quint64>(value, quint64{Limits::max()}));
    };
    const auto fromRow = [](const QVariant &value) {
        return QVariant::fromValue(static_cast<Value>(std::max(value.toInt(), kLowest)));
    };
    const auto prepare = [](PropertyRow row) { row.range(kLowest, Limits::max()); };
    add(fields, qMetaTypeId<Value>(), {kPropertyTypeInteger, toRow, fromRow, prepare});
}

Fields makeFields()
{
    Fields fields;
    addPlain<bool>(fields);
    addInteger<int>(fields);
    addInteger<short>(fields);
    addInteger<ushort>(fields);
    addInteger<signed char>(fields);
    addInteger<uchar>(fields);
    addWideInteger<uint>(fields);
    addWideInteger<long>(fields);
    addWideInteger<ulong>(fields);
    addWideInteger<qlonglong>(fields);
    addWideInteger<qulonglong>(fields);
    addRanged<double>(fields, -double{kLimit}, double{kLimit});
    addRanged<float>(fields, -double{kLimit}, double{kLimit});
    addPlain<QString>(fields);
    addPlain<QColor>(fields);
    const QVector4D all(kLimit, kLimit, kLimit, kLimit);
    addRanged<QVector2D>(fields, -all.toVector2D(), all.toVector2D());
    addRanged<QVector3D>(fields, -all.toVector3D(), all.toVector3D());
    addRanged<QVector4D>(fields, -all, all);
    addPlain<QSize>(fields);
    addPlain<QImage>(fields);
    addPlain<DoubleMatrix3x3>(fields);
    addPlain<ImageFormatDesc>(fields);
    addPlain<TextureChoice>(fields);
    return fields;
}

/// The keys are the texts. Of keys with the same value only the first one is a choice.
void addChoices(PropertyRow row, const QMetaEnum &enumeration)
{
    QVariantList values;
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        if (values.contains(enumeration.value(i)))
            continue;
        values.append(enumeration.value(i));
        row.choice(enumeration.value(i), QString::fromLatin1(enumeration.key(i)));
    }
}

SharedField fieldOfEnumeration(const QMetaProperty &property)
{
    const QMetaEnum enumeration = property.enumerator();
    if (property.isFlagType() || enumeration.keyCount() == 0)
        return nullptr;
    const auto toInteger = [](const QVariant &value) { return QVariant(value.toInt()); };
    const auto prepare = [enumeration](PropertyRow row) { addChoices(row, enumeration); };
    return std::make_shared<const ObjectField>(
        ObjectField{kPropertyTypeEnumeration, toInteger, toInteger, prepare});
}

QString textOf(const QVariant &value)
{
    return components(value).size() > 1 ? componentsText(value) : value.toString();
}

} // namespace

QVariant toRow(const ObjectField &field, const QVariant &value)
{
    return field.toRow ? field.toRow(value) : value;
}

QVariant fromRow(const ObjectField &field, const QVariant &value)
{
    return field.fromRow ? field.fromRow(value) : value;
}

SharedField fieldOf(const QMetaProperty &property)
{
    static const Fields s_fields = makeFields();
    return property.isEnumType() ? fieldOfEnumeration(property)
                                 : s_fields.value(property.userType());
}

ObjectField toStaticText(const ObjectField &field, const QMetaProperty &property)
{
    if (property.isEnumType()) {
        const QMetaEnum enumeration = property.enumerator();
        const auto keyOf = [enumeration](const QVariant &value) {
            return QVariant(QString::fromLatin1(enumeration.valueToKey(value.toInt())));
        };
        return {kPropertyTypeStaticText, keyOf, field.fromRow, {}};
    }
    const auto text = [field](const QVariant &value) {
        return QVariant(textOf(toRow(field, value)));
    };
    return {kPropertyTypeStaticText, text, field.fromRow, {}};
}

} // namespace Tessark::PropertyHost
