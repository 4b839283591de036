#include "host/PropertyListReader.h"

#include "host/HintJson_p.h"
#include "host/HostHints.h"
#include "host/JsonInput_p.h"
#include "host/NestingCheck_p.h"
#include "host/ProblemCollector_p.h"
#include "host/StrangerList_p.h"
#include "host/Suggestion_p.h"
#include "host/TextureJson_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/PropertyEditorPanel.h>
#include <property/PropertyEditorRegistry.h>

#include <QJsonObject>
#include <QSet>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kVersion = 1;

const QLatin1String kKeySchema("$schema");
const QLatin1String kKeyVersion("version");
const QLatin1String kKeyTitle("title");
const QLatin1String kKeyProperties("properties");
const QLatin1String kKeyName("name");
const QLatin1String kKeyLabel("label");
const QLatin1String kKeyType("type");
const QLatin1String kKeyMin("min");
const QLatin1String kKeyMax("max");
const QLatin1String kKeyHardMax("hardMax");
const QLatin1String kKeyDefault("default");
const QLatin1String kKeyHints("hints");

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

/// All hint keys that a list may have.
QStringList hintKeys()
{
    return vocabularyHints() + QStringList{kHostHintTextures};
}

/// Reads the rows of one document in order, and knows what was seen in the rows before.
class Reader final
{
public:
    explicit Reader(const QString &folder);

    PropertyListResult read(const QJsonDocument &document);

private:
    void readDocument(const QJsonObject &document);
    void readProperties(const QJsonValue &json);
    void readRow(const QJsonObject &row, const QString &pointer);
    std::optional<QString> readText(const QJsonObject &object, const QString &pointer,
                                    const QString &key);
    std::optional<QString> readType(const QJsonObject &row, const QString &pointer);
    std::optional<QString> readName(const QJsonObject &row, const QString &pointer,
                                    bool isStructural);
    bool hasEditor(Property &property, const QString &pointer);
    void readHints(Property &property, const QJsonObject &row, const QString &pointer);
    void readHint(Property &property, const QString &key, const QJsonValue &json,
                  const QString &pointer);
    void readTextures(Property &property, const QJsonValue &json, const QString &pointer);
    void readRange(Property &property, const QJsonObject &row, const QString &pointer);
    QVariant readBound(const Property &property, const QJsonObject &row, const QString &pointer,
                       const QString &key);
    void readDefault(Property &property, const QJsonObject &row, const QString &pointer);
    void checkBounds(const Property &property, const QString &pointer);
    void checkBoundPair(const QString &pointer, const QVariant &lower, const QString &lowerKey,
                        const QVariant &upper, const QString &upperKey);
    void checkChoices(const Property &property, const QString &pointer);
    void checkKeys(const QJsonObject &object, const QStringList &known, const QString &pointer);
    void addError(const QString &pointer, const ConversionError &error);
    QString suggest(const QString &text, const QStringList &candidates) const;

    PropertyList m_list;
    ProblemCollector m_problems;
    NestingCheck m_nesting{m_problems};
    QSet<QString> m_names;
};

Reader::Reader(const QString &folder)
{
    m_list.setFolder(folder);
}

PropertyListResult Reader::read(const QJsonDocument &document)
{
    if (document.isObject()) {
        readDocument(document.object());
    } else {
        m_problems.error(QString(), expectedMessage(QStringLiteral("an object"), document.array()));
    }
    PropertyListResult result;
    result.list = std::move(m_list);
    result.problems = m_problems.take();
    return result;
}

void Reader::readDocument(const QJsonObject &document)
{
    checkKeys(document, documentKeys(), QString());
    const QJsonValue version = document.value(kKeyVersion);
    if (version.isUndefined()) {
        m_problems.error(QString(), QStringLiteral("\"version\" is missing"));
    } else if (!version.isDouble()) {
        m_problems.error(childPointer(QString(), kKeyVersion),
                         expectedMessage(QStringLiteral("a number"), version));
    } else if (version.toDouble() != kVersion) {
        m_problems.error(
            childPointer(QString(), kKeyVersion),
            QStringLiteral("expected version %1, found %2").arg(kVersion).arg(version.toDouble()));
    }
    readText(document, QString(), kKeySchema);
    m_list.setTitle(readText(document, QString(), kKeyTitle).value_or(QString()));
    readProperties(document.value(kKeyProperties));
}

