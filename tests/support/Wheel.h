#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <qtestspontaneevent.h>

/// Turns the wheel over the middle of a widget by one notch up, as the window system does: Qt hands
/// an ignored wheel event on to the parent widgets only when it is spontaneous.
inline void turnWheelOver(QWidget *widget)
{
    constexpr int kNotch = 120;
    const QPoint position = widget->rect().center();
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), QPoint(0, kNotch),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}
