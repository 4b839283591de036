#include "host/ClassInfo_p.h"

#include "host/HintJson_p.h"
#include "host/HintUse_p.h"
#include "host/ListKeys_p.h"
#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"
#include "host/ValueCheck_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaClassInfo>
#include <QMetaEnum>
#include <QMetaObject>
#include <QMetaProperty>

#include <cmath>
#include <functional>
#include <optional>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

const QLatin1String kGroup("group");
const QLatin1String kRange("range");

const QStringList &knownWords()
{
    static const QStringList s_words =
        QStringList{kKeyLabel, kGroup, kKeyType, kRange, kKeyDefault} + knownHints();
    return s_words;
}

/// Applies what is said about one property and gathers the mistakes.
class Application
{
public:
    Application(const QMetaProperty &meta, Property &row)
        : m_meta(meta)
        , m_row(row)
    {
    }

    void applyType(const QString &type);
    void applyRange(const QString &range);
    void applyDefault(const QString &text);
    void applyHint(const QString &key, const QString &text);
    void tellUnknown(const QString &word);

    QVector<ClassInfoMistake> takeMistakes() { return std::move(m_mistakes); }

private:
    using Conversion =
        std::function<std::optional<QVariant>(const QJsonValue &json, ConversionError &error)>;

    void tell(const QString &word, const QString &part, const QString &message);
    std::optional<QVariant> read(const QString &text, const QString &word, const QString &part,
                                 const Conversion &convert);
    std::optional<QVariant> readBound(const QString &text, const QString &key);
    void applyKey(const QString &key);

    QMetaProperty m_meta;
    Property &m_row;
    QVector<ClassInfoMistake> m_mistakes;
};

/// Whether a row of type can stand for one of another type. Types of the host take what they get.
bool showsSameValues(const QString &type, const QString &other)
{
    const auto kindOf = [](const QString &name) {
        const ValueKind kind = typeTraits(name).kind;
        return kind == ValueKind::OpaqueColor ? ValueKind::Color : kind;
    };
    return !type.isEmpty() && (kindOf(type) == ValueKind::Any || kindOf(type) == kindOf(other));
}

/// The text as a JSON value; undefined if it is none.
QJsonValue jsonOf(const QString &text)
{
    const QByteArray array = '[' + text.toUtf8() + ']';
    const QJsonArray values = QJsonDocument::fromJson(array).array();
    return values.size() == 1 ? values.first() : QJsonValue(QJsonValue::Undefined);
}

/// A number, or numbers with commas between them.
QJsonValue numbersOf(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    QJsonArray numbers;
    for (const QString &part : parts) {
        bool ok = false;
        const double number = part.trimmed().toDouble(&ok);
        if (!ok || !std::isfinite(number))
            return text;
        numbers.append(number);
    }
    return numbers.size() == 1 ? numbers.first() : QJsonValue(numbers);
}

void Application::applyType(const QString &type)
{
    if (!showsSameValues(type, m_row.type)) {
        tell(kKeyType, childPointer(QString(), kKeyType),
             Messages::tr("a row of type %1 does not show values of %2")
                 .arg(quoted(type), QString::fromLatin1(m_meta.typeName())));
        return;
    }
    if (type == kPropertyTypePercent)
        m_row.setRange(0.0, 1.0);
    m_row.type = type;
}

void Application::applyRange(const QString &range)
{
    const QStringList bounds = range.split(QLatin1String(".."));
    if (typeTraits(m_row.type).range == RangeUse::None) {
        tell(kRange, childPointer(QString(), kKeyMin),
             Messages::tr("means nothing for type %1").arg(quoted(m_row.type)));
        return;
    }
    if (bounds.size() < 2 || bounds.size() > 3) {
        tell(kRange, childPointer(QString(), kKeyMin),
             Messages::tr("%1 is not of the form \"0..10\" or \"0..10..100\"").arg(quoted(range)));
        return;
    }
    const auto minimum = readBound(bounds.at(0), kKeyMin);
    const auto maximum = readBound(bounds.at(1), kKeyMax);
    const auto hardMaximum = bounds.size() == 3 ? readBound(bounds.at(2), kKeyHardMax) : maximum;
    if (!minimum || !maximum || !hardMaximum)
        return;
    if (isAbove(*minimum, *maximum) || isAbove(*maximum, *hardMaximum)) {
        tell(kRange, childPointer(QString(), kKeyMin),
             Messages::tr("the bounds of %1 do not ascend").arg(quoted(range)));
        return;
    }
    m_row.setRange(*minimum, *maximum, *hardMaximum);
}

