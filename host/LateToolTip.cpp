#include "host/LateToolTip_p.h"

#include <QCursor>
#include <QEvent>
#include <QToolTip>
#include <QWidget>

namespace Tessark::PropertyHost {

LateToolTip::LateToolTip(QWidget *widget, const QString &text)
    : QObject(widget)
    , m_text(text)
{
    if (widget->isActiveWindow())
        showSoon();
    else
        widget->installEventFilter(this);
}

bool LateToolTip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        watched->removeEventFilter(this);
        showSoon();
    }
    return false;
}

/// The focus moves with the activation, which takes tool tips away too.
void LateToolTip::showSoon()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            QToolTip::showText(QCursor::pos(), m_text);
            deleteLater();
        },
        Qt::QueuedConnection);
}

} // namespace Tessark::PropertyHost
