#pragma once

#include <QAccessible>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QSlider>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

/// Where the style puts the handle, for sliders that open their style option to us.
template <typename Slider>
class Opened : public Slider
{
public:
    using Slider::Slider;

    QPoint handle() const
    {
        QStyleOptionSlider option;
        this->initStyleOption(&option);
        return this->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this)
            .center();
    }
};

/// Writes down every signal of a slider in the order in which a slot sees them.
template <typename RealSlider>
class RealSliderLog : public QStringList
{
public:
    explicit RealSliderLog(RealSlider *slider)
    {
        QObject::connect(slider, &QSlider::rangeChanged, [this](int low, int high) {
            append(QStringLiteral("range %1..%2").arg(low).arg(high));
        });
        QObject::connect(slider, &QSlider::valueChanged,
                         [this](int value) { append(QStringLiteral("value %1").arg(value)); });
        QObject::connect(slider, &RealSlider::realValueChanged,
                         [this](double value) { append(QStringLiteral("real %1").arg(value)); });
        QObject::connect(slider, &QSlider::sliderPressed,
                         [this] { append(QStringLiteral("pressed")); });
        QObject::connect(slider, &QSlider::sliderMoved,
                         [this](int value) { append(QStringLiteral("moved %1").arg(value)); });
        QObject::connect(slider, &QSlider::sliderReleased,
                         [this] { append(QStringLiteral("released")); });
    }

    QString text() const { return join(QStringLiteral(", ")); }
};

inline void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &at, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

inline void press(QWidget *widget, const QPoint &at)
{
    sendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
}

inline void move(QWidget *widget, const QPoint &at)
{
    sendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
}

inline void release(QWidget *widget, const QPoint &at)
{
    sendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

/// Whether the widget took one notch of the wheel.
inline bool rollWheel(QWidget *widget)
{
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline QAccessibleValueInterface *valueInterfaceOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->valueInterface();
}
