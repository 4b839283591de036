#include "robustness/WatchingApplication.h"

#include <QDialog>
#include <QScopedValueRollback>

bool WatchingApplication::notify(QObject *receiver, QEvent *event)
{
    const bool isWidgetTimer = event->type() == QEvent::Timer && receiver->isWidgetType();
    const QScopedValueRollback<int> depth(widgetTimers, widgetTimers + (isWidgetTimer ? 1 : 0));
    if (event->type() == QEvent::Show && qobject_cast<QDialog *>(receiver))
        dialogs.append(QString::fromLatin1(receiver->metaObject()->className()));
    return QApplication::notify(receiver, event);
}
