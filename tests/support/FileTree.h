#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A fresh directory with two folders, "alpha" holding "inner" and "beta", and a file "note.txt".
/// It is removed with the object.
class FileTree
{
public:
    FileTree()
    {
        QDir(root()).mkpath(QStringLiteral("alpha/inner"));
        QDir(root()).mkpath(QStringLiteral("beta"));
        QFile note(path("note.txt"));
        m_complete = note.open(QIODevice::WriteOnly);
    }

    /// Whether everything could be made.
    bool isComplete() const { return m_directory.isValid() && m_complete; }

    QString root() const { return m_directory.path(); }

    QString path(const char *name) const
    {
        return QDir(root()).filePath(QString::fromLatin1(name));
    }

private:
    QTemporaryDir m_directory;
    bool m_complete = false;
};
