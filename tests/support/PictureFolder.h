#pragma once

#include <QFile>
#include <QImage>
#include <QString>
#include <QTemporaryDir>

/// A folder of pictures that lives as long as the object.
class PictureFolder
{
public:
    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

    /// Writes a picture of one colour; the suffix of the name says in which format.
    void addPicture(const QString &name, const QColor &color, const QSize &size = QSize(8, 6)) const
    {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        if (!image.save(filePath(name)))
            qFatal("cannot write a test picture");
    }

    void addFile(const QString &name, const QByteArray &content) const
    {
        QFile file(filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write a test file");
    }

private:
    QTemporaryDir m_folder;
};
