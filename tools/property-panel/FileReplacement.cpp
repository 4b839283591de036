#include "FileReplacement.h"

#include "Texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <unistd.h>
#endif

namespace Tessark::PropertyPanel {

namespace {

/// The start of the names of hidden files for the file; a process adds its number.
QString hiddenPrefix(const QFileInfo &file)
{
    return QLatin1Char('.') + file.fileName() + QLatin1String(".saving-");
}

bool isRunning(qint64 process)
{
#if defined(Q_OS_UNIX)
    return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
#else
    Q_UNUSED(process)
    return true;
#endif
}

/// Removes what processes that are gone have left of the file.
void removeRemains(const QFileInfo &file)
{
    const QString prefix = hiddenPrefix(file);
    QDir folder = file.dir();
    const auto names = folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        bool isNumber = false;
        const int process = name.startsWith(prefix) ? name.mid(prefix.size()).toInt(&isNumber) : 0;
        if (isNumber && process > 0 && !isRunning(process))
            folder.remove(name);
    }
}

/// What speaks against replacing the file; empty when nothing does.
QString obstacle(const QFileInfo &file)
{
    if (!file.exists())
        return QString();
    if (!file.isFile())
        return Texts::tr("it is not a file");
    return file.isWritable() ? QString() : Texts::tr("it is write-protected");
}

/// Waits until the content is on the disk, so that its name does not get there first.
bool synchronize(const QFile &file)
{
#if defined(Q_OS_UNIX)
    // Some file systems cannot, as EINVAL tells.
    return fsync(file.handle()) == 0 || errno == EINVAL;
#else
    Q_UNUSED(file)
    return true;
#endif
}

/// Writes all of the content. A full disk takes a part first, and only the next attempt tells why.
bool writeAll(QFile &file, const QByteArray &content)
{
    for (qint64 done = 0; done < content.size();) {
        const qint64 count = file.write(content.constData() + done, content.size() - done);
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

QString writeContent(QFile &file, const QByteArray &content)
{
    // What has this name is left over from another process with the same number.
    file.remove();
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)
        || !writeAll(file, content))
        return file.errorString();
    if (!synchronize(file))
        return qt_error_string(errno);
    file.close();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString moveOver(const QString &from, const QString &to)
{
    const auto native = [](const QString &path) {
        return std::filesystem::path(QFile::encodeName(path).toStdString());
    };
    std::error_code error;
    std::filesystem::rename(native(from), native(to), error);
    return error ? QString::fromLocal8Bit(error.message().c_str()) : QString();
}

} // namespace

QString replaceFile(const QString &path, const QByteArray &content)
{
    const QFileInfo named(path);
    const QFileInfo file(named.isSymLink() && named.exists() ? named.canonicalFilePath() : path);
    QString error = obstacle(file);
    if (!error.isEmpty())
        return error;
    removeRemains(file);
    QFile hidden(file.dir().filePath(hiddenPrefix(file)
                                     + QString::number(QCoreApplication::applicationPid())));
    error = writeContent(hidden, content);
    if (error.isEmpty() && file.exists() && !hidden.setPermissions(file.permissions()))
        error = hidden.errorString();
    if (error.isEmpty())
        error = moveOver(hidden.fileName(), file.filePath());
    if (!error.isEmpty())
        hidden.remove();
    return error;
}

} // namespace Tessark::PropertyPanel
