#include "host/PanelExtent_p.h"

#include <property/PropertyLayout.h>

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QScrollArea>
#include <QTabWidget>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using PropertyUI::PropertyLayout;

namespace {

const auto kPagesChanged = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Does what the scroll area around a panel would do later.
void updateScrollBars(const QWidget &panel)
{
    QWidget *const viewport = panel.parentWidget();
    auto *const area = qobject_cast<QScrollArea *>(viewport ? viewport->parentWidget() : nullptr);
    if (!area || area->widget() != &panel)
        return;
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(area, &request);
}

/// Sets the smallest size of the page and places its rows. These are placed once: the layout rests
/// while the page grows and a scroll bar that comes makes it narrower again.
void fit(QWidget &page)
{
    auto *const layout = qobject_cast<PropertyLayout *>(page.layout());
    if (!layout || !layout->isEnabled())
        return;
    layout->setEnabled(false);
    page.setMinimumSize(layout->smallestSize());
    updateScrollBars(page);
    layout->setEnabled(true);
    if (!layout->activate() && layout->geometry() != page.rect())
        layout->setGeometry(page.rect());
}

/// What the pages of tabs like to have more than the tabs take for them.
int roomForPages(QLayoutItem &item, const QHash<const QWidget *, int> &wanted)
{
    const auto *const tabs = qobject_cast<QTabWidget *>(item.widget());
    int taken = 0;
    int most = 0;
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        const QWidget &page = *tabs->widget(i);
        taken = std::max({taken, page.sizeHint().width(), page.minimumWidth()});
        most = std::max(most, wanted.value(&page));
    }
    return std::max(most - taken, 0);
}

/// The width that a page likes to have. wanted knows that of the pages that are inside.
int wantedWidth(const QWidget &page, const QHash<const QWidget *, int> &wanted)
{
    const auto *const layout = page.layout();
    int width = page.minimumWidth();
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem &item = *layout->itemAt(i);
        if (item.isEmpty())
            continue;
        // Where an item begins does not depend on the page's width.
        const QRect place = item.geometry();
        const int left = page.isRightToLeft() ? page.width() - 1 - place.right() : place.left();
        const int most = std::min(item.sizeHint().width(), item.maximumSize().width());
        const int likes = std::max(most, item.minimumSize().width()) + roomForPages(item, wanted);
        width = std::max(width, left + likes + layout->contentsMargins().right());
    }
    return width;
}

} // namespace

PanelExtent::PanelExtent(std::shared_ptr<const PanelRows> rows, QWidget *panel)
    : QObject(panel)
    , m_rows(std::move(rows))
{
    const QVector<QWidget *> pages = m_rows->pages();
    for (QWidget *page : pages)
        page->installEventFilter(this);
}

void PanelExtent::pageChanges(QWidget *page)
{
    // It has to come before the request for a layout, which places the rows.
    if (m_changed.isEmpty())
        QCoreApplication::postEvent(this, new QEvent(kPagesChanged), Qt::HighEventPriority);
    if (!m_changed.contains(page))
        m_changed.append(page);
}

void PanelExtent::settle()
{
    const QVector<QWidget *> pages = m_rows->pages();
    // Pages need what the pages inside of them need.
    for (auto page = pages.crbegin(); page != pages.crend(); ++page)
        fit(**page);
}

QSize PanelExtent::wantedSize() const
{
    QHash<const QWidget *, int> widths;
    const QVector<QWidget *> pages = m_rows->pages();
    for (auto page = pages.crbegin(); page != pages.crend(); ++page)
        widths.insert(*page, wantedWidth(**page, widths));
    const auto *const panel = qobject_cast<const QWidget *>(parent());
    return {widths.value(panel), panel->minimumHeight()};
}

bool PanelExtent::event(QEvent *event)
{
    if (event->type() != kPagesChanged)
        return QObject::event(event);
    const auto changed = std::exchange(m_changed, {});
    const QVector<QWidget *> pages = m_rows->pages();
    for (auto page = pages.crbegin(); page != pages.crend(); ++page) {
        const bool isConcerned =
            std::any_of(changed.cbegin(), changed.cend(), [page](const QPointer<QWidget> &inner) {
                return inner && (inner == *page || (*page)->isAncestorOf(inner));
            });
        if (isConcerned)
            fit(**page);
    }
    return true;
}

bool PanelExtent::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        fit(*static_cast<QWidget *>(watched));
    return false;
}

} // namespace Tessark::PropertyHost
