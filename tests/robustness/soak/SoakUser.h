#pragma once

#include "SoakHost.h"

#include <QPointer>
#include <QScrollArea>
#include <QTimer>
#include <QWidget>

class QMenu;
class QWindow;

namespace Soak {

/**
 * A user at random: presses, drags, types, turns the wheel, opens menus and dialogs, goes to other
 * windows. Everything takes the way that events of the window system take.
 */
class SoakUser : public QObject
{
public:
    SoakUser(SoakHost *host, QWidget *window, QScrollArea *scrollArea, Random &random);

    /// One event; what it was in words.
    QString act();

    /// Lets go of everything: buttons, popups, dialogs, the focus.
    void letGo();

    /// Whether a popup is open, so that the control with the focus does not have it quite.
    static bool hasPopup();

private:
    void keepWindowActive();
    QString press();
    QString drag();
    QString release();
    QString type();
    QString turnWheel();
    QString moveFocus();
    QString resizeWindow();
    QString changeWindow();
    QString useDialog(QWidget *dialog);
    QString usePopup(QWidget *popup);

    QWidget *anyWidget();
    QPoint anyPlaceIn(const QWidget *widget);
    void send(const std::function<void()> &event);
    void lookIntoLoops();

    SoakHost *m_host;
    QWidget *m_window;
    QScrollArea *m_scrollArea;
    QWidget m_otherWindow;
    Random &m_random;

    QPointer<QWindow> m_pressedIn;
    Qt::MouseButton m_pressedButton = Qt::NoButton;
    QTimer m_loopTimer;
    bool m_isSending = false;
    int m_turns = 0; // of event loops while one event is being sent
};

} // namespace Soak
