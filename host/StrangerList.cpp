#include "host/StrangerList_p.h"

#include "host/HostHints.h"
#include "host/Messages_p.h"
#include "host/PictureJson_p.h"
#include "host/ProblemCollector_p.h"

#include <property/PropertyVocabulary.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QSet>
#include <QTextDocument>

#include <algorithm>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kMaximumRows = 10'000;
constexpr int kMaximumTextLength = 10'000;
constexpr int kMaximumTextInAll = 1'000'000;
constexpr int kMaximumEntries = 200'000;
constexpr int kMaximumMegapixelsInAll = 64;
constexpr int kMaximumExtent = 10'000; // of a widget; painting larger ones takes minutes

const QLatin1String kKeyTitle("title");
const QLatin1String kKeyProperties("properties");
const QLatin1String kKeyLabel("label");
const QLatin1String kKeyType("type");
const QLatin1String kKeyDefault("default");
const QLatin1String kKeyHints("hints");
const QLatin1String kKeyName("name");
const QLatin1String kKeyFile("file");

/// Formats whose files hold all of their picture. Others may name further files, or hide a second
/// picture whose size nothing tells.
bool isSelfContained(const QByteArray &format)
{
    static const QSet<QByteArray> s_formats{"bmp", "gif", "jpeg", "jpg",  "pbm", "pgm",
                                            "png", "ppm", "tif",  "tiff", "webp"};
    return s_formats.contains(format);
}

/// True when a file of that path lies in the folder or below, wherever links lead.
bool liesInside(const QString &path, const QString &folder)
{
    const QFileInfo file(path);
    const QFileInfo root(folder.isEmpty() ? QStringLiteral(".") : folder);
    const bool exists = file.exists();
    const QString inner =
        exists ? file.canonicalFilePath() : QDir::cleanPath(file.absoluteFilePath());
    const QString outer =
        exists ? root.canonicalFilePath() : QDir::cleanPath(root.absoluteFilePath());
    const bool isRoot = outer.endsWith(QLatin1Char('/'));
    return !outer.isEmpty() && inner.startsWith(isRoot ? outer : outer + QLatin1Char('/'));
}

constexpr const char *kTooMuchText =
    QT_TRANSLATE_N_NOOP("Tessark::PropertyHost::Messages",
                        "the texts of a list may have %n characters in all, the rest is left out");
constexpr const char *kTooManyEntries = QT_TRANSLATE_N_NOOP(
    "Tessark::PropertyHost::Messages",
    "the arrays and objects of a list may have %n entries in all, the rest is left out");
constexpr const char *kTooManyPixels = QT_TRANSLATE_N_NOOP(
    "Tessark::PropertyHost::Messages",
    "the pictures of a list may have %n megapixels in all, the rest is left out");

/// What a list may have only so much of in all.
struct Allowance
{
    const char *exceeded = nullptr; // a text of Messages, with the limit
    int limit = 0;
    qint64 left = limit;
};

class Filter final
{
public:
    Filter(const QString &folder, ProblemCollector &problems)
        : m_folder(folder)
        , m_problems(problems)
    {
    }

    QJsonObject document(QJsonObject document);

private:
    QJsonArray rows(const QJsonArray &rows, const QString &pointer);
    QJsonObject row(QJsonObject row, const QString &pointer);
    QJsonObject hints(QJsonObject hints, const QString &pointer);
    QJsonArray textures(const QJsonArray &textures, const QString &pointer);
    bool isAllowed(const QJsonValue &json, const QString &pointer);
    bool isAllowedText(const QString &text, const QString &pointer);
    bool areAllowedEntries(const QJsonValue &json, const QString &pointer);
    bool isAllowedHint(const QString &key, const QJsonValue &json, const QString &pointer);
    bool isAllowedPicture(const QString &path, const QString &pointer);
    bool isAllowedDefault(const QJsonObject &row, const QString &pointer);
    bool spend(qint64 amount, Allowance &allowance, const QString &pointer);
    void warnOfMarkup(const QJsonValue &text, const QString &pointer);

