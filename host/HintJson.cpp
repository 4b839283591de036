#include "host/HintJson_p.h"

#include "host/HostHints.h"
#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"
#include "host/ValueJson_p.h"

#include <property/PropertyVocabulary.h>

#include <QFont>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QTabWidget>

#include <functional>

namespace Tessark::PropertyHost {

namespace {

using namespace PropertyUI;

using HintReader = std::optional<QVariant> (*)(const QJsonValue &json, ConversionError &error);
using HintWriter = QJsonValue (*)(const QVariant &value);

/// How a hint is read and written.
struct HintForm
{
    HintReader read = nullptr;
    HintWriter write = nullptr;
};

struct NamedNumber
{
    QLatin1String name;
    int number = 0;
};

const QLatin1String kFontFamily("family");
const QLatin1String kFontSize("size");
const QLatin1String kFontBold("bold");
const QLatin1String kFontItalic("italic");

const NamedNumber kAlignments[] = {
    {QLatin1String("left"), Qt::AlignLeft},       {QLatin1String("right"), Qt::AlignRight},
    {QLatin1String("hcenter"), Qt::AlignHCenter}, {QLatin1String("justify"), Qt::AlignJustify},
    {QLatin1String("top"), Qt::AlignTop},         {QLatin1String("bottom"), Qt::AlignBottom},
    {QLatin1String("vcenter"), Qt::AlignVCenter}, {QLatin1String("center"), Qt::AlignCenter},
};

const NamedNumber kTabPositions[] = {
    {QLatin1String("north"), QTabWidget::North},
    {QLatin1String("south"), QTabWidget::South},
    {QLatin1String("west"), QTabWidget::West},
    {QLatin1String("east"), QTabWidget::East},
};

const NamedNumber kOrientations[] = {
    {QLatin1String("horizontal"), Qt::Horizontal},
    {QLatin1String("vertical"), Qt::Vertical},
};

template <std::size_t N>
std::optional<int> numberOfName(const NamedNumber (&table)[N], const QString &name,
                                ConversionError &error)
{
    QStringList names;
    for (const NamedNumber &entry : table) {
        if (entry.name == name)
            return entry.number;
        names.append(entry.name);
    }
    error.message =
        Messages::tr("%1 is not one of %2").arg(quoted(name), names.join(QLatin1String(", ")));
    return std::nullopt;
}

template <std::size_t N>
std::optional<QVariant> nameFromJson(const NamedNumber (&table)[N], const QJsonValue &json,
                                     ConversionError &error)
{
    const auto name = textFromJson(json, error);
    const auto number = name ? numberOfName(table, *name, error) : std::nullopt;
    return number ? std::optional(QVariant(*number)) : std::nullopt;
}

template <typename T>
std::optional<QVariant> toVariant(const std::optional<T> &value)
{
    return value ? std::optional(QVariant::fromValue(*value)) : std::nullopt;
}

std::optional<QVariant> readBoolean(const QJsonValue &json, ConversionError &error)
{
    return toVariant(booleanFromJson(json, error));
}

std::optional<QVariant> readInteger(const QJsonValue &json, ConversionError &error)
{
    return toVariant(integerFromJson(json, error));
}

std::optional<QVariant> readNumber(const QJsonValue &json, ConversionError &error)
{
    return toVariant(numberFromJson(json, error));
}

std::optional<QVariant> readText(const QJsonValue &json, ConversionError &error)
{
    return toVariant(textFromJson(json, error));
}

std::optional<QVariant> readSize(const QJsonValue &json, ConversionError &error)
{
    return toVariant(sizeFromJson(json, error));
}

std::optional<QVariant> readColor(const QJsonValue &json, ConversionError &error)
{
    return toVariant(colorFromJson(json, Alpha::With, error));
}

std::optional<QVariant> readTabPosition(const QJsonValue &json, ConversionError &error)
{
    return nameFromJson(kTabPositions, json, error);
}

std::optional<QVariant> readOrientation(const QJsonValue &json, ConversionError &error)
{
    return nameFromJson(kOrientations, json, error);
}

/// The names of a text that joins them by "|", with or without blanks.
QStringList splitNames(const QString &text)
{
    QStringList names = text.split(QLatin1Char('|'));
    for (QString &name : names)
        name = name.trimmed();
    return names;
}

std::optional<QVariant> alignmentFromNames(const QStringList &names, ConversionError &error)
{
    int alignment = 0;
    for (const QString &name : names) {
        const auto flag = numberOfName(kAlignments, name, error);
        if (!flag)
            return std::nullopt;
        alignment |= *flag;
    }
    return alignment;
}

/// The texts of an array of texts.
std::optional<QStringList> textsFromJson(const QJsonValue &json, const char *what,
                                         ConversionError &error)
{
    if (!json.isArray()) {
        error.message = expectedMessage(Messages::tr(what), json);
        return std::nullopt;
    }
    QStringList texts;
    const QJsonArray array = json.toArray();
    for (int i = 0; i < array.size(); ++i) {
        const auto text = textFromJson(array.at(i), error);
        if (!text) {
            error.path = childPointer(QString(), i);
            return std::nullopt;
        }
        texts.append(*text);
    }
    return texts;
}

std::optional<QVariant> readAlignment(const QJsonValue &json, ConversionError &error)
{
    if (json.isString())
        return alignmentFromNames(splitNames(json.toString()), error);
    const auto names = textsFromJson(
        json, QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "names of alignments"), error);
    if (!names)
        return std::nullopt;
    if (names->isEmpty()) {
        error.message = Messages::tr("expected names of alignments, found an empty array");
        return std::nullopt;
    }
    return alignmentFromNames(*names, error);
}

std::optional<QVariant> readValues(const QJsonValue &json, ConversionError &error)
{
    if (!json.isArray()) {
        error.message = expectedMessage(Messages::tr("an array"), json);
        return std::nullopt;
    }
    QVariantList values;
    const QJsonArray array = json.toArray();
    for (int i = 0; i < array.size(); ++i) {
        const auto value = scalarFromJson(array.at(i), error);
        if (!value) {
            error.path = childPointer(QString(), i);
            return std::nullopt;
        }
        values.append(*value);
    }
    return QVariant(values);
}

std::optional<QVariant> readTexts(const QJsonValue &json, ConversionError &error)
{
    return toVariant(textsFromJson(
        json, QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "an array"), error));
}

