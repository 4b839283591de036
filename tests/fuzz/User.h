#pragma once

#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

namespace Fuzz {

class FuzzInput;

/**
 * Somebody at keyboard and mouse who does anything at all to the widgets of one window, and who closes
 * every menu and dialog that waits for an answer.
 */
class User
{
public:
    explicit User(QWidget &window);

    User(const User &) = delete;
    User &operator=(const User &) = delete;

    /// Does one thing. The window, or any widget in it, may be gone afterwards.
    void act(FuzzInput &input);

    /// Lets the program do what it has postponed, and closes what is open afterwards.
    void wait();

private:
    void typeKey(FuzzInput &input);
    void pressMouse(FuzzInput &input, QEvent::Type type);
    void moveMouse(FuzzInput &input);
    void releaseMouse();
    void turnWheel(FuzzInput &input);
    void askForMenu(FuzzInput &input);
    void dropFile(FuzzInput &input);
    void moveFocus(FuzzInput &input);
    void useScreenReader(FuzzInput &input);
    void closeOpen();

    /// Any visible widget of the window, or of the popup over it; never null while the window lives.
    QWidget *keyReceiver() const;
    QWidget *anyWidget(FuzzInput &input) const;

    QPointer<QWidget> m_window;
    QPointer<QWidget> m_pressed; // receives the mouse until the button is released
    QPoint m_position;           // of the mouse, in m_pressed
    Qt::MouseButton m_button = Qt::LeftButton;
    QTimer m_waitsForAnswer; // fires where a menu or dialog has taken over the event loop
    int m_answer = 0;
};

} // namespace Fuzz
