#include "core/LogSlider.h"

#include "core/DragCancel_p.h"
#include "core/KitAccessibility_p.h"
#include "core/SliderMaps_p.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessark::UI {

namespace {

constexpr int kSmallestExponent = -300;
constexpr int kLargestExponent = 300;
constexpr int kMostPositions = 1000000;

int boundedExponent(int exponent)
{
    return std::clamp(exponent, kSmallestExponent, kLargestExponent);
}

PositionRange positionsOf(const QAbstractSlider &slider)
{
    return {slider.minimum(), slider.maximum()};
}

} // namespace

LogSlider::LogSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_dragCancel(std::make_unique<DragCancel>(this))
{
    installKitAccessibility();
    QSlider::setRange(0, 1000);
    // Announced inside valueChanged(int) rather than in sliderChange(): Qt goes on after that, while
    // here a slot may even delete the slider.
    connect(this, &QSlider::valueChanged, this, &LogSlider::announceRealValue);
}

LogSlider::~LogSlider() = default;

void LogSlider::setRealRange(int minimumExponent, int maximumExponent, int positions)
{
    const PositionRange oldRange = positionsOf(*this);
    const int oldPosition = value();
    const auto [low, high] = std::minmax(minimumExponent, maximumExponent);
    m_minimumExponent = boundedExponent(low);
    m_maximumExponent = boundedExponent(high);
    m_realMinimum = powerOfTen(m_minimumExponent);
    m_realMaximum = powerOfTen(m_maximumExponent);
    takeRealValue(m_realValue);
    {
        const bool isPoint = m_minimumExponent == m_maximumExponent;
        const QSignalBlocker blocker(this);
        setRange(0, isPoint ? 0 : std::clamp(positions, 1, kMostPositions));
        moveToRealPosition();
    }
    announceRange(oldRange, oldPosition);
}

double LogSlider::realMinimum() const
{
    return m_realMinimum;
}

double LogSlider::realMaximum() const
{
    return m_realMaximum;
}

int LogSlider::minimumExponent() const
{
    return m_minimumExponent;
}

int LogSlider::maximumExponent() const
{
    return m_maximumExponent;
}

double LogSlider::realValue() const
{
    return m_realValue;
}

double LogSlider::realValueAt(int position) const
{
    return realAt(LogScale{m_minimumExponent, m_maximumExponent}, positionsOf(*this), position);
}

int LogSlider::positionOf(double value) const
{
    if (std::isnan(value))
        return QSlider::value();
    return UI::positionOf(LogScale{m_minimumExponent, m_maximumExponent}, positionsOf(*this),
                          value);
}

bool LogSlider::wheelNeedsFocus() const
{
    return m_wheelNeedsFocus;
}

void LogSlider::setWheelNeedsFocus(bool needsFocus)
{
    m_wheelNeedsFocus = needsFocus;
}

bool LogSlider::event(QEvent *event)
{
    switch (m_dragCancel->judge(event, m_realValue)) {
    case DragCancel::Verdict::Pass:
        return QSlider::event(event);
    case DragCancel::Verdict::Swallow:
        break;
    case DragCancel::Verdict::Cancel:
        cancelDrag();
        break;
    }
    return true;
}

void LogSlider::setRealValue(double value)
{
    if (std::isnan(value))
        return;
    takeRealValue(value);
    const QPointer<LogSlider> self(this);
    moveToRealPosition();
    if (self)
        announceRealValue(); // still to come where the position stayed
}

/// Runs before valueChanged(int), and also while signals are blocked.
void LogSlider::sliderChange(SliderChange change)
{
    if (change == SliderRangeChange) {
        keepRealValueInNewRange();
    } else if (change == SliderValueChange && value() != m_realPosition) {
        m_realPosition = value();
        takeRealValue(realValueAt(m_realPosition));
    }
    QSlider::sliderChange(change);
}

void LogSlider::wheelEvent(QWheelEvent *event)
{
    if (m_wheelNeedsFocus && !hasFocus())
        event->ignore();
    else
        QSlider::wheelEvent(event);
}

void LogSlider::takeRealValue(double value)
{
    const double bounded = std::clamp(value, m_realMinimum, m_realMaximum);
    if (bounded == m_realValue)
        return;
    m_realValue = bounded;
    m_unannounced = !signalsBlocked();
    QAccessibleValueChangeEvent event(this, m_realValue); // QAbstractSlider tells the position only
    QAccessible::updateAccessibility(&event);
}

void LogSlider::moveToRealPosition()
{
    m_realPosition = positionOf(m_realValue);
    // Without tracking a dragged handle may be away from its value. setValue() would bring it back
    // too, but with a valueChanged(int) although the value stays.
    if (m_realPosition == value() && !hasTracking())
        setSliderPosition(m_realPosition);
    else
        setValue(m_realPosition);
}

void LogSlider::announceRealValue()
{
    if (std::exchange(m_unannounced, false))
        Q_EMIT realValueChanged(m_realValue);
}

void LogSlider::announceRange(PositionRange oldRange, int oldPosition)
{
    const QPointer<LogSlider> self(this);
    const int position = value();
    if (minimum() != oldRange.minimum || maximum() != oldRange.maximum)
        Q_EMIT rangeChanged(minimum(), maximum());
    if (self && position != oldPosition && position == value())
        Q_EMIT valueChanged(position);
    if (self)
        announceRealValue();
}

/// Other integers for the same real range: called by the inherited setRange() before it emits
/// rangeChanged() and then re-binds the old position with setValue(value()).
void LogSlider::keepRealValueInNewRange()
{
    m_realPosition = positionOf(m_realValue);
    if (m_realPosition == qBound(minimum(), value(), maximum()))
        return; // re-binding leads there
    const QSignalBlocker blocker(this);
    setValue(m_realPosition);
    // The re-binding announces the new position if the handle is still elsewhere. Announcing it here
    // would come before rangeChanged(), with Qt going on after it.
    const bool tracking = hasTracking();
    setTracking(false);
    setSliderPosition(m_realPosition == minimum() ? maximum() : minimum());
    setTracking(tracking);
}

void LogSlider::cancelDrag()
{
    const QPointer<LogSlider> self(this);
    setRealValue(m_dragCancel->valueAtPress());
    if (self)
        setSliderDown(false);
}

} // namespace Tessark::UI
