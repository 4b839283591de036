#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace Tessark::UI {

/// What a place in the file system is wanted for.
enum class PathKind { AnyFile, ExistingFile, Directory };

/// Where a file dialog opens: inside directory, with file selected unless it is empty.
struct DialogStart
{
    QString directory;
    QString file;
};

/// The name meant by typed or pasted text: without one pair of surrounding double quotes, a file:
/// URL as its local path, a leading "~/" as the home path. Everything else stays as it is.
QString cleanedPath(const QString &text);

/// What stands before the last separator of path, cut to what can exist; empty without separator.
QString directoryPart(const QString &path);

/// The place to show for name, which may be empty, relative to baseDirectory, or exist only in
/// part; the nearest existing ancestor then.
DialogStart dialogStart(const QString &name, const QString &baseDirectory);

/// The local path of the first of urls that can serve as kind, or an empty string when none can. A
/// file stands for its folder where a directory is wanted.
QString firstUsablePath(const QList<QUrl> &urls, PathKind kind);

/// The local paths of urls in their order, duplicates kept; URLs without one are left out. The file
/// system is not looked at.
QStringList localPaths(const QList<QUrl> &urls);

} // namespace Tessark::UI
