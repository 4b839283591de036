#include "testing/SliderTrack_p.h"

#include <core/Slider.h>

#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyTest {

namespace {

/// As the slider itself fills it, which it does not let others call.
QStyleOptionSlider styleOption(const QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.subControls = QStyle::SC_None;
    option.activeSubControls = QStyle::SC_None;
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.tickPosition = slider.tickPosition();
    option.tickInterval = slider.tickInterval();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    option.singleStep = slider.singleStep();
    option.pageStep = slider.pageStep();
    const bool isHorizontal = slider.orientation() == Qt::Horizontal;
    const bool isMirrored = isHorizontal && option.direction == Qt::RightToLeft;
    option.upsideDown =
        isHorizontal ? slider.invertedAppearance() != isMirrored : !slider.invertedAppearance();
    option.direction = Qt::LeftToRight; // the handle's place is the same: upsideDown tells it
    if (isHorizontal)
        option.state |= QStyle::State_Horizontal;
    return option;
}

} // namespace

SliderTrack::SliderTrack(const QSlider &slider)
    : m_orientation(slider.orientation())
    , m_minimum(slider.minimum())
    , m_maximum(slider.maximum())
    , m_position(slider.sliderPosition())
    , m_isSmooth(qobject_cast<const UI::Slider *>(&slider))
{
    const QStyleOptionSlider option = styleOption(slider);
    const auto rectOf = [&](QStyle::SubControl part) {
        return slider.style()->subControlRect(QStyle::CC_Slider, &option, part, &slider);
    };
    const QRect groove = rectOf(QStyle::SC_SliderGroove);
    const QRect handle = rectOf(QStyle::SC_SliderHandle);
    const bool isHorizontal = m_orientation == Qt::Horizontal;
    m_isUpsideDown = option.upsideDown;
    m_length = isHorizontal ? groove.width() - handle.width() : groove.height() - handle.height();
    m_current = isHorizontal ? handle.x() - groove.x() : handle.y() - groove.y();
    m_handle = handle.center();
}

int SliderTrack::pixelsTo(int position) const
{
    if (m_isSmooth)
        return int(std::lround((double(position) - m_position) / positionsPerPixel()));
    return QStyle::sliderPositionFromValue(m_minimum, m_maximum, position, m_length, m_isUpsideDown)
           - m_current;
}

int SliderTrack::positionAfter(int pixels) const
{
    if (m_isSmooth) {
        const double position = m_position + pixels * positionsPerPixel();
        return std::clamp(int(std::lround(position)), m_minimum, m_maximum);
    }
    return QStyle::sliderValueFromPosition(m_minimum, m_maximum, m_current + pixels, m_length,
                                           m_isUpsideDown);
}

QPoint SliderTrack::handleAfter(int pixels) const
{
    return m_handle + (m_orientation == Qt::Horizontal ? QPoint(pixels, 0) : QPoint(0, pixels));
}

double SliderTrack::positionsPerPixel() const
{
    const double positions = (double(m_maximum) - m_minimum) / m_length;
    return m_isUpsideDown ? -positions : positions;
}

} // namespace Tessark::PropertyTest