void Reader::readProperties(const QJsonValue &json)
{
    if (json.isUndefined()) {
        m_problems.error(QString(), QStringLiteral("\"properties\" is missing"));
        return;
    }
    const QString pointer = childPointer(QString(), kKeyProperties);
    if (!json.isArray()) {
        m_problems.error(pointer, expectedMessage(QStringLiteral("an array"), json));
        return;
    }
    const QJsonArray rows = json.toArray();
    for (int i = 0; i < rows.size(); ++i) {
        const QJsonValue row = rows.at(i);
        const QString rowPointer = childPointer(pointer, i);
        if (row.isObject())
            readRow(row.toObject(), rowPointer);
        else
            m_problems.error(rowPointer, expectedMessage(QStringLiteral("an object"), row));
    }
    m_nesting.finish();
}

void Reader::readRow(const QJsonObject &row, const QString &pointer)
{
    checkKeys(row, propertyKeys(), pointer);
    const auto type = readType(row, pointer);
    const bool isStructural = type && typeTraits(*type).structural;
    const auto name = readName(row, pointer, isStructural);
    const auto label = readText(row, pointer, kKeyLabel);
    if (!type)
        return;
    m_nesting.addRow(*type, pointer);
    const QString fallback = isStructural ? QString() : name.value_or(QString());
    Property property(name.value_or(QString()), label.value_or(fallback), *type);
    const bool isKnown = hasEditor(property, pointer);
    readHints(property, row, pointer);
    readRange(property, row, pointer);
    readDefault(property, row, pointer);
    if (isKnown && (name || isStructural))
        m_list.append(std::move(property));
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
        m_problems.error(pointer, QStringLiteral("\"type\" is missing"));
    return readText(row, pointer, kKeyType);
}

/// The name if there is a usable one. A row that could not be found by its name is told.
std::optional<QString> Reader::readName(const QJsonObject &row, const QString &pointer,
                                        bool isStructural)
{
    if (!row.contains(kKeyName) && !isStructural)
        m_problems.error(pointer, QStringLiteral("\"name\" is missing"));
    auto name = readText(row, pointer, kKeyName);
    if (!name)
        return std::nullopt;
    if (name->isEmpty()) {
        m_problems.error(childPointer(pointer, kKeyName), QStringLiteral("the name is empty"));
        return std::nullopt;
    }
    if (m_names.contains(*name)) {
        m_problems.error(childPointer(pointer, kKeyName),
                         QStringLiteral("the name %1 is taken by a row before").arg(quoted(*name)));
        return std::nullopt;
    }
    m_names.insert(*name);
    return name;
}

bool Reader::hasEditor(Property &property, const QString &pointer)
{
    if (PropertyEditorRegistry::Instance()->factory(&property))
        return true;
    m_problems.warning(
        childPointer(pointer, kKeyType),
        QStringLiteral("no editor for type %1, the row is skipped%2")
            .arg(quoted(property.type), vocabularyTypes().contains(property.type)
                                            ? QString()
                                            : suggestion(property.type, vocabularyTypes())));
    return false;
}

