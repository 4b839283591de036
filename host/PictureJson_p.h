#pragma once

#include "host/JsonConversion_p.h"

#include <QByteArray>
#include <QImage>
#include <QJsonValue>
#include <QSize>
#include <QString>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyHost {

/// The most pixels of a picture that is read. Qt 6 on its own refuses what takes more than 128 MiB at
/// four bytes a pixel; Qt 5 would try anything.
constexpr qint64 kMaximumPicturePixels = 32'000'000;

/// Where a path of a list leads: relative ones start at folder, which is the current one if empty.
QString resolvedPath(const QString &path, const QString &folder);

/// A path in quotes for a message; a long one without its start.
QString namedPath(const QString &path);

/// What a file tells of its picture before that is decoded.
struct PictureHeader
{
    QByteArray format; // empty when there is no file or no picture
    QSize size;
};

/// Reads files and resources only, nothing that may block.
PictureHeader pictureHeader(const QString &path);

/// The picture of a file, upright, which remembers path for pictureToJson(). The error names the
/// resolved path. Only files and resources are read, nothing that may block.
std::optional<QImage> readPicture(const QString &path, const QString &folder,
                                  ConversionError &error);

/// The picture at a path (QImage); an empty path and null give a null one.
std::optional<QVariant> pictureFromJson(const QJsonValue &json, const QString &folder,
                                        ConversionError &error);

/// The path that the picture was read from, as it was written, an empty one for no picture, or an
/// undefined value for a picture of another origin.
QJsonValue pictureToJson(const QVariant &value);

/// True when an image editor that is given picture hands this pixmap back.
bool isShownAs(const QVariant &picture, const QVariant &pixmap);

} // namespace Tessark::PropertyHost
