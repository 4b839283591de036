#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

namespace Tessark::PropertyHost {
class PropertyList;
class PropertyStore;
} // namespace Tessark::PropertyHost

namespace Tessark::PropertyPanel {

struct RenderedPictures
{
    QStringList files; // in the order in which they were written
    QString error;     // empty when all were written
};

/**
 * Draws the whole panel to PNG files: as it opens to path, and each tab page that is not in view
 * then to a further file, whose name ends in the titles of the pages that lead to it
 * ("panel-output-advanced.png" beside "panel.png").
 *
 * An invalid size means the size that the panel wants. Otherwise the picture has that size, or is
 * larger where the panel does not fit. Sizes are in device-independent pixels; the pictures have as
 * many pixels as the screen would show.
 */
RenderedPictures renderPanel(const PropertyHost::PropertyList &list,
                             PropertyHost::PropertyStore &store, const QString &path,
                             const QSize &size);

} // namespace Tessark::PropertyPanel