std::optional<QVariant> fontFromText(const QString &text, ConversionError &error)
{
    static const QRegularExpression s_font(
        QStringLiteral("\\A *([^, ][^,]*)(?:, *([1-9][0-9]{0,2}(?:\\.[0-9]+)?) *)?\\z"));
    const QRegularExpressionMatch match = s_font.match(text);
    if (!match.hasMatch()) {
        error.message =
            Messages::tr("%1 is not of the form \"Family\" or \"Family, 12\"").arg(quoted(text));
        return std::nullopt;
    }
    QFont font;
    font.setFamily(match.captured(1).trimmed());
    if (!match.captured(2).isEmpty())
        font.setPointSizeF(match.captured(2).toDouble());
    return font;
}

bool setFontFamily(QFont &font, const QJsonValue &json, ConversionError &error)
{
    const auto family = textFromJson(json, error);
    if (family)
        font.setFamily(*family);
    return family.has_value();
}

bool setFontSize(QFont &font, const QJsonValue &json, ConversionError &error)
{
    const auto size = numberFromJson(json, error);
    if (!size)
        return false;
    if (*size < 1.0 || *size >= 1000.0) {
        error.message = Messages::tr("a font size must be at least 1 and below 1000");
        return false;
    }
    font.setPointSizeF(*size);
    return true;
}

bool setFontBold(QFont &font, const QJsonValue &json, ConversionError &error)
{
    const auto bold = booleanFromJson(json, error);
    if (bold)
        font.setBold(*bold);
    return bold.has_value();
}

