#include "PictureNames.h"

#include <QFileInfo>

namespace Tessark::PropertyPanel {

namespace {

// File systems allow 255 bytes; a character takes up to 4 of them.
constexpr int kMaximumTitleLength = 40;

QString safePart(const QString &title)
{
    QString part;
    for (const QChar character : title) {
        if (character.isLetterOrNumber())
            part += character.toLower();
        else if (!part.isEmpty() && !part.endsWith(QLatin1Char('-')))
            part += QLatin1Char('-');
    }
    part.truncate(kMaximumTitleLength);
    while (part.endsWith(QLatin1Char('-')))
        part.chop(1);
    return part.isEmpty() ? QStringLiteral("page") : part;
}

} // namespace

PictureNames::PictureNames(const QString &path)
{
    const QFileInfo info(path);
    if (!info.suffix().isEmpty())
        m_suffix = QLatin1Char('.') + info.suffix();
    m_folderAndBase = path.chopped(m_suffix.size());
}

QString PictureNames::forPage(const QStringList &titles)
{
    QString wanted;
    for (const QString &title : titles)
        wanted += QLatin1Char('-') + safePart(title);
    wanted.truncate(kMaximumTitleLength);
    QString name = wanted;
    for (int number = 2; m_used.contains(name); ++number)
        name = wanted + QLatin1Char('-') + QString::number(number);
    m_used.insert(name);
    return m_folderAndBase + name + m_suffix;
}

} // namespace Tessark::PropertyPanel
