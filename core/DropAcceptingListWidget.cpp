#include "core/DropAcceptingListWidget.h"

#include "core/FilePaths_p.h"
#include "core/StyleSheetProbe_p.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

namespace Tessark::UI {

namespace {

constexpr char kDropActiveProperty[] = "dropActive";
constexpr int kFrameWidth = 2;

/// How a drop is answered, or Qt::IgnoreAction when the source offers nothing that suits us. Never
/// with a move, after which a file manager would delete the files.
Qt::DropAction suitableAction(Qt::DropActions offered)
{
    if (offered.testFlag(Qt::CopyAction))
        return Qt::CopyAction;
    return offered.testFlag(Qt::LinkAction) ? Qt::LinkAction : Qt::IgnoreAction;
}

} // namespace

DropAcceptingListWidget::DropAcceptingListWidget(QWidget *parent)
    : QListWidget(parent)
{
}

DropAcceptingListWidget::~DropAcceptingListWidget() = default;

bool DropAcceptingListWidget::acceptUrlsDrops() const
{
    return m_acceptUrlsDrops;
}

void DropAcceptingListWidget::setAcceptUrlsDrops(bool accept)
{
    m_acceptUrlsDrops = accept;
    updateViewportDrops(viewport());
    if (!accept)
        setDropActive(false);
}

void DropAcceptingListWidget::setupViewport(QWidget *viewport)
{
    QListWidget::setupViewport(viewport);
    updateViewportDrops(viewport);
}

bool DropAcceptingListWidget::event(QEvent *event)
{
    const bool handled = QListWidget::event(event);
    if (event->type() == QEvent::AcceptDropsChange)
        updateViewportDrops(viewport());
    return handled;
}

void DropAcceptingListWidget::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        setDropActive(false);
}

void DropAcceptingListWidget::hideEvent(QHideEvent *event)
{
    endDrag();
    QListWidget::hideEvent(event);
}

void DropAcceptingListWidget::paintEvent(QPaintEvent *event)
{
    QListWidget::paintEvent(event);
    if (!m_dropActive)
        return;
    QPainter painter(viewport());
    // The active colour: during a drag from another program that one's window is the active one.
    const QColor color = palette().color(QPalette::Active, QPalette::Highlight);
    painter.setPen(QPen(color, kFrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const double inset = kFrameWidth / 2.0;
    painter.drawRect(QRectF(viewport()->rect()).adjusted(inset, inset, -inset, -inset));
}

void DropAcceptingListWidget::scrollContentsBy(int dx, int dy)
{
    QListWidget::scrollContentsBy(dx, dy);
    // Scrolling moves pixels, those of the frame too.
    if (m_dropActive)
        viewport()->update();
}

void DropAcceptingListWidget::dragEnterEvent(QDragEnterEvent *event)
{
    m_offersPaths = m_acceptUrlsDrops && event->source() != this
                    && !firstUsablePath(event->mimeData()->urls(), PathKind::AnyFile).isEmpty();
    if (!settle(event))
        QListWidget::dragEnterEvent(event);
}

void DropAcceptingListWidget::dragMoveEvent(QDragMoveEvent *event)
{
    if (!settle(event))
        QListWidget::dragMoveEvent(event);
}

void DropAcceptingListWidget::dragLeaveEvent(QDragLeaveEvent *event)
{
    endDrag();
    if (acceptDrops())
        QListWidget::dragLeaveEvent(event);
}

void DropAcceptingListWidget::dropEvent(QDropEvent *event)
{
    const bool forBase = !settle(event);
    const QStringList paths = m_dropActive ? localPaths(event->mimeData()->urls()) : QStringList();
    endDrag();
    if (forBase) {
        QListWidget::dropEvent(event);
        return;
    }
    event->setAccepted(!paths.isEmpty());
    if (!paths.isEmpty())
        Q_EMIT droppedUrls(paths);
}

/// Lets drags come in for either of the two takers. Only the viewport is told, since accepting drops
/// on the list itself would change its drag-drop mode.
void DropAcceptingListWidget::updateViewportDrops(QWidget *viewport)
{
    viewport->setAcceptDrops(m_acceptUrlsDrops || acceptDrops());
}

bool DropAcceptingListWidget::isTaken() const
{
    return m_offersPaths && m_acceptUrlsDrops && isEnabled();
}

/// Accepts or refuses the event, unless it is for the base to decide: returns false then.
bool DropAcceptingListWidget::settle(QDropEvent *event)
{
    if (!isTaken() && acceptDrops())
        return false;
    const Qt::DropAction action =
        isTaken() ? suitableAction(event->possibleActions()) : Qt::IgnoreAction;
    event->setDropAction(action);
    event->setAccepted(action != Qt::IgnoreAction);
    setDropActive(event->isAccepted());
    return true;
}

void DropAcceptingListWidget::endDrag()
{
    m_offersPaths = false;
    setDropActive(false);
}

void DropAcceptingListWidget::setDropActive(bool active)
{
    if (m_dropActive == active)
        return;
    m_dropActive = active;
    setProperty(kDropActiveProperty, active ? QVariant(true) : QVariant());
    repolish(this);
    viewport()->update();
}

} // namespace Tessark::UI
