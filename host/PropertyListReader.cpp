#include "host/PropertyListReader.h"

#include "host/HintJson_p.h"
#include "host/HostHints.h"
#include "host/JsonInput_p.h"
#include "host/ListKeys_p.h"
#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/RowCheck_p.h"
#include "host/RuleSet_p.h"
#include "host/StrangerList_p.h"
#include "host/Suggestion_p.h"
#include "host/TextureJson_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/PropertyEditorPanel.h>

#include <QJsonObject>
#include <QSet>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

const QStringList &documentKeys()
{
    static const QStringList s_keys{kKeySchema, kKeyVersion, kKeyTitle, kKeyProperties};
    return s_keys;
}

const QStringList &propertyKeys()
{
    static const QStringList s_keys{kKeyName, kKeyLabel,   kKeyType,    kKeyMin,
                                    kKeyMax,  kKeyHardMax, kKeyDefault, kKeyHints};
    return s_keys;
}

/// Reads the rows of one document in order, and knows what was seen in the rows before.
class Reader final
{
public:
    Reader(const QString &folder, bool checksHintUse);

    PropertyListResult read(const QJsonDocument &document);

private:
    void readDocument(const QJsonObject &document);
    void readProperties(const QJsonValue &json);
    void readRow(const QJsonObject &row, int index);
    std::optional<QString> readText(const QJsonObject &object, const QString &pointer,
                                    const QString &key);
    std::optional<QString> readType(const QJsonObject &row, const QString &pointer);
    std::optional<QString> readName(const QJsonObject &row, const QString &pointer,
                                    bool isStructural);
    void readHints(Property &property, const QJsonObject &row, const QString &pointer);
    void readHint(Property &property, const QString &key, const QJsonValue &json,
                  const QString &pointer);
    void readTextures(Property &property, const QJsonValue &json, const QString &pointer);
    void readRange(Property &property, const QJsonObject &row, const QString &pointer);
    QVariant readBound(const Property &property, const QJsonObject &row, const QString &pointer,
                       const QString &key);
    void readDefault(Property &property, const QJsonObject &row, const QString &pointer);
    void checkKeys(const QJsonObject &object, const QStringList &known, const QString &pointer);
    void addError(const QString &pointer, const ConversionError &error);

    PropertyList m_list;
    ProblemCollector m_problems;
    RowCheck m_check{m_problems};
    QVector<CheckedRow> m_rows; // those of m_list
    const bool m_checksHintUse;
};

Reader::Reader(const QString &folder, bool checksHintUse)
    : m_checksHintUse(checksHintUse)
{
    m_list.setFolder(folder);
}

PropertyListResult Reader::read(const QJsonDocument &document)
{
    if (document.isObject()) {
        readDocument(document.object());
    } else {
        m_problems.error(QString(), expectedMessage(Messages::tr("an object"), document.array()));
    }
    PropertyListResult result;
    result.list = std::move(m_list);
    const QJsonArray rows = document.object().value(kKeyProperties).toArray();
    result.problems = m_problems.take(
        [&rows](int row) { return rows.at(row).toObject().value(kKeyName).toString(); });
    return result;
}

void Reader::readDocument(const QJsonObject &document)
{
    checkKeys(document, documentKeys(), QString());
    const QJsonValue version = document.value(kKeyVersion);
    if (version.isUndefined()) {
        m_problems.error(QString(), Messages::tr("\"%1\" is missing").arg(kKeyVersion));
    } else if (!version.isDouble()) {
        m_problems.error(childPointer(QString(), kKeyVersion),
                         expectedMessage(Messages::tr("a number"), version));
    } else if (version.toDouble() != kListVersion) {
        m_problems.error(childPointer(QString(), kKeyVersion),
                         Messages::tr("expected version %1, found %2")
                             .arg(kListVersion)
                             .arg(version.toDouble()));
    }
    readText(document, QString(), kKeySchema);
    m_list.setTitle(readText(document, QString(), kKeyTitle).value_or(QString()));
    readProperties(document.value(kKeyProperties));
}

