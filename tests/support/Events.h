#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <utility>

namespace TestSupport {

/// Lets layouts and what is posted come to rest.
inline void settleEvents()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Does something, once, when the widget gets an event of the type.
class EventWatch final : public QObject
{
public:
    EventWatch(QWidget *widget, QEvent::Type type, std::function<void()> act)
        : m_type(type)
        , m_act(std::move(act))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != m_type || !m_act)
            return false;
        const QPointer<QObject> receiver(watched);
        std::exchange(m_act, nullptr)();
        return !receiver; // it must not get the event then
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_act;
};

} // namespace TestSupport
