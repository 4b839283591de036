#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace Tessark::PropertyPanel {

/// Names the picture files of one panel, each name once, also where case does not count.
class PictureNames
{
public:
    /// path is the file of the first picture.
    explicit PictureNames(const QString &path);

    /// The file for the tab page that these titles lead to, from the outside in: in the folder of
    /// the first picture, with letters and digits of the titles only.
    QString forPage(const QStringList &titles);

private:
    QString m_folderAndBase;
    QString m_suffix;
    QSet<QString> m_used; // names without suffix, in small letters
};

} // namespace Tessark::PropertyPanel
