#include "core/RealPosition_p.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessark::UI {

namespace {

PositionRange positionsOf(const QAbstractSlider &slider)
{
    return {slider.minimum(), slider.maximum()};
}

double valueAt(const RealPosition::Scale &scale, PositionRange range, int position)
{
    return std::visit([&](const auto &s) { return realAt(s, range, position); }, scale);
}

} // namespace

RealPosition::RealPosition(QSlider *slider, const Scale &scale)
    : m_slider(slider)
    , m_scale(scale)
    , m_minimum(valueAt(scale, {0, 1}, 0))
    , m_maximum(valueAt(scale, {0, 1}, 1))
    , m_value(m_minimum)
    , m_dragCancel(slider)
{
    // Announced inside valueChanged(int) rather than in sliderChange(): Qt goes on after that, while
    // here a slot may even delete the slider.
    QObject::connect(slider, &QSlider::valueChanged, slider, [this] { announceValue(); });
}

RealPosition::~RealPosition() = default;

void RealPosition::setScale(const Scale &scale, int positions)
{
    const PositionRange oldRange = positionsOf(*m_slider);
    const int oldPosition = m_slider->value();
    m_scale = scale;
    m_minimum = valueAt(scale, {0, 1}, 0);
    m_maximum = valueAt(scale, {0, 1}, 1);
    takeValue(m_value);
    {
        const bool isPoint = m_minimum == m_maximum;
        const QSignalBlocker blocker(m_slider);
        m_slider->setRange(0, isPoint ? 0 : std::clamp(positions, 1, kMostPositions));
        moveToValue();
        tellValue();
    }
    announceRange(oldRange, oldPosition);
}

const RealPosition::Scale &RealPosition::scale() const
{
    return m_scale;
}

double RealPosition::minimum() const
{
    return m_minimum;
}

double RealPosition::maximum() const
{
    return m_maximum;
}

double RealPosition::value() const
{
    return m_value;
}

double RealPosition::at(int position) const
{
    return valueAt(m_scale, positionsOf(*m_slider), position);
}

int RealPosition::positionOf(double value) const
{
    if (std::isnan(value))
        return m_slider->value();
    const PositionRange range = positionsOf(*m_slider);
    return std::visit([&](const auto &s) { return UI::positionOf(s, range, value); }, m_scale);
}

void RealPosition::setValue(double value)
{
    if (std::isnan(value))
        return;
    takeValue(value);
    if (m_isUntold && QAccessible::isActive() && positionOf(m_value) == m_slider->value())
        tellValue();
    if (!m_unannounced) { // no signal is due after the move
        moveToValue();
        return;
    }
    const QPointer<QSlider> alive(m_slider);
    moveToValue();
    if (alive)
        announceValue(); // still to come where the position stayed
}

bool RealPosition::wheelNeedsFocus() const
{
    return m_wheelNeedsFocus;
}

void RealPosition::setWheelNeedsFocus(bool needsFocus)
{
    m_wheelNeedsFocus = needsFocus;
}

bool RealPosition::takesEvent(QEvent *event)
{
    if (event->type() == QEvent::Wheel && m_wheelNeedsFocus && !m_slider->hasFocus()) {
        event->ignore();
        return true;
    }
    switch (m_dragCancel.judge(event, m_value)) {
    case DragCancel::Verdict::Pass:
        return false;
    case DragCancel::Verdict::Swallow:
        break;
    case DragCancel::Verdict::Cancel:
        cancelDrag();
        break;
    }
    return true;
}

/// Other integers for the same scale: called by the inherited setRange() before it emits
/// rangeChanged() and then re-binds the old position with setValue(value()).
void RealPosition::noteRangeChange()
{
    m_position = positionOf(m_value);
    if (m_position == qBound(m_slider->minimum(), m_slider->value(), m_slider->maximum()))
        return; // re-binding leads there
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(m_position);
    // The re-binding announces the new position if the handle is still elsewhere. Announcing it here
    // would come before rangeChanged(), with Qt going on after it.
    const bool tracking = m_slider->hasTracking();
    const bool atMinimum = m_position == m_slider->minimum();
    m_slider->setTracking(false);
    m_slider->setSliderPosition(atMinimum ? m_slider->maximum() : m_slider->minimum());
    m_slider->setTracking(tracking);
}

void RealPosition::noteValueChange()
{
    if (m_slider->value() != m_position) {
        m_position = m_slider->value();
        takeValue(at(m_position));
    }
    tellValue();
}

void RealPosition::letGo()
{
    m_slider->setSliderDown(false);
}

void RealPosition::takeValue(double value)
{
    const double bounded = std::clamp(value, m_minimum, m_maximum);
    if (bounded == m_value)
        return;
    m_value = bounded;
    m_unannounced = !m_slider->signalsBlocked();
    m_isUntold = true;
}

/// After QAbstractSlider, which tells the position.
void RealPosition::tellValue()
{
    if (!std::exchange(m_isUntold, false) || !QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(m_slider, m_value);
    QAccessible::updateAccessibility(&event);
}

void RealPosition::moveToValue()
{
    m_position = positionOf(m_value);
    // Without tracking a dragged handle may be away from its value. setValue() would bring it back
    // too, but with a valueChanged(int) although the value stays.
    if (m_position == m_slider->value() && !m_slider->hasTracking())
        m_slider->setSliderPosition(m_position);
    else
        m_slider->setValue(m_position);
}

void RealPosition::announceValue()
{
    if (std::exchange(m_unannounced, false))
        emitValueChanged(m_value);
}

void RealPosition::announceRange(PositionRange oldRange, int oldPosition)
{
    const QPointer<QSlider> alive(m_slider);
    QSlider *const slider = m_slider;
    const int position = slider->value();
    if (slider->minimum() != oldRange.minimum || slider->maximum() != oldRange.maximum)
        Q_EMIT slider->rangeChanged(slider->minimum(), slider->maximum());
    if (alive && position != oldPosition && position == slider->value())
        Q_EMIT slider->valueChanged(position);
    if (alive)
        announceValue();
}

void RealPosition::cancelDrag()
{
    const QPointer<QSlider> alive(m_slider);
    setValue(m_dragCancel.valueAtPress());
    if (alive)
        letGo();
}

} // namespace Tessark::UI
