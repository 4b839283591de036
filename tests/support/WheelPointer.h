#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

/// A pointer over a widget, in fractions of pixels.
class WheelPointer
{
public:
    explicit WheelPointer(QWidget *widget)
        : m_widget(widget)
    {
    }

    /// Whether the widget took the press.
    bool press(const QPointF &at, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton)
    {
        m_buttons |= button;
        return send(QEvent::MouseButtonPress, at, button, modifiers);
    }

    bool move(const QPointF &at, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return send(QEvent::MouseMove, at, Qt::NoButton, modifiers);
    }

    bool release(Qt::MouseButton button = Qt::LeftButton)
    {
        m_buttons &= ~Qt::MouseButtons(button);
        return send(QEvent::MouseButtonRelease, m_at, button, Qt::NoModifier);
    }

    /// The button goes up where the widget does not hear of it.
    void loseRelease() { m_buttons = Qt::NoButton; }

private:
    bool send(QEvent::Type type, const QPointF &at, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers)
    {
        m_at = at;
        QMouseEvent event(type, at, m_widget->mapToGlobal(at.toPoint()), button, m_buttons,
                          modifiers);
        QCoreApplication::sendEvent(m_widget, &event);
        return event.isAccepted();
    }

    QWidget *m_widget;
    QPointF m_at;
    Qt::MouseButtons m_buttons = Qt::NoButton;
};
