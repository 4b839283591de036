#include "robustness/NumberGestures.h"

#include "robustness/Hand.h"
#include "robustness/Subjects.h"
#include "support/RealSliders.h"

#include <QAbstractSpinBox>
#include <QSlider>
#include <QStyleOptionSpinBox>

namespace {

/// Where the upper arrow of a field is.
QPoint arrowOf(const QAbstractSpinBox &field)
{
    return {field.width() - 8, field.height() / 4};
}

QPoint handleOf(const QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    return slider.style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
        .center();
}

} // namespace

Gesture sliderDrag(int index)
{
    return {QStringLiteral("drag"),
            Occasion::User,
            {kSet, kChanged, kStarts, kEnds},
            [index](Bench &bench) {
                const auto slider = bench.control<QSlider>(index);
                if (!slider)
                    return;
                const Hand::Target target = slider.data();
                QPoint at = handleOf(*slider);
                Hand::press(target, at);
                for (const int step : {12, 9, -30}) {
                    at.rx() += step;
                    Hand::move(target, at);
                }
                Hand::release(target, at);
            }};
}

QVector<Gesture> sliderGestures(int index)
{
    return {
        sliderDrag(index),
        {QStringLiteral("keys on the slider"),
         Occasion::User,
         {kSet, kChanged},
         [index](Bench &bench) {
             const Hand::Target slider = bench.control<QSlider>(index).data();
             Hand::focus(slider);
             Hand::key(slider, Qt::Key_PageUp);
             Hand::key(slider, Qt::Key_PageDown);
             Hand::leave(slider);
         }},
        {QStringLiteral("wheel over the slider"),
         Occasion::User,
         {kSet, kChanged},
         [index](Bench &bench) {
             const Hand::Target slider = bench.control<QSlider>(index).data();
             Hand::wheel(slider);
             Hand::wheel(slider);
         }},
        {QStringLiteral("groove held"),
         Occasion::Timer,
         {kSet, kChanged},
         [index](Bench &bench) {
             const Hand::Target slider = bench.control<QSlider>(index).data();
             if (!slider)
                 return;
             const QPoint end(slider->width() - 4, slider->height() / 2);
             Hand::press(slider, end);
             Hand::wait(slider);
             Hand::wait(slider);
             Hand::release(slider, end);
         }},
    };
}

Gesture focusMoves(int index)
{
    return {QStringLiteral("focus moves"),
            Occasion::User,
            {kStarts, kEnds},
            [index](Bench &bench) {
                Hand::focus(bench.control<QAbstractSpinBox>(index).data());
                Hand::focus(bench.elsewhere.data());
            },
            {kFocusGoesToHost}};
}

QVector<Gesture> fieldGestures(int index)
{
    return {
        {QStringLiteral("typing"),
         Occasion::User,
         {kSet, kChanged, kStarts, kEnds},
         [index](Bench &bench) {
             const auto field = bench.control<QAbstractSpinBox>(index);
             const Hand::Target target = field.data();
             Hand::focus(target);
             if (field)
                 field->selectAll();
             Hand::type(target, QStringLiteral("1"));
             Hand::key(target, Qt::Key_Return);
             Hand::key(target, Qt::Key_Up);
             Hand::leave(target);
         }},
        focusMoves(index),
        {QStringLiteral("arrow held"),
         Occasion::Timer,
         {kSet, kChanged, kStarts, kEnds},
         [index](Bench &bench) {
             const auto field = bench.control<QAbstractSpinBox>(index);
             if (!field)
                 return;
             const Hand::Target target = field.data();
             const QPoint arrow = arrowOf(*field);
             Hand::press(target, arrow);
             Hand::wait(target);
             Hand::wait(target);
             Hand::release(target, arrow);
             Hand::leave(target);
         }},
    };
}

QVector<Gesture> numberGestures()
{
    return sliderGestures() + fieldGestures();
}