    QString m_folder;
    ProblemCollector &m_problems;
    Allowance m_text{kTooMuchText, kMaximumTextInAll};
    Allowance m_entries{kTooManyEntries, kMaximumEntries};
    Allowance m_pixels{kTooManyPixels, kMaximumMegapixelsInAll,
                       qint64(kMaximumMegapixelsInAll) * 1'000'000};
};

QJsonObject Filter::document(QJsonObject document)
{
    const QString titlePointer = childPointer(QString(), kKeyTitle);
    if (document.value(kKeyTitle).isString()
        && !isAllowedText(document.value(kKeyTitle).toString(), titlePointer))
        document.remove(kKeyTitle);
    if (document.value(kKeyProperties).isArray()) {
        document.insert(kKeyProperties, rows(document.value(kKeyProperties).toArray(),
                                             childPointer(QString(), kKeyProperties)));
    }
    return document;
}

QJsonArray Filter::rows(const QJsonArray &rows, const QString &pointer)
{
    QJsonArray result;
    for (int i = 0; i < rows.size(); ++i) {
        const QString rowPointer = childPointer(pointer, i);
        if (i == kMaximumRows) {
            m_problems.error(rowPointer,
                             Messages::tr("a list may have %n rows at most, the rest is left out",
                                          nullptr, kMaximumRows));
            break;
        }
        const QJsonValue json = rows.at(i);
        const QJsonValue allowed =
            json.isObject() ? QJsonValue(row(json.toObject(), rowPointer)) : json;
        if (m_text.left < 0 || m_entries.left < 0)
            break;
        result.append(allowed);
    }
    return result;
}

QJsonObject Filter::row(QJsonObject row, const QString &pointer)
{
    const QStringList keys = row.keys();
    for (const QString &key : keys) {
        const QJsonValue json = row.value(key);
        const QString keyPointer = childPointer(pointer, key);
        if (key == kKeyHints && json.isObject())
            row.insert(key, hints(json.toObject(), keyPointer));
        else if (!isAllowed(json, keyPointer))
            row.remove(key);
    }
    warnOfMarkup(row.value(kKeyLabel), childPointer(pointer, kKeyLabel));
    if (!isAllowedDefault(row, childPointer(pointer, kKeyDefault)))
        row.remove(kKeyDefault);
    return row;
}

QJsonObject Filter::hints(QJsonObject hints, const QString &pointer)
{
    const QStringList keys = hints.keys();
    for (const QString &key : keys) {
        const QJsonValue json = hints.value(key);
        const QString hintPointer = childPointer(pointer, key);
        if (!isAllowedHint(key, json, hintPointer))
            hints.remove(key);
        else if (key == kHostHintTextures && json.isArray())
            hints.insert(key, textures(json.toArray(), hintPointer));
    }
    return hints;
}

bool Filter::isAllowedHint(const QString &key, const QJsonValue &json, const QString &pointer)
{
    if (!isAllowed(json, pointer))
        return false;
    if (key == kPropertyHintStyleSheet) {
        m_problems.error(
            pointer,
            Messages::tr("only a trusted list may have style sheets, which can name files"));
        return false;
    }
    const QJsonArray extents = key == kPropertyHintSize ? json.toArray() : QJsonArray();
    const bool isTooLarge =
        std::any_of(extents.begin(), extents.end(),
                    [](const QJsonValue &extent) { return extent.toDouble() > kMaximumExtent; });
    if (isTooLarge) {
        m_problems.error(pointer, Messages::tr("a row may be %n pixels wide and high at most",
                                               nullptr, kMaximumExtent));
    }
    return !isTooLarge;
}

QJsonArray Filter::textures(const QJsonArray &textures, const QString &pointer)
{
    QJsonArray result;
    for (int i = 0; i < textures.size(); ++i) {
        const QJsonValue json = textures.at(i);
        const QString entryPointer = childPointer(pointer, i);
        const bool isAllowedEntry =
            json.isObject() ? isAllowedPicture(json.toObject().value(kKeyFile).toString(),
                                               childPointer(entryPointer, kKeyFile))
                            : isAllowedPicture(json.toString(), entryPointer);
        if (isAllowedEntry)
            result.append(json);
    }
    return result;
}

