#include "LivePrinter.h"

#include "StandardStreams.h"

#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <host/ValueJson.h>
#include <property/Property.h>
#include <property/PropertyVocabulary.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace Tessark::PropertyPanel {

namespace {

bool isStructural(const PropertyUI::Property &property)
{
    return property.type == PropertyUI::kPropertyTypeBeginGroup
           || property.type == PropertyUI::kPropertyTypeBeginTabGroup;
}

/// An editor that has no value to tell leaves the one before; that of an action never has any.
bool isChange(const PropertyUI::Property &property, const QVariant &value)
{
    return value.isValid() || property.type == PropertyUI::kPropertyTypeAction;
}

} // namespace

LivePrinter::LivePrinter(const PropertyHost::PropertyList &list, PropertyHost::PropertyStore *store,
                         QObject *parent)
    : QObject(parent)
    , m_policy(this)
{
    const auto properties = list.properties();
    for (PropertyUI::Property *property : properties)
        m_known.insert(property->name,
                       PropertyHost::valueToJson(*property, store->value(property)));
    connect(store, &PropertyHost::PropertyStore::valueChanged, this,
            [this](PropertyUI::Property *property, const QVariant &value, bool continued) {
                m_policy.setValue(property, value, continued ? ContinuedChange : NewChange);
            });
}

LivePrinter::~LivePrinter() = default;

void LivePrinter::follow(PropertyUI::PropertyEditorPanel *panel, PropertyHost::CommitMode mode)
{
    m_policy.setDefaultMode(mode);
    m_policy.watch(panel);
}

void LivePrinter::flush()
{
    m_policy.flush();
}

void LivePrinter::setValue(PropertyUI::Property *property, const QVariant &value, ChangeFlags flags)
{
    print(*property, value, flags.testFlag(ContinuedChange));
}

QVariant LivePrinter::value(PropertyUI::Property *)
{
    return QVariant(); // nobody asks
}

void LivePrinter::print(const PropertyUI::Property &property, const QVariant &value, bool continued)
{
    if (m_outputFailed || isStructural(property) || !isChange(property, value))
        return;
    const QJsonValue json = PropertyHost::valueToJson(property, value);
    if (!json.isUndefined() && m_known.value(property.name, QJsonValue::Undefined) == json)
        return;
    m_known.insert(property.name, json);
    const QJsonObject line{
        {QStringLiteral("name"), property.name},
        {QStringLiteral("value"), json.isUndefined() ? QJsonValue() : json},
        {QStringLiteral("continued"), continued},
    };
    QString error;
    m_outputFailed =
        !writeStandardOutput(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n', &error);
    if (m_outputFailed)
        Q_EMIT outputLost();
}

} // namespace Tessark::PropertyPanel
