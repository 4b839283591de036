#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <qtestspontaneevent.h>

/// Turns the wheel over a place of a widget, in eighths of a degree, as the window system does: Qt
/// hands an ignored wheel event on to the parent widgets only when it is spontaneous.
inline void turnWheelAt(QWidget *widget, const QPoint &position, int delta)
{
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

/// The same over the middle of a widget, by one notch up.
inline void turnWheelOver(QWidget *widget)
{
    constexpr int kNotch = 120;
    turnWheelAt(widget, widget->rect().center(), kNotch);
}