void Application::applyDefault(const QString &text)
{
    if (m_meta.isEnumType() && typeTraits(m_row.type).kind == ValueKind::Choice) {
        applyKey(text);
        return;
    }
    const auto value = read(text, kKeyDefault, childPointer(QString(), kKeyDefault),
                            [this](const QJsonValue &json, ConversionError &error) {
                                return convertValue(m_row, json, QString(), error);
                            });
    if (value)
        m_row.setDefaultValue(*value);
}

void Application::applyHint(const QString &key, const QString &text)
{
    const QString part = childPointer(childPointer(QString(), kKeyHints), key);
    const auto value = read(text, key, part, [key](const QJsonValue &json, ConversionError &error) {
        return hintFromJson(key, json, error);
    });
    if (value)
        m_row.setHint(key, *value);
}

void Application::tellUnknown(const QString &word)
{
    tell(word, QString(), Messages::tr("unknown hint%1").arg(suggestion(word, knownWords())));
    m_mistakes.last().isError = false;
}

void Application::tell(const QString &word, const QString &part, const QString &message)
{
    const QString name = QString::fromLatin1(m_meta.name()) + QLatin1Char('.') + word;
    m_mistakes.append({name, message, part});
}

/// The value of a text that stands for itself or, where that will not do, is JSON.
std::optional<QVariant> Application::read(const QString &text, const QString &word,
                                          const QString &part, const Conversion &convert)
{
    ConversionError error;
    auto value = convert(text, error);
    const QJsonValue json = value ? QJsonValue(QJsonValue::Undefined) : jsonOf(text);
    if (!json.isUndefined())
        value = convert(json, error);
    if (!value)
        tell(word, part + error.path, error.message);
    return value;
}

std::optional<QVariant> Application::readBound(const QString &text, const QString &key)
{
    ConversionError error;
    auto bound = convertValue(m_row, numbersOf(text), QString(), error);
    if (!bound)
        tell(kRange, childPointer(QString(), key),
             Messages::tr("%1: %2").arg(quoted(text), error.message));
    return bound;
}

void Application::applyKey(const QString &key)
{
    bool isKey = false;
    const int value = m_meta.enumerator().keyToValue(key.toLatin1().constData(), &isKey);
    if (isKey)
        m_row.setDefaultValue(value);
    else
        tell(kKeyDefault, childPointer(QString(), kKeyDefault),
             Messages::tr("%1 has no key %2")
                 .arg(QString::fromLatin1(m_meta.enumerator().enumName()), quoted(key)));
}

QStringList propertyNames(const QMetaObject &meta)
{
    QStringList names;
    for (int i = 0; i < meta.propertyCount(); ++i)
        names.append(QString::fromLatin1(meta.property(i).name()));
    return names;
}

} // namespace

ClassInfo::ClassInfo(const QMetaObject &meta)
    : m_className(QString::fromLatin1(meta.className()))
{
    for (int i = 0; i < meta.classInfoCount(); ++i) { // those of bases come first
        const QMetaClassInfo info = meta.classInfo(i);
        add(meta, QString::fromUtf8(info.name()), QString::fromUtf8(info.value()));
    }
}

QString ClassInfo::label(const QString &property) const
{
    return m_texts.value(property).value(kKeyLabel);
}

QString ClassInfo::group(const QString &property) const
{
    return m_texts.value(property).value(kGroup);
}

QVector<ClassInfoMistake> ClassInfo::apply(const QMetaProperty &meta, Property &row) const
{
    QMap<QString, QString> texts = m_texts.value(QString::fromLatin1(meta.name()));
    texts.remove(kKeyLabel);
    texts.remove(kGroup);
    Application application(meta, row);
    // What the others are checked against comes first, and the default last.
    if (texts.contains(kKeyType))
        application.applyType(texts.take(kKeyType));
    if (texts.contains(kRange))
        application.applyRange(texts.take(kRange));
    const std::optional<QString> standard =
        texts.contains(kKeyDefault) ? std::optional(texts.take(kKeyDefault)) : std::nullopt;
    for (auto text = texts.constBegin(); text != texts.constEnd(); ++text) {
        if (knownHints().contains(text.key()))
            application.applyHint(text.key(), text.value());
        else
            application.tellUnknown(text.key());
    }
    if (standard)
        application.applyDefault(*standard);
    return application.takeMistakes();
}

void ClassInfo::add(const QMetaObject &meta, const QString &name, const QString &text)
{
    const auto dot = name.indexOf(QLatin1Char('.'));
    if (dot <= 0)
        return;
    const QString property = name.left(dot);
    const QString word = name.mid(dot + 1);
    if (meta.indexOfProperty(property.toLatin1().constData()) >= 0)
        m_texts[property].insert(word, text);
    else if (knownWords().contains(word))
        m_strangers.append({name,
                            Messages::tr("there is no property %1%2")
                                .arg(quoted(property), suggestion(property, propertyNames(meta))),
                            QString()});
}

} // namespace Tessark::PropertyHost
