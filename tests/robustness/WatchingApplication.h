#pragma once

#include <QApplication>
#include <QStringList>

/// An application that knows which of a widget's timers is at work and which dialogs came.
class WatchingApplication : public QApplication
{
public:
    using QApplication::QApplication;

    static WatchingApplication *instance()
    {
        return static_cast<WatchingApplication *>(QCoreApplication::instance());
    }

    bool notify(QObject *receiver, QEvent *event) override;

    int widgetTimers = 0; // events of these now being delivered
    QStringList dialogs;  // the classes of those that were shown
};