void Reader::readProperties(const QJsonValue &json)
{
    if (json.isUndefined()) {
        m_problems.error(QString(), Messages::tr("\"%1\" is missing").arg(kKeyProperties));
        return;
    }
    if (!json.isArray()) {
        m_problems.error(childPointer(QString(), kKeyProperties),
                         expectedMessage(Messages::tr("an array"), json));
        return;
    }
    const QJsonArray rows = json.toArray();
    for (int i = 0; i < rows.size(); ++i) {
        const QJsonValue row = rows.at(i);
        if (row.isObject())
            readRow(row.toObject(), i);
        else
            m_problems.error(rowPointer(i), expectedMessage(Messages::tr("an object"), row));
    }
    m_check.finish();
    readRules(m_rows, m_problems);
}

void Reader::readRow(const QJsonObject &row, int index)
{
    const QString pointer = rowPointer(index);
    checkKeys(row, propertyKeys(), pointer);
    const auto type = readType(row, pointer);
    const bool isStructural = type && typeTraits(*type).structural;
    const auto name = readName(row, pointer, isStructural);
    const auto label = readText(row, pointer, kKeyLabel);
    if (!type)
        return;
    m_check.addType(*type, pointer);
    const QString fallback = isStructural ? QString() : name.value_or(QString());
    Property property(name.value_or(QString()), label.value_or(fallback), *type);
    const bool isKnown = m_check.checkEditor(property, pointer);
    readHints(property, row, pointer);
    readRange(property, row, pointer);
    readDefault(property, row, pointer);
    if (m_checksHintUse)
        m_check.checkHintUse(property, pointer);
    if (isKnown && (name || isStructural))
        m_rows.append({&m_list.append(std::move(property), index), pointer});
}

std::optional<QString> Reader::readText(const QJsonObject &object, const QString &pointer,
                                        const QString &key)
{
    const QJsonValue json = object.value(key);
    if (json.isUndefined())
        return std::nullopt;
    ConversionError error;
    auto text = textFromJson(json, error);
    if (!text)
        addError(childPointer(pointer, key), error);
    return text;
}

std::optional<QString> Reader::readType(const QJsonObject &row, const QString &pointer)
{
    if (!row.contains(kKeyType))
        m_problems.error(pointer, Messages::tr("\"%1\" is missing").arg(kKeyType));
    return readText(row, pointer, kKeyType);
}

/// The name if there is a usable one.
std::optional<QString> Reader::readName(const QJsonObject &row, const QString &pointer,
                                        bool isStructural)
{
    if (!row.contains(kKeyName) && !isStructural)
        m_check.tellMissingName(pointer);
    auto name = readText(row, pointer, kKeyName);
    return name && m_check.takeName(*name, pointer) ? name : std::nullopt;
}

void Reader::readHints(Property &property, const QJsonObject &row, const QString &pointer)
{
    const QJsonValue json = row.value(kKeyHints);
    const QString hintsPointer = childPointer(pointer, kKeyHints);
    if (json.isUndefined())
        return;
    if (!json.isObject()) {
        m_problems.error(hintsPointer, expectedMessage(Messages::tr("an object"), json));
        return;
    }
    const QJsonObject hints = json.toObject();
    for (auto it = hints.constBegin(); it != hints.constEnd(); ++it) {
        const QString hintPointer = childPointer(hintsPointer, it.key());
        if (it.key() == kHostHintTextures)
            readTextures(property, it.value(), hintPointer);
        else
            readHint(property, it.key(), it.value(), hintPointer);
    }
    m_check.checkChoices(property, pointer);
}

void Reader::readHint(Property &property, const QString &key, const QJsonValue &json,
                      const QString &pointer)
{
    m_check.checkHintKey(key, pointer);
    ConversionError error;
    const auto value = hintFromJson(key, json, error);
    if (value)
        property.setHint(key, *value);
    else
        addError(pointer, error);
}

