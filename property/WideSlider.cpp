#include "property/WideSlider_p.h"

#include "property/QtCompat_p.h"

#include <QProxyStyle>
#include <QSlider>
#include <QStyleOptionSlider>

#include <limits>

namespace Tessark::PropertyUI {

namespace {

bool isWide(qint64 minimum, qint64 maximum)
{
    return maximum - minimum > std::numeric_limits<int>::max();
}

/// Places the parts of a wide slider by quarters of its units.
class WideSliderStyle final : public QProxyStyle
{
public:
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                         SubControl subControl, const QWidget *widget) const override
    {
        const auto *const slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
        if (control != CC_Slider || !slider || !isWide(slider->minimum, slider->maximum))
            return QProxyStyle::subControlRect(control, option, subControl, widget);
        QStyleOptionSlider narrow = *slider;
        narrow.minimum /= kDivisor;
        narrow.maximum /= kDivisor;
        narrow.sliderPosition /= kDivisor;
        narrow.sliderValue /= kDivisor;
        return QProxyStyle::subControlRect(control, &narrow, subControl, widget);
    }

private:
    static constexpr int kDivisor = 4;
};

} // namespace

void supportWideRange(QSlider *slider)
{
    if (!kWideSlidersNeedHelp || !isWide(slider->minimum(), slider->maximum()))
        return;
    if (dynamic_cast<WideSliderStyle *>(slider->style()))
        return;
    auto *const style = new WideSliderStyle;
    style->setParent(slider);
    slider->setStyle(style);
}

} // namespace Tessark::PropertyUI
