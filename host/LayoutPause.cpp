#include "host/LayoutPause_p.h"

#include <property/PropertyLayout.h>

#include <QChildEvent>
#include <QSpacerItem>

namespace Tessark::PropertyHost {

using PropertyUI::PropertyLayout;

namespace {

void renewSizeHints(QLayout *layout)
{
    if (!qobject_cast<PropertyLayout *>(layout))
        return;
    layout->addItem(new QSpacerItem(0, 0));
    delete layout->takeAt(layout->count() - 1);
}

} // namespace

LayoutPause::LayoutPause() = default;

LayoutPause::~LayoutPause()
{
    for (const QPointer<QWidget> &page : std::as_const(m_pages)) {
        if (!page || !page->layout())
            continue;
        page->layout()->setEnabled(true);
        page->layout()->invalidate();
    }
}

void LayoutPause::add(QWidget *page)
{
    if (!page || !qobject_cast<PropertyLayout *>(page->layout()) || !page->layout()->isEnabled())
        return;
    page->layout()->setEnabled(false);
    page->installEventFilter(this);
    m_pages.append(page);
}

/// A disabled layout would keep the item of a widget that goes.
bool LayoutPause::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ChildRemoved)
        return false;
    const QObject *const child = static_cast<QChildEvent *>(event)->child();
    QLayout *const layout = static_cast<QWidget *>(watched)->layout();
    for (int i = 0; layout && i < layout->count(); ++i) {
        if (layout->itemAt(i)->widget() == child) {
            delete layout->takeAt(i);
            break;
        }
    }
    return false;
}

void renewSizeHintsAround(const QWidget *page, const QWidget *panel)
{
    for (const QWidget *widget = page; widget; widget = widget->parentWidget()) {
        renewSizeHints(widget->layout());
        if (widget == panel)
            return;
    }
}

} // namespace Tessark::PropertyHost