void Reader::readHints(Property &property, const QJsonObject &row, const QString &pointer)
{
    const QJsonValue json = row.value(kKeyHints);
    const QString hintsPointer = childPointer(pointer, kKeyHints);
    if (json.isUndefined())
        return;
    if (!json.isObject()) {
        m_problems.error(hintsPointer, expectedMessage(QStringLiteral("an object"), json));
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
    checkChoices(property, hintsPointer);
}

void Reader::readHint(Property &property, const QString &key, const QJsonValue &json,
                      const QString &pointer)
{
    if (!vocabularyHints().contains(key)) {
        m_problems.warning(pointer, QStringLiteral("unknown hint%1").arg(suggest(key, hintKeys())));
    }
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
        m_problems.error(pointer, expectedMessage(QStringLiteral("an array"), json));
        return;
    }
    QVariantList textures;
    QSet<QString> names;
    const QJsonArray entries = json.toArray();
    for (int i = 0; i < entries.size(); ++i) {
        ConversionError error;
        const auto texture = textureFromHintEntry(entries.at(i), m_list.folder(), error);
        if (texture && names.contains(texture->name)) {
            error.message = QStringLiteral("the name %1 is taken by a texture before")
                                .arg(quoted(texture->name));
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

void Reader::checkChoices(const Property &property, const QString &pointer)
{
    const auto values = property.hint(kPropertyHintValues).toList().size();
    const auto texts = property.hint(kPropertyHintDisplayValues).toList().size();
    if (property.hints.contains(kPropertyHintValues) && values != texts) {
        m_problems.warning(
            childPointer(pointer, kPropertyHintValues),
            QStringLiteral("%1 values for %2 \"display_values\"").arg(values).arg(texts));
    }
}

void Reader::readRange(Property &property, const QJsonObject &row, const QString &pointer)
{
    const RangeUse use = typeTraits(property.type).range;
    if (use == RangeUse::None) {
        for (const QString &key : {QString(kKeyMin), QString(kKeyMax), QString(kKeyHardMax)}) {
            if (row.contains(key)) {
                m_problems.warning(childPointer(pointer, key),
                                   QStringLiteral("means nothing for type %1, ignored")
                                       .arg(quoted(property.type)));
            }
        }
        return;
    }
    if (use == RangeUse::NeedsRange && !row.contains(kKeyMax))
        m_problems.warning(pointer, QStringLiteral("\"max\" is missing and counts as 0"));
    const QVariant min = readBound(property, row, pointer, kKeyMin);
    const QVariant max = readBound(property, row, pointer, kKeyMax);
    const QVariant hardMax = readBound(property, row, pointer, kKeyHardMax);
    property.setRange(min, max, hardMax.isValid() ? hardMax : max);
    checkBounds(property, pointer);
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

void Reader::checkBounds(const Property &property, const QString &pointer)
{
    checkBoundPair(pointer, property.minValue, kKeyMin, property.maxValue, kKeyMax);
    checkBoundPair(pointer, property.maxValue, kKeyMax, property.hardMaxValue, kKeyHardMax);
}

void Reader::checkBoundPair(const QString &pointer, const QVariant &lower, const QString &lowerKey,
                            const QVariant &upper, const QString &upperKey)
{
    if (isAbove(lower, upper)) {
        m_problems.error(childPointer(pointer, lowerKey),
                         QStringLiteral("%1 is above \"%2\", which is %3")
                             .arg(componentsText(lower), upperKey, componentsText(upper)));
    }
}

void Reader::readDefault(Property &property, const QJsonObject &row, const QString &pointer)
{
    const QJsonValue json = row.value(kKeyDefault);
    if (json.isUndefined())
        return;
    ConversionError error;
    const auto value = convertValue(property, json, m_list.folder(), error);
    const QString defaultPointer = childPointer(pointer, kKeyDefault);
    if (!value) {
        addError(defaultPointer, error);
        return;
    }
    property.setDefaultValue(*value);
    if (isOutsideRange(property, *value)) {
        m_problems.warning(
            defaultPointer,
            QStringLiteral("%1 is outside of the range").arg(componentsText(*value)));
    }
}

void Reader::checkKeys(const QJsonObject &object, const QStringList &known, const QString &pointer)
{
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        if (!known.contains(it.key())) {
            m_problems.error(childPointer(pointer, it.key()),
                             QStringLiteral("unknown key%1").arg(suggest(it.key(), known)));
        }
    }
}

void Reader::addError(const QString &pointer, const ConversionError &error)
{
    m_problems.error(pointer + error.path, error.message);
}

/// A suggestion for a message, unless nobody will see it: a document may hold a million slips.
QString Reader::suggest(const QString &text, const QStringList &candidates) const
{
    return m_problems.isFull() ? QString() : suggestion(text, candidates);
}

} // namespace

PropertyListResult readPropertyList(const QByteArray &json, const QString &folder,
                                    ListOrigin origin)
{
    PropertyEditorPanel::InitialiseRegistry();
    PropertyListResult result;
    auto document = parseJson(json, result.problems);
    if (!document)
        return result;
    ProblemCollector refused;
    if (origin == ListOrigin::Stranger && document->isObject())
        document->setObject(withoutRefusedParts(document->object(), folder, refused));
    result = Reader(folder).read(*document);
    result.problems = refused.take() + result.problems;
    return result;
}

} // namespace Tessark::PropertyHost
