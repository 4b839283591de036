#include "host/PropertyStore.h"

#include "host/JsonConversion_p.h"
#include "host/JsonInput_p.h"
#include "host/Messages_p.h"
#include "host/PictureJson_p.h"
#include "host/ProblemCollector_p.h"
#include "host/PropertyList.h"
#include "host/SettingsValue_p.h"
#include "host/ValueJson.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <QImage>
#include <QMap>
#include <QSettings>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// The properties with a value, sorted by name as the keys of a JSON object are.
QMap<QString, Property *> valuedProperties(const PropertyList &list)
{
    QMap<QString, Property *> result;
    for (Property *property : list.properties()) {
        if (carriesValue(property->type))
            result.insert(property->name, property);
    }
    return result;
}

/// What an "image" property keeps of a value. Its editor hands pixmaps back, which do not know the
/// path that they came from, and nothing when it shows no picture.
QVariant keptPicture(const Property &property, const QVariant &value, const QVariant &before)
{
    if (!value.isValid())
        return QImage();
    if (value.userType() != QMetaType::QPixmap)
        return value;
    if (isShownAs(before, value))
        return before;
    return isShownAs(property.defaultValue, value) ? property.defaultValue : value;
}

/// Where a property's value stands in settings.
QString settingsKey(const Property &property)
{
    const QString key = property.hint(kPropertyHintPreferencesKey).toString();
    return key.isEmpty() ? property.name : key;
}

} // namespace

PropertyStore::PropertyStore(QObject *parent)
    : QObject(parent)
{
    // Signal spies and queued connections look the parameter of valueChanged() up by this name.
    qRegisterMetaType<Property *>("Tessark::PropertyUI::Property*");
}

PropertyStore::~PropertyStore() = default;

void PropertyStore::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    const bool isPicture = typeTraits(property->type).kind == ValueKind::Picture;
    const QVariant kept =
        isPicture ? keptPicture(*property, value, m_values.value(property->name)) : value;
    if (!property->name.isEmpty() && kept.isValid())
        m_values.insert(property->name, kept);
    Q_EMIT valueChanged(property, kept, flags.testFlag(ContinuedChange));
}

QVariant PropertyStore::value(Property *property)
{
    return m_values.value(property->name);
}

void PropertyStore::reset(const PropertyList &list)
{
    m_values.clear();
    m_unknownValues = {};
    for (const Property *property : valuedProperties(list)) {
        const bool hasDefault = property->defaultValue.isValid();
        m_values.insert(property->name,
                        hasDefault ? property->defaultValue : initialValue(*property));
    }
}

QVector<Problem> PropertyStore::readValues(const QByteArray &json, const PropertyList &list)
{
    QVector<Problem> problems;
    const auto document = parseJson(json, problems);
    if (!document)
        return problems;
    ProblemCollector collector;
    if (!document->isObject()) {
        collector.error(QString(), expectedMessage(Messages::tr("an object"), document->array()));
        return collector.take();
    }
    const QJsonObject values = document->object();
    const QMap<QString, Property *> properties = valuedProperties(list);
    m_unknownValues = {};
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        const Property *const property = properties.value(it.key());
        ConversionError error;
        const bool isTaken =
            property
            && take(*property, convertValue(*property, it.value(), list.folder(), error), error,
                    collector);
        if (!isTaken) // not lost on writing unless there is a value to write
            m_unknownValues.insert(it.key(), it.value());
    }
    return collector.take();
}

QVector<Problem> PropertyStore::readSettings(const QSettings &settings, const PropertyList &list)
{
    ProblemCollector collector;
    for (const Property *property : valuedProperties(list)) {
        const QVariant setting = settings.value(settingsKey(*property));
        ConversionError error;
        if (setting.isValid())
            take(*property, convertSetting(*property, setting, list.folder(), error), error,
                 collector);
    }
    return collector.take();
}

void PropertyStore::writeSettings(QSettings &settings, const PropertyList &list) const
{
    for (const Property *property : valuedProperties(list)) {
        const QJsonValue json = valueToJson(*property, m_values.value(property->name));
        if (!json.isUndefined())
            settings.setValue(settingsKey(*property), settingFromJson(json));
    }
}

/// Keeps a value that was read, or tells why there is none.
bool PropertyStore::take(const Property &property, const std::optional<QVariant> &value,
                         const ConversionError &error, ProblemCollector &problems)
{
    const QString pointer = childPointer(QString(), property.name);
    if (!value) {
        problems.error(pointer + error.path, error.message);
        return false;
    }
    m_values.insert(property.name, *value);
    if (isOutsideRange(property, *value)) {
        problems.warning(pointer,
                         Messages::tr("%1 is outside of the range").arg(componentsText(*value)));
    }
    return true;
}

QJsonObject PropertyStore::toJson(const PropertyList &list) const
{
    QJsonObject result = m_unknownValues;
    for (const Property *property : valuedProperties(list)) {
        const QJsonValue json = valueToJson(*property, m_values.value(property->name));
        if (!json.isUndefined())
            result.insert(property->name, json);
    }
    return result;
}

} // namespace Tessark::PropertyHost
