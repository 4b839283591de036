#pragma once

#include "core/CoreExport.h"

#include <QListWidget>

namespace Tessark::UI {

/**
 * A list that can take files dropped on it.
 *
 * While acceptUrlsDrops() is on, a drag from elsewhere with at least one local URL is accepted over
 * items and empty space alike, and a drop of it emits droppedUrls(). Items, selection and the
 * drag-drop mode stay as they are. The source is answered with a copy, or with a link where it
 * offers no copy, and refused where it offers neither: a move would let it delete the files. Every
 * other drag, one of the list's own items included, is handled as in any QListWidget.
 *
 * While such a drag hovers, a frame in the highlight colour lies over the viewport and the dynamic
 * property "dropActive" is true, for style sheets, which reach the list as
 * Tessark--UI--DropAcceptingListWidget; otherwise the property does not exist.
 */
class TESSARK_CORE_EXPORT DropAcceptingListWidget : public QListWidget
{
    Q_OBJECT
    Q_PROPERTY(bool acceptUrlsDrops READ acceptUrlsDrops WRITE setAcceptUrlsDrops)

public:
    explicit DropAcceptingListWidget(QWidget *parent = nullptr);
    ~DropAcceptingListWidget() override;

    /// Whether dropped URLs are taken; off by default. Switching it takes effect on a drag that
    /// already hovers.
    bool acceptUrlsDrops() const;
    void setAcceptUrlsDrops(bool accept);

    void setupViewport(QWidget *viewport) override;

Q_SIGNALS:
    /// One drop: the local paths of its URLs in their order, duplicates kept, at least one. They
    /// are not looked up; URLs that are not local are left out. A slot may delete the list, but with
    /// Qt 5 not the window it is in, to which Qt writes after a drop: there, use deleteLater(). Nor
    /// is a slot to open a dialog at once, since some sources wait for the end of the drop.
    void droppedUrls(const QStringList &paths);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void updateViewportDrops(QWidget *viewport);
    bool isTaken() const;
    bool settle(QDropEvent *event);
    void endDrag();
    void setDropActive(bool active);

    bool m_acceptUrlsDrops = false;
    bool m_offersPaths = false; // whether the drag inside has local URLs; looked up on entering
    bool m_dropActive = false;  // whether dropping it now would be announced
};

} // namespace Tessark::UI
