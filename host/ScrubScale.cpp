#include "host/ScrubScale_p.h"

#include "host/NumberFieldAccess_p.h"

#include <core/LogSlider.h>
#include <property/PropertyEditor.h>

#include <QAbstractSpinBox>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyHost {

namespace {

constexpr double kStepsOfSlider = 100.0;

} // namespace

ScrubScale::ScrubScale(PropertyUI::PropertyEditor &editor, const QAbstractSpinBox &field)
    : m_lowest(minimumOf(field))
    , m_highest(maximumOf(field))
    , m_step(stepOf(field))
{
    const QWidget *const widget = editor.widget(nullptr);
    const auto *const slider = widget ? widget->findChild<UI::LogSlider *>() : nullptr;
    if (!slider)
        return;
    m_isLogarithmic = true;
    m_step = (slider->maximumExponent() - slider->minimumExponent()) / kStepsOfSlider;
    m_lowest = slider->minimumExponent();
    m_highest = std::max(m_lowest, placeOf(maximumOf(field)));
}

/// There is no way to zero on a logarithm: it begins where the slider does.
double ScrubScale::placeOf(double number) const
{
    return m_isLogarithmic ? std::log10(std::max(number, std::pow(10.0, m_lowest))) : number;
}

double ScrubScale::numberAt(double place) const
{
    return m_isLogarithmic ? std::pow(10.0, place) : place;
}

double ScrubScale::moved(double place, double steps) const
{
    return std::max(m_lowest, std::min(place + steps * m_step, m_highest));
}

} // namespace Tessark::PropertyHost
