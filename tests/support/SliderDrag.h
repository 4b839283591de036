#pragma once

#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>

/// Drags a slider's handle with the mouse, as a user does.
class SliderDrag
{
public:
    explicit SliderDrag(QSlider *slider)
        : m_slider(slider)
        , m_position(handleOf(slider))
    {
    }

    void press() { QTest::mousePress(m_slider, Qt::LeftButton, Qt::NoModifier, m_position); }

    void moveBy(int pixels)
    {
        m_position.rx() += pixels;
        QMouseEvent event(QEvent::MouseMove, m_position, m_slider->mapToGlobal(m_position),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_slider, &event);
    }

    void release() { QTest::mouseRelease(m_slider, Qt::LeftButton, Qt::NoModifier, m_position); }

private:
    static QPoint handleOf(QSlider *slider)
    {
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.orientation = slider->orientation();
        option.minimum = slider->minimum();
        option.maximum = slider->maximum();
        option.sliderPosition = slider->sliderPosition();
        option.sliderValue = slider->value();
        option.singleStep = slider->singleStep();
        option.pageStep = slider->pageStep();
        option.upsideDown = slider->invertedAppearance();
        return slider->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
            .center();
    }

    QSlider *m_slider;
    QPoint m_position;
};
