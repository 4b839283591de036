#include "property/ThousandthsSlider_p.h"

#include "core/RealSliderInterface.h"
#include "property/EditorHelpers_p.h"
#include "property/SpokenNumber_p.h"

#include <QAccessible>

namespace Tessark::PropertyUI {

namespace {

QAccessibleInterface *thousandthsInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(QSlider::staticMetaObject.className()))
        return nullptr;
    auto *const slider = dynamic_cast<ThousandthsSlider *>(object);
    return slider ? new UI::RealSliderInterface<ThousandthsSlider>(slider) : nullptr;
}

} // namespace

ThousandthsSlider::ThousandthsSlider()
    : QSlider(Qt::Horizontal)
{
    static const bool s_installed = (QAccessible::installFactory(thousandthsInterface), true);
    Q_UNUSED(s_installed);
}

ThousandthsSlider::~ThousandthsSlider() = default;

double ThousandthsSlider::realValue() const
{
    return realValueAt(value());
}

double ThousandthsSlider::realMinimum() const
{
    return realValueAt(minimum());
}

double ThousandthsSlider::realMaximum() const
{
    return realValueAt(maximum());
}

double ThousandthsSlider::realValueAt(int position) const
{
    return position / double(kSliderUnitsPerUnit);
}

void ThousandthsSlider::setRealValue(double value)
{
    setValue(PropertyUI::sliderPosition(value * kSliderUnitsPerUnit));
}

/// The base has told the position by now.
void ThousandthsSlider::sliderChange(SliderChange change)
{
    QSlider::sliderChange(change);
    if (change == SliderValueChange)
        tellNumber(this, realValue());
}

} // namespace Tessark::PropertyUI
