#include "core/FilePaths_p.h"

#include <QDir>
#include <QFileInfo>

namespace Tessark::UI {

namespace {

// No file system that Qt opens has longer paths; what is longer is cut before it is looked up.
constexpr int kLongestPath = 4096;

// Qt warns when it is asked about a path with a null character, and none can exist.
bool isPossible(const QString &path)
{
    return !path.isEmpty() && path.size() <= kLongestPath && !path.contains(QChar::Null);
}

QString possiblePart(const QString &path)
{
    // A negative length, for no null character, keeps everything.
    return path.left(path.indexOf(QChar::Null)).left(kLongestPath);
}

QString nearestDirectory(QString path)
{
    while (!QFileInfo(path).isDir()) {
        const QString parent = QFileInfo(path).path();
        if (parent == path)
            break;
        path = parent;
    }
    return path;
}

QString usablePath(const QUrl &url, PathKind kind)
{
    QString path = url.isLocalFile() ? url.toLocalFile() : QString();
    if (!isPossible(path) || kind == PathKind::AnyFile)
        return path;
    const QFileInfo info(path);
    if (kind == PathKind::ExistingFile)
        return info.isDir() ? QString() : path;
    // What does not exist, a share that is out of reach for instance, is taken at its word.
    return info.exists() && !info.isDir() ? info.path() : path;
}

} // namespace

QString cleanedPath(const QString &text)
{
    const QLatin1Char quote('"');
    QString path = text;
    if (path.size() >= 2 && path.startsWith(quote) && path.endsWith(quote))
        path = path.mid(1, path.size() - 2);
    if (path.startsWith(QLatin1String("file:"), Qt::CaseInsensitive)) {
        const QString localPath = QUrl(path).toLocalFile();
        if (!localPath.isEmpty())
            path = localPath;
    }
    if (path.startsWith(QLatin1String("~/")))
        path.replace(0, 1, QDir::homePath());
    return path;
}

QString directoryPart(const QString &path)
{
    const QString possible = possiblePart(path);
    return possible.left(possible.lastIndexOf(QLatin1Char('/')) + 1);
}

DialogStart dialogStart(const QString &name, const QString &baseDirectory)
{
    const QDir base(possiblePart(baseDirectory));
    const QString path = QDir::cleanPath(base.absoluteFilePath(possiblePart(name)));
    const QFileInfo info(path);
    if (info.exists() && !info.isDir())
        return {info.absolutePath(), info.fileName()};
    return {nearestDirectory(path), QString()};
}

QString firstUsablePath(const QList<QUrl> &urls, PathKind kind)
{
    for (const QUrl &url : urls) {
        QString path = usablePath(url, kind);
        if (!path.isEmpty())
            return path;
    }
    return QString();
}

QStringList localPaths(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        const QString path = usablePath(url, PathKind::AnyFile);
        if (!path.isEmpty())
            paths.append(path);
    }
    return paths;
}

} // namespace Tessark::UI