bool Filter::isAllowed(const QJsonValue &json, const QString &pointer)
{
    if (json.isString())
        return isAllowedText(json.toString(), pointer);
    return (!json.isArray() && !json.isObject()) || areAllowedEntries(json, pointer);
}

bool Filter::isAllowedText(const QString &text, const QString &pointer)
{
    if (text.size() > kMaximumTextLength) {
        m_problems.error(pointer,
                         Messages::tr("a text may have %n characters at most, this one has %1",
                                      nullptr, kMaximumTextLength)
                             .arg(text.size()));
        return false;
    }
    return spend(text.size(), m_text, pointer);
}

bool Filter::areAllowedEntries(const QJsonValue &json, const QString &pointer)
{
    const QJsonArray array = json.toArray();
    const QJsonObject object = json.toObject();
    if (!spend(array.size() + object.size(), m_entries, pointer))
        return false;
    bool allowed = true;
    for (int i = 0; allowed && i < array.size(); ++i)
        allowed = isAllowed(array.at(i), childPointer(pointer, i));
    for (auto it = object.constBegin(); allowed && it != object.constEnd(); ++it)
        allowed = isAllowed(it.value(), childPointer(pointer, it.key()));
    return allowed;
}

/// A missing file is allowed here: whoever reads it says so.
bool Filter::isAllowedPicture(const QString &path, const QString &pointer)
{
    if (path.isEmpty())
        return true;
    const QString resolved = resolvedPath(path, m_folder);
    if (!liesInside(resolved, m_folder)) {
        m_problems.error(
            pointer,
            Messages::tr(
                "%1 lies outside of the folder of the list; only a trusted list may name it")
                .arg(namedPath(path)));
        return false;
    }
    const PictureHeader header = pictureHeader(resolved);
    if (!header.format.isEmpty() && !isSelfContained(header.format)) {
        m_problems.error(
            pointer,
            Messages::tr("%1 is of the format \"%2\"; only a trusted list may have pictures of it")
                .arg(namedPath(path), QString::fromLatin1(header.format)));
        return false;
    }
    const qint64 pixels = qint64(header.size.width()) * header.size.height();
    // Too large a picture is not decoded at all.
    return pixels > kMaximumPicturePixels || spend(pixels, m_pixels, pointer);
}

bool Filter::isAllowedDefault(const QJsonObject &row, const QString &pointer)
{
    const QString type = row.value(kKeyType).toString();
    const QJsonValue json = row.value(kKeyDefault);
    if (type == kPropertyTypeStaticText)
        warnOfMarkup(json, pointer);
    if (type != kPropertyTypeImage && type != kPropertyTypeTexture)
        return true;
    const QJsonArray textures = row.value(kKeyHints).toObject().value(kHostHintTextures).toArray();
    for (const auto &entry : textures) {
        const QJsonValue texture = entry;
        const QJsonObject object = texture.toObject();
        const QJsonValue file = texture.isObject() ? object.value(kKeyFile) : texture;
        if (type == kPropertyTypeTexture
            && json == object.value(kKeyName).toString(file.toString()))
            return true;
    }
    return isAllowedPicture(json.toString(), pointer);
}

/// Takes amount from what is left; tells when it is too much, and then only once.
bool Filter::spend(qint64 amount, Allowance &allowance, const QString &pointer)
{
    if (amount <= allowance.left) {
        allowance.left -= amount;
        return true;
    }
    if (allowance.left >= 0)
        m_problems.error(pointer, Messages::tr(allowance.exceeded, nullptr, allowance.limit));
    allowance.left = -1;
    return false;
}

void Filter::warnOfMarkup(const QJsonValue &text, const QString &pointer)
{
    if (Qt::mightBeRichText(text.toString()))
        m_problems.warning(pointer, Messages::tr("markup is shown as it is written"));
}

} // namespace

QJsonObject withoutRefusedParts(const QJsonObject &document, const QString &folder,
                                ProblemCollector &problems)
{
    return Filter(folder, problems).document(document);
}

} // namespace Tessark::PropertyHost
