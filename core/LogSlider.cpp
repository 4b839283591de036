#include "core/LogSlider.h"

#include "core/KitAccessibility_p.h"
#include "core/RealPosition_p.h"

#include <algorithm>

namespace Tessark::UI {

namespace {

constexpr int kSmallestExponent = -300;
constexpr int kLargestExponent = 300;
constexpr int kFreshPositions = 1000;

class LogPosition final : public RealPosition
{
public:
    explicit LogPosition(LogSlider *slider)
        : RealPosition(slider, LogScale{0, 1})
        , m_slider(slider)
    {
    }

private:
    void emitValueChanged(double value) override { Q_EMIT m_slider->realValueChanged(value); }

    LogSlider *const m_slider;
};

int boundedExponent(int exponent)
{
    return std::clamp(exponent, kSmallestExponent, kLargestExponent);
}

const LogScale &logScaleOf(const RealPosition &position)
{
    return std::get<LogScale>(position.scale());
}

} // namespace

LogSlider::LogSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_position(std::make_unique<LogPosition>(this))
{
    installKitAccessibility();
    setRange(0, kFreshPositions);
}

LogSlider::~LogSlider() = default;

void LogSlider::setRealRange(int minimumExponent, int maximumExponent, int positions)
{
    const auto [low, high] = std::minmax(minimumExponent, maximumExponent);
    m_position->setScale(LogScale{boundedExponent(low), boundedExponent(high)}, positions);
}

double LogSlider::realMinimum() const
{
    return m_position->minimum();
}

double LogSlider::realMaximum() const
{
    return m_position->maximum();
}

int LogSlider::minimumExponent() const
{
    return logScaleOf(*m_position).minimumExponent;
}

int LogSlider::maximumExponent() const
{
    return logScaleOf(*m_position).maximumExponent;
}

double LogSlider::realValue() const
{
    return m_position->value();
}

double LogSlider::realValueAt(int position) const
{
    return m_position->at(position);
}

int LogSlider::positionOf(double value) const
{
    return m_position->positionOf(value);
}

bool LogSlider::wheelNeedsFocus() const
{
    return m_position->wheelNeedsFocus();
}

void LogSlider::setWheelNeedsFocus(bool needsFocus)
{
    m_position->setWheelNeedsFocus(needsFocus);
}

bool LogSlider::event(QEvent *event)
{
    return m_position->takesEvent(event) || QSlider::event(event);
}

void LogSlider::setRealValue(double value)
{
    m_position->setValue(value);
}

void LogSlider::sliderChange(SliderChange change)
{
    if (change == SliderRangeChange)
        m_position->noteRangeChange();
    else if (change == SliderValueChange)
        m_position->noteValueChange();
    QSlider::sliderChange(change);
}

} // namespace Tessark::UI
