#include "host/PropertyListWriter_p.h"

#include "host/HintJson_p.h"
#include "host/HostHints.h"
#include "host/ListKeys_p.h"
#include "host/TextureJson_p.h"
#include "host/ValueJson.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

void insertUnlessUndefined(QJsonObject &object, const QString &key, const QJsonValue &value)
{
    if (!value.isUndefined())
        object.insert(key, value);
}

QJsonObject hintsToJson(const Property &property)
{
    QJsonObject result;
    for (auto hint = property.hints.constBegin(); hint != property.hints.constEnd(); ++hint) {
        const bool isTextures = hint.key() == kHostHintTextures;
        insertUnlessUndefined(result, hint.key(),
                              isTextures ? texturesToJson(hint.value())
                                         : hintToJson(hint.key(), hint.value()));
    }
    return result;
}

/// Texts stay texts, as values have them; a maximum says what the hard maximum is when it is alone.
void insertRange(QJsonObject &object, const Property &property)
{
    insertUnlessUndefined(object, kKeyMin, valueToJson(property, property.minValue));
    const QJsonValue max = valueToJson(property, property.maxValue);
    const QJsonValue hardMax = valueToJson(property, property.hardMaxValue);
    insertUnlessUndefined(object, kKeyMax, max);
    if (hardMax != max)
        insertUnlessUndefined(object, kKeyHardMax, hardMax);
}

} // namespace

QJsonObject rowToJson(const Property &property)
{
    const TypeTraits traits = typeTraits(property.type);
    QJsonObject result{{kKeyType, property.type}};
    if (!property.name.isEmpty())
        result.insert(kKeyName, property.name);
    if (property.label != (traits.structural ? QString() : property.name))
        result.insert(kKeyLabel, property.label);
    if (traits.range != RangeUse::None)
        insertRange(result, property);
    insertUnlessUndefined(result, kKeyDefault, valueToJson(property, property.defaultValue));
    const QJsonObject hints = hintsToJson(property);
    if (!hints.isEmpty())
        result.insert(kKeyHints, hints);
    return result;
}

} // namespace Tessark::PropertyHost