void Reader::readTextures(Property &property, const QJsonValue &json, const QString &pointer)
{
    if (!json.isArray()) {
        m_problems.error(pointer, expectedMessage(Messages::tr("an array"), json));
        return;
    }
    QVariantList textures;
    QSet<QString> names;
    const QJsonArray entries = json.toArray();
    for (int i = 0; i < entries.size(); ++i) {
        ConversionError error;
        const auto texture = textureFromHintEntry(entries.at(i), m_list.folder(), error);
        if (texture && names.contains(texture->name)) {
            error.message =
                Messages::tr("the name %1 is taken by a texture before").arg(quoted(texture->name));
        }
        if (!error.message.isEmpty()) {
            addError(childPointer(pointer, i), error);
            continue;
        }
        names.insert(texture->name);
        textures.append(QVariant::fromValue(*texture));
    }
    property.setHint(kHostHintTextures, textures);
}

void Reader::readRange(Property &property, const QJsonObject &row, const QString &pointer)
{
    const RangeUse use = typeTraits(property.type).range;
    if (use == RangeUse::None) {
        for (const QString &key : {QString(kKeyMin), QString(kKeyMax), QString(kKeyHardMax)}) {
            if (row.contains(key))
                m_check.tellUselessBound(property.type, childPointer(pointer, key));
        }
        return;
    }
    if (use == RangeUse::NeedsRange && !row.contains(kKeyMax))
        m_check.tellMissingMaximum(pointer);
    const QVariant min = readBound(property, row, pointer, kKeyMin);
    const QVariant max = readBound(property, row, pointer, kKeyMax);
    const QVariant hardMax = readBound(property, row, pointer, kKeyHardMax);
    property.setRange(min, max, hardMax.isValid() ? hardMax : max);
    m_check.checkBounds(property, pointer);
}

QVariant Reader::readBound(const Property &property, const QJsonObject &row, const QString &pointer,
                           const QString &key)
{
    const QJsonValue json = row.value(key);
    if (json.isUndefined())
        return {};
    ConversionError error;
    const auto bound = convertValue(property, json, m_list.folder(), error);
    if (!bound)
        addError(childPointer(pointer, key), error);
    return bound.value_or(QVariant());
}

void Reader::readDefault(Property &property, const QJsonObject &row, const QString &pointer)
{
    const QJsonValue json = row.value(kKeyDefault);
    if (json.isUndefined())
        return;
    ConversionError error;
    const auto value = convertValue(property, json, m_list.folder(), error);
    if (!value) {
        addError(childPointer(pointer, kKeyDefault), error);
        return;
    }
    property.setDefaultValue(*value);
    m_check.checkDefaultRange(property, pointer);
}

void Reader::checkKeys(const QJsonObject &object, const QStringList &known, const QString &pointer)
{
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        if (!known.contains(it.key())) {
            m_problems.error(childPointer(pointer, it.key()),
                             Messages::tr("unknown key%1").arg(m_check.suggest(it.key(), known)));
        }
    }
}

void Reader::addError(const QString &pointer, const ConversionError &error)
{
    m_problems.error(pointer + error.path, error.message);
}

PropertyListResult readList(const QByteArray &json, const QString &folder, ListOrigin origin,
                            bool checksHintUse)
{
    PropertyEditorPanel::InitialiseRegistry();
    PropertyListResult result;
    auto document = parseJson(json, result.problems);
    if (!document)
        return result;
    ProblemCollector refused;
    if (origin == ListOrigin::Stranger && document->isObject())
        document->setObject(withoutRefusedParts(document->object(), folder, refused));
    result = Reader(folder, checksHintUse).read(*document);
    result.problems = refused.take() + result.problems;
    return result;
}

} // namespace

PropertyListResult readPropertyList(const QByteArray &json, const QString &folder,
                                    ListOrigin origin)
{
    return readList(json, folder, origin, false);
}

PropertyListResult checkPropertyList(const QByteArray &json, const QString &folder,
                                     ListOrigin origin)
{
    return readList(json, folder, origin, true);
}

} // namespace Tessark::PropertyHost
