#include "host/TextureJson_p.h"

#include "host/HostHints.h"
#include "host/Messages_p.h"
#include "host/PictureJson_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"

#include <property/Property.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>

namespace Tessark::PropertyHost {

using PropertyUI::TextureChoice;

namespace {

const QLatin1String kKeyName("name");
const QLatin1String kKeyFile("file");

/// Twice the size at which the editor shows icons, for screens with twice the pixels.
constexpr int kIconExtent = 64;

QIcon makeIcon(const QImage &image)
{
    // Lists can be read, and checked, without anything to paint with.
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return {};
    const QSize extent(kIconExtent, kIconExtent);
    const QSize size = image.size().boundedTo(extent) == image.size()
                           ? image.size()
                           : image.size().scaled(extent, Qt::KeepAspectRatio);
    return QIcon(QPixmap::fromImage(image.scaled(size.expandedTo(QSize(1, 1)),
                                                 Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
}

std::optional<TextureChoice> readTexture(const QString &name, const QString &path,
                                         const QString &folder, ConversionError &error)
{
    const auto picture = readPicture(path, folder, error);
    if (!picture)
        return std::nullopt;
    return TextureChoice{name, *picture, makeIcon(*picture)};
}

std::optional<QString> nonEmptyText(const QJsonObject &object, const QString &key,
                                    ConversionError &error)
{
    auto text = textFromJson(object.value(key), error);
    if (text && text->isEmpty()) {
        error.message = Messages::tr("the %1 is empty").arg(key);
        text.reset();
    }
    if (!text)
        error.path = childPointer(QString(), key);
    return text;
}

std::optional<TextureChoice> textureFromObject(const QJsonObject &object, const QString &folder,
                                               ConversionError &error)
{
    if (!checkKeys(object, {kKeyName, kKeyFile}, kKeyFile, error))
        return std::nullopt;
    const auto path = nonEmptyText(object, kKeyFile, error);
    const auto name =
        path && object.contains(kKeyName) ? nonEmptyText(object, kKeyName, error) : path;
    if (!name)
        return std::nullopt;
    auto texture = readTexture(*name, *path, folder, error);
    if (!texture)
        error.path = childPointer(QString(), kKeyFile);
    return texture;
}

} // namespace

std::optional<TextureChoice> textureFromHintEntry(const QJsonValue &json, const QString &folder,
                                                  ConversionError &error)
{
    if (json.isObject())
        return textureFromObject(json.toObject(), folder, error);
    if (!json.isString()) {
        error.message = expectedMessage(Messages::tr("a path or an object with \"file\""), json);
        return std::nullopt;
    }
    if (json.toString().isEmpty()) {
        error.message = Messages::tr("the path is empty");
        return std::nullopt;
    }
    return readTexture(json.toString(), json.toString(), folder, error);
}

QJsonValue texturesToJson(const QVariant &textures)
{
    QJsonArray result;
    const QVariantList list = textures.toList();
    for (const QVariant &entry : list) {
        const auto texture = entry.value<TextureChoice>();
        const QString path = pictureToJson(texture.image).toString();
        if (path.isEmpty())
            return QJsonValue::Undefined;
        if (path == texture.name)
            result.append(path);
        else
            result.append(QJsonObject{{kKeyName, texture.name}, {kKeyFile, path}});
    }
    return result;
}

std::optional<QVariant> textureFromJson(const PropertyUI::Property &property,
                                        const QJsonValue &json, const QString &folder,
                                        ConversionError &error)
{
    if (!json.isString() && !json.isNull()) {
        error.message =
            expectedMessage(Messages::tr("the name of a texture, a path or null"), json);
        return std::nullopt;
    }
    const QString text = json.toString();
    if (text.isEmpty())
        return QVariant::fromValue(TextureChoice());
    QStringList names;
    const QVariantList textures = property.hint(kHostHintTextures).toList();
    for (const QVariant &texture : textures) {
        names.append(texture.value<TextureChoice>().name);
        if (names.last() == text)
            return texture;
    }
    if (!names.isEmpty() && !QFileInfo::exists(resolvedPath(text, folder))) {
        error.message = Messages::tr("%1 is neither one of the \"textures\" nor a file%2")
                            .arg(quoted(text), suggestion(text, names));
        return std::nullopt;
    }
    const auto texture = readTexture(text, text, folder, error);
    return texture ? std::optional(QVariant::fromValue(*texture)) : std::nullopt;
}

QJsonValue textureToJson(const QVariant &value)
{
    if (value.userType() != qMetaTypeId<TextureChoice>())
        return QJsonValue::Undefined;
    return value.value<TextureChoice>().name;
}

} // namespace Tessark::PropertyHost
