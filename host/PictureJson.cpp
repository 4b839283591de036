#include "host/PictureJson_p.h"

#include "host/Messages_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>

namespace Tessark::PropertyHost {

namespace {

/// Text of a QImage that holds its path. It survives copies, and every QVariant.
const QLatin1String kPathKey("tessark-path");

constexpr int kMaximumNamedPath = 300;
constexpr int kMaximumMegapixels = static_cast<int>(kMaximumPicturePixels / 1'000'000);

/// What speaks against opening the file; empty when nothing does.
QString obstacle(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Messages::tr("there is no file %1").arg(namedPath(path));
    if (!info.isFile())
        return Messages::tr("%1 is not a file").arg(namedPath(path));
    return QString();
}

/// What speaks against decoding the picture; empty when nothing does.
QString obstacle(const QImageReader &reader, const QString &path)
{
    if (!reader.canRead()) {
        return Messages::tr("%1 cannot be read as a picture: %2")
            .arg(namedPath(path), reader.errorString());
    }
    const QSize size = reader.size();
    if (size.isEmpty())
        return Messages::tr("%1 does not tell the size of its picture").arg(namedPath(path));
    if (qint64(size.width()) * size.height() > kMaximumPicturePixels) {
        return Messages::tr(
                   "%1 is too large: it has %2 x %3 pixels, at most %n megapixels are read",
                   nullptr, kMaximumMegapixels)
            .arg(namedPath(path), QString::number(size.width()), QString::number(size.height()));
    }
    return QString();
}

std::optional<QImage> decode(QFile &file, const QString &path, QString &problem)
{
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    problem = obstacle(reader, path);
    if (!problem.isEmpty())
        return std::nullopt;
    QImage picture = reader.read();
    if (!picture.isNull())
        return picture;
    problem = Messages::tr("%1 cannot be read as a picture: %2")
                  .arg(namedPath(path), reader.errorString());
    return std::nullopt;
}

std::optional<QImage> readFile(const QString &path, QString &problem)
{
    problem = obstacle(path);
    if (!problem.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        return decode(file, path, problem);
    problem = Messages::tr("%1 cannot be opened: %2").arg(namedPath(path), file.errorString());
    return std::nullopt;
}

bool isNoPicture(const QVariant &value)
{
    return (value.userType() == QMetaType::QImage && value.value<QImage>().isNull())
           || (value.userType() == QMetaType::QPixmap && value.value<QPixmap>().isNull())
           || (value.userType() == QMetaType::QIcon && value.value<QIcon>().isNull());
}

} // namespace

QString resolvedPath(const QString &path, const QString &folder)
{
    return QDir::cleanPath(QDir(folder).filePath(path));
}

QString namedPath(const QString &path)
{
    // The end of a path says more than its start.
    const bool isLong = path.size() > kMaximumNamedPath;
    const QString shown = isLong ? QLatin1String("...") + path.right(kMaximumNamedPath) : path;
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

PictureHeader pictureHeader(const QString &path)
{
    QFile file(path);
    if (!obstacle(path).isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    const QImageReader reader(&file);
    return reader.canRead() ? PictureHeader{reader.format(), reader.size()} : PictureHeader{};
}

std::optional<QImage> readPicture(const QString &path, const QString &folder,
                                  ConversionError &error)
{
    auto picture = readFile(resolvedPath(path, folder), error.message);
    if (picture)
        picture->setText(kPathKey, path);
    return picture;
}

std::optional<QVariant> pictureFromJson(const QJsonValue &json, const QString &folder,
                                        ConversionError &error)
{
    if (!json.isString() && !json.isNull()) {
        error.message = expectedMessage(Messages::tr("a path or null"), json);
        return std::nullopt;
    }
    if (json.toString().isEmpty())
        return QVariant(QImage());
    const auto picture = readPicture(json.toString(), folder, error);
    return picture ? std::optional(QVariant(*picture)) : std::nullopt;
}

QJsonValue pictureToJson(const QVariant &value)
{
    if (isNoPicture(value))
        return QStringLiteral("");
    const QString path =
        value.userType() == QMetaType::QImage ? value.value<QImage>().text(kPathKey) : QString();
    return path.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(path);
}

bool isShownAs(const QVariant &picture, const QVariant &pixmap)
{
    return picture.userType() == QMetaType::QImage
           && QPixmap::fromImage(picture.value<QImage>()).toImage()
                  == pixmap.value<QPixmap>().toImage();
}

} // namespace Tessark::PropertyHost