bool setFontItalic(QFont &font, const QJsonValue &json, ConversionError &error)
{
    const auto italic = booleanFromJson(json, error);
    if (italic)
        font.setItalic(*italic);
    return italic.has_value();
}

std::optional<QVariant> fontFromObject(const QJsonObject &object, ConversionError &error)
{
    using Setter = bool (*)(QFont &, const QJsonValue &, ConversionError &);
    static const QMap<QString, Setter> s_setters{
        {kFontFamily, setFontFamily},
        {kFontSize, setFontSize},
        {kFontBold, setFontBold},
        {kFontItalic, setFontItalic},
    };
    QFont font;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const Setter setter = s_setters.value(it.key());
        if (!setter)
            error.message =
                Messages::tr("unknown key%1").arg(suggestion(it.key(), s_setters.keys()));
        if (!setter || !setter(font, it.value(), error)) {
            error.path = childPointer(QString(), it.key());
            return std::nullopt;
        }
    }
    return font;
}

std::optional<QVariant> readFont(const QJsonValue &json, ConversionError &error)
{
    if (json.isString())
        return fontFromText(json.toString(), error);
    if (json.isObject())
        return fontFromObject(json.toObject(), error);
    error.message = expectedMessage(Messages::tr("a font as text or object"), json);
    return std::nullopt;
}

std::optional<QVariant> readConditions(const QJsonValue &json, ConversionError &error)
{
    if (json.isString())
        return QVariant(json.toString());
    const auto texts = textsFromJson(
        json,
        QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "a condition or an array of them"),
        error);
    if (!texts || !texts->isEmpty())
        return toVariant(texts);
    error.message = Messages::tr("expected conditions, found an empty array");
    return std::nullopt;
}

/// What JSON holds as it is: scalars, lists of them, and whatever a hint of the host is made of.
QJsonValue writePlain(const QVariant &value)
{
    return QJsonValue::fromVariant(value);
}

QJsonValue writeSize(const QVariant &value)
{
    const QSize size = value.toSize();
    return QJsonArray{size.width(), size.height()};
}

QJsonValue writeColor(const QVariant &value)
{
    return colorToJson(value.value<QColor>(), Alpha::With);
}

template <std::size_t N>
QJsonValue nameToJson(const NamedNumber (&table)[N], const QVariant &value)
{
    for (const NamedNumber &entry : table) {
        if (entry.number == value.toInt())
            return QString(entry.name);
    }
    return QJsonValue::Undefined;
}

QJsonValue writeTabPosition(const QVariant &value)
{
    return nameToJson(kTabPositions, value);
}

QJsonValue writeOrientation(const QVariant &value)
{
    return nameToJson(kOrientations, value);
}

/// The names of single flags; those of several come last in the table and are not needed.
QJsonValue writeAlignment(const QVariant &value)
{
    int rest = value.toInt();
    QStringList names;
    for (const NamedNumber &entry : kAlignments) {
        if ((rest & entry.number) != entry.number)
            continue;
        names.append(entry.name);
        rest &= ~entry.number;
    }
    const bool isWhole = rest == 0 && !names.isEmpty();
    return isWhole ? QJsonValue(names.join(QLatin1Char('|'))) : QJsonValue(QJsonValue::Undefined);
}

/// True when the font itself says what getter gives, rather than the widget that will show it:
/// then it comes out the same whatever font stands behind.
template <typename Getter>
bool isOwn(const QFont &font, const QFont &behind, const QFont &otherBehind, Getter getter)
{
    return std::invoke(getter, font.resolve(behind))
           == std::invoke(getter, font.resolve(otherBehind));
}

