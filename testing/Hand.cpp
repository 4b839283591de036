#include "testing/Hand_p.h"

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <qtestspontaneevent.h>

namespace Tessark::PropertyTest {

namespace {

void sendKey(const QPointer<QWindow> &window, bool press, int key, Qt::KeyboardModifiers modifiers,
             const QString &text = QString())
{
    if (window)
        QTest::simulateEvent(window, press, key, modifiers, text, false);
}

/// The part of a box that reacts to the mouse.
QRect clickRect(const QAbstractButton *button, QStyle::SubElement element)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    return button->style()->subElementRect(element, &option, button);
}

} // namespace

Pointer::Pointer(const QWidget *widget, const QPoint &at)
    : m_window(widget->window()->windowHandle())
    , m_position(widget->mapTo(widget->window(), at))
{
}

void Pointer::press(Qt::MouseButton button)
{
    if (m_window)
        QTest::mousePress(m_window, button, {}, m_position);
}

void Pointer::moveTo(const QPoint &inWindow)
{
    m_position = inWindow;
    if (m_window)
        QTest::mouseMove(m_window, m_position);
}

void Pointer::release(Qt::MouseButton button)
{
    if (m_window) {
        QTest::mouseRelease(m_window, button, {}, m_position);
        return;
    }
    // The window has gone; the button must not stay down for the next one.
    QWindow elsewhere;
    elsewhere.setGeometry(0, 0, 8, 8);
    QTest::mouseRelease(&elsewhere, button, {}, QPoint(4, 4));
}

void click(const QWidget *widget, const QPoint &at, Qt::MouseButton button)
{
    Pointer pointer(widget, at);
    pointer.moveTo(pointer.position());
    pointer.press(button);
    pointer.release(button);
}

QPoint clickPoint(const QAbstractButton *button)
{
    if (qobject_cast<const QCheckBox *>(button))
        return clickRect(button, QStyle::SE_CheckBoxClickRect).center();
    if (qobject_cast<const QRadioButton *>(button))
        return clickRect(button, QStyle::SE_RadioButtonClickRect).center();
    return button->rect().center();
}

void turnWheel(QWidget *widget, const QPoint &at, bool isUp)
{
    constexpr int kNotch = 120; // eighths of a degree
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, isUp ? kNotch : -kNotch),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // or Qt does not hand it on to parents
    qApp->notify(widget, &event);
}

void pressKey(const QPointer<QWindow> &window, int key, const QString &text)
{
    sendKey(window, true, key, Qt::NoModifier, text);
    sendKey(window, false, key, Qt::NoModifier, text);
}

void selectAllByKey(const QPointer<QWindow> &window)
{
    sendKey(window, true, Qt::Key_Control, Qt::NoModifier);
    sendKey(window, true, Qt::Key_A, Qt::ControlModifier);
    sendKey(window, false, Qt::Key_A, Qt::ControlModifier);
    sendKey(window, false, Qt::Key_Control, Qt::ControlModifier);
}

void typeText(const QPointer<QWindow> &window, const QString &text)
{
    for (const QChar character : text) {
        if (character == QLatin1Char('\n'))
            pressKey(window, Qt::Key_Return, QStringLiteral("\r"));
        else
            pressKey(window, character.toUpper().unicode(), character);
    }
}

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace Tessark::PropertyTest
