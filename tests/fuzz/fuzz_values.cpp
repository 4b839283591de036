#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/HostileProperty.h"

#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <host/ValueJson.h>
#include <property/PropertyUI.h>

#include <QImage>
#include <QJsonDocument>

using namespace Fuzz;
using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// A property of each type, named after its type, and choices by index as well as by value.
PropertyList everyType()
{
    const QString types[] = {
        kPropertyTypeInteger,    kPropertyTypeFloat,       kPropertyTypePercent,
        kPropertyTypeBoolean,    kPropertyTypeString,      kPropertyTypeText,
        kPropertyTypeStaticText, kPropertyTypeFilename,    kPropertyTypeVec2,
        kPropertyTypeVec3,       kPropertyTypeVec4,        kPropertyTypeColor,
        kPropertyTypeColorRGB,   kPropertyTypePoint,       kPropertyTypePointF,
        kPropertyTypeAngle,      kPropertyTypeSize,        kPropertyTypeSizeF,
        kPropertyTypeRect,       kPropertyTypeRectF,       kPropertyTypeRenderSize,
        kPropertyTypeImage,      kPropertyTypeImageFormat, kPropertyTypeTransform2D,
        kPropertyTypeTexture,    kPropertyTypeEnumeration, kPropertyTypeBeginGroup,
        QStringLiteral("host"),
    };
    PropertyList list;
    for (const QString &type : types)
        list.append(Property(type, type, type)).setRange(0, 10);
    const QStringList texts{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    Property choice(QStringLiteral("choice"), QString(), kPropertyTypeEnumeration);
    choice.setHint(kPropertyHintDisplayValues, texts)
        .setHint(kPropertyHintValues, QVariantList{1, QStringLiteral("1"), 2.5, true});
    list.append(choice);
    const QVariantList textures{
        QVariant::fromValue(TextureChoice{QStringLiteral("wood"), QImage(), QIcon()})};
    list.append(Property(QStringLiteral("textures"), QString(), kPropertyTypeTexture))
        .setHint(kHostHintTextures, textures);
    return list;
}

void requireSame(const QByteArray &json, const QByteArray &expected)
{
    if (json != expected) {
        fail(QStringLiteral("values survive writing and reading:\n%1\nbecame\n%2")
                 .arg(QString::fromUtf8(expected), QString::fromUtf8(json)));
    }
}

/// The value's JSON form reads as the same value, for a value that was read itself.
void checkValue(const Property &property, const QVariant &value)
{
    const QJsonValue json = valueToJson(property, value);
    require(isSameValue(property, value, value) || json.isUndefined(), "a value is itself");
    if (json.isUndefined())
        return;
    QString error;
    const auto read = valueFromJson(property, json, error);
    if (!read)
        fail(QStringLiteral("%1 is not read as it is written: %2").arg(property.type, error));
    require(isSameValue(property, value, *read), "a value is read as it was written");
    require(valueToJson(property, *read) == json, "a value is written as it was read");
}

void checkReading(const QByteArray &json, const PropertyList &list)
{
    PropertyStore store;
    store.reset(list);
    const bool isRead = !hasErrors(store.readValues(json, list));
    for (Property *property : list.properties())
        checkValue(*property, store.value(property));

    const QJsonObject written = store.toJson(list);
    PropertyStore copy;
    copy.reset(list);
    const bool isReadAgain = !hasErrors(copy.readValues(compact(written), list));
    require(isReadAgain || !isRead, "what was read without error is written so");
    requireSame(compact(copy.toJson(list)), compact(written));
}

/// A value of any kind that a host gives a store is written, or left out, and what was written and
/// read is written the same.
void checkWriting(FuzzInput input, const PropertyList &list)
{
    PropertyStore store;
    store.reset(list);
    const auto properties = list.properties();
    while (!input.isEmpty()) {
        Property *const property = input.pickFrom(properties);
        const QVariant value = anyVariant(input);
        store.setValue(property, value, IPropertyEditorDelegate::NewChange);
        const QJsonValue json = valueToJson(*property, value);
        QString error;
        const auto read = valueFromJson(*property, json, error);
        require(read || !error.isEmpty(), "what is not read is said");
        if (read)
            checkValue(*property, *read);
    }
    // The first reading may turn a text form into what it stands for.
    store.readValues(compact(store.toJson(list)), list);
    const QByteArray written = compact(store.toJson(list));
    store.readValues(written, list);
    requireSame(compact(store.toJson(list)), written);
}

} // namespace

/// Input that begins like JSON is read; any other makes values of a host.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const PropertyList s_list = everyType();
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    if (bytes.startsWith('{') || bytes.startsWith('['))
        checkReading(bytes, s_list);
    else
        checkWriting(FuzzInput(data, size), s_list);
    return 0;
}
