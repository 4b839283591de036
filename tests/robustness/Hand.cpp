#include "robustness/Hand.h"

#include "support/FileDrag.h"
#include "support/MenuProbe.h"
#include "support/Wheel.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>
#include <QTimerEvent>
#include <QUrl>

#include <qtestspontaneevent.h>

namespace Hand {

namespace {

void mouse(const Target &widget, QEvent::Type type, const QPoint &at, Qt::MouseButton button,
           Qt::MouseButtons buttons)
{
    if (!widget)
        return;
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QSpontaneKeyEvent::setSpontaneous(&event); // as the window system's, which move the focus
    qApp->notify(widget, &event);
}

void keyEvent(const Target &widget, QEvent::Type type, int key, const QString &text)
{
    if (!widget)
        return;
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

void press(const Target &widget, const QPoint &at)
{
    mouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
}

void move(const Target &widget, const QPoint &at)
{
    mouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
}

void release(const Target &widget, const QPoint &at)
{
    mouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

void click(const Target &widget, const QPoint &at)
{
    press(widget, at);
    release(widget, at);
}

void click(const Target &widget)
{
    if (widget)
        click(widget, widget->rect().center());
}

void keyDown(const Target &widget, int key, const QString &text)
{
    keyEvent(widget, QEvent::KeyPress, key, text);
}

void keyUp(const Target &widget, int key, const QString &text)
{
    keyEvent(widget, QEvent::KeyRelease, key, text);
}

void key(const Target &widget, int key, const QString &text)
{
    keyDown(widget, key, text);
    keyUp(widget, key, text);
}

void type(const Target &widget, const QString &text)
{
    for (const QChar character : text)
        key(widget, character.toUpper().unicode(), character);
}

void wheel(const Target &widget)
{
    if (widget)
        turnWheelOver(widget);
}

void focus(const Target &widget)
{
    if (widget)
        widget->setFocus(Qt::MouseFocusReason);
}

void leave(const Target &widget)
{
    if (widget)
        widget->clearFocus();
}

void drop(const Target &widget, const QString &path)
{
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(path)});
    const DragOffer offer{mime};
    if (widget)
        sendDragEvent<QDragEnterEvent>(widget, widget->rect().center(), offer);
    if (widget)
        sendDragEvent<QDragMoveEvent>(widget, widget->rect().center(), offer);
    if (widget)
        sendDragEvent<QDropEvent>(widget, widget->rect().center(), offer);
}

void wait(const Target &widget)
{
    if (!widget)
        return;
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(widget);
    for (const auto &timer : timers) {
        if (!widget)
            return;
        QTimerEvent event(timer.timerId);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void pickFromMenu(const Target &panel, const QPoint &place)
{
    if (!panel)
        return;
    TestSupport::MenuProbe probe([](QMenu *menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, panel->mapToGlobal(place));
    QCoreApplication::sendEvent(panel, &event);
}

} // namespace Hand
