#include "host/SettingsValue_p.h"

#include "host/JsonConversion_p.h"
#include "host/ValueJson_p.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaType>
#include <QStringList>

namespace Tessark::PropertyHost {

namespace {

QByteArray compactText(const QJsonValue &json)
{
    const QJsonDocument document =
        json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
    return document.toJson(QJsonDocument::Compact);
}

/// The JSON value that a text spells, undefined if it spells none. Documents of a number alone are
/// not known to Qt 5.
QJsonValue spelledJson(const QString &text)
{
    const QByteArray array = '[' + text.toUtf8() + ']';
    const QJsonArray values = QJsonDocument::fromJson(array).array();
    return values.size() == 1 ? values.first() : QJsonValue(QJsonValue::Undefined);
}

} // namespace

QVariant settingFromJson(const QJsonValue &json)
{
    if (json.isArray() || json.isObject())
        return QString::fromUtf8(compactText(json));
    return json.toVariant();
}

std::optional<QVariant> convertSetting(const PropertyUI::Property &property,
                                       const QVariant &setting, const QString &folder,
                                       ConversionError &error)
{
    QJsonValue json = QJsonValue::fromVariant(setting);
    // A text with commas in a file that a person wrote.
    if (setting.userType() == QMetaType::QStringList)
        json = setting.toStringList().join(QStringLiteral(", "));
    auto value = convertValue(property, json, folder, error);
    if (value || !json.isString())
        return value;
    const QJsonValue spelled = spelledJson(json.toString());
    return spelled.isUndefined() ? std::nullopt : convertValue(property, spelled, folder, error);
}

} // namespace Tessark::PropertyHost