QJsonValue writeFont(const QVariant &value)
{
    const auto font = value.value<QFont>();
    QFont plain(QStringLiteral("Plain"), 10);
    plain.setBold(false);
    plain.setItalic(false);
    QFont other(QStringLiteral("Other"), 20, QFont::Bold, true);
    QJsonObject object;
    if (isOwn(font, plain, other, &QFont::family))
        object.insert(kFontFamily, font.family());
    if (isOwn(font, plain, other, &QFont::pointSizeF) && font.pointSizeF() > 0)
        object.insert(kFontSize, font.pointSizeF());
    if (isOwn(font, plain, other, &QFont::bold))
        object.insert(kFontBold, font.bold());
    if (isOwn(font, plain, other, &QFont::italic))
        object.insert(kFontItalic, font.italic());
    return object;
}

const QMap<QString, HintForm> &vocabularyForms()
{
    const HintForm boolean{readBoolean, writePlain};
    const HintForm integer{readInteger, writePlain};
    const HintForm number{readNumber, writePlain};
    const HintForm text{readText, writePlain};
    const HintForm size{readSize, writeSize};
    const HintForm color{readColor, writeColor};
    static const QMap<QString, HintForm> s_forms{
        {kPropertyHintEnabled, boolean},
        {kPropertyHintFullWidth, boolean},
        {kPropertyHintForeground, color},
        {kPropertyHintBackground, color},
        {kPropertyHintFont, {readFont, writeFont}},
        {kPropertyHintAlignment, {readAlignment, writeAlignment}},
        {kPropertyHintOrientation, {readOrientation, writeOrientation}},
        {kPropertyHintSize, size},
        {kPropertyHintMinimumSize, size},
        {kPropertyHintMaximumSize, size},
        {kPropertyHintWidget, text},
        {kPropertyHintPreferencesKey, text},
        {kPropertyHintStyleSheet, text},
        {kPropertyHintTabPosition, {readTabPosition, writeTabPosition}},
        {kPropertyHintValues, {readValues, writePlain}},
        {kPropertyHintDisplayValues, {readTexts, writePlain}},
        {kPropertyHintShowMultipleCheck, boolean},
        {kPropertyHintShowSliders, boolean},
        {kPropertyHintLogarithmicSlider, boolean},
        {kPropertyHintDisplayScale, number},
        {kPropertyHintAspectRatio, size},
        {kPropertyHintFullSize, size},
        {kPropertyHintBoolHideLabel, boolean},
        {kPropertyHintXfrmNoRotation, boolean},
        {kPropertyHintXfrmNoPosition, boolean},
        {kPropertyHintXfrmNoScale, boolean},
        {kPropertyHintFloatDecimals, integer},
        {kPropertyHintSuffix, text},
        {kPropertyHintXfrmUniformScale, boolean},
        {kPropertyHintXfrmCollapsibleScale, boolean},
        {kPropertyHintUseNativeDialogs, boolean},
    };
    return s_forms;
}

const QMap<QString, HintForm> &hostForms()
{
    const HintForm conditions{readConditions, writePlain};
    const HintForm text{readText, writePlain};
    static const QMap<QString, HintForm> s_forms{
        {kHostHintHelp, text},
        {kHostHintVisibleWhen, conditions},
        {kHostHintEnabledWhen, conditions},
        {kHostHintMinimumFollows, text},
        {kHostHintMaximumFollows, text},
    };
    return s_forms;
}

HintForm hintForm(const QString &key)
{
    return vocabularyForms().value(key, hostForms().value(key));
}

} // namespace

const QStringList &vocabularyHints()
{
    static const QStringList s_keys = vocabularyForms().keys();
    return s_keys;
}

std::optional<QVariant> hintFromJson(const QString &key, const QJsonValue &json,
                                     ConversionError &error)
{
    const HintReader read = hintForm(key).read;
    return read ? read(json, error) : std::optional(json.toVariant());
}

QJsonValue hintToJson(const QString &key, const QVariant &value)
{
    const HintWriter write = hintForm(key).write;
    return write ? write(value) : writePlain(value);
}

} // namespace Tessark::PropertyHost
