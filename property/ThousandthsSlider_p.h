#pragma once

#include <QSlider>

namespace Tessark::PropertyUI {

/// A horizontal slider that holds thousandths of the number that is shown beside it. Assistive
/// technology hears that number. There is no Q_OBJECT, so that style sheets and hosts see a QSlider.
class ThousandthsSlider final : public QSlider
{
public:
    ThousandthsSlider();
    ~ThousandthsSlider() override;

    double realValue() const;
    double realMinimum() const;
    double realMaximum() const;
    double realValueAt(int position) const;
    void setRealValue(double value); // as the user sets it, rounded toward zero

protected:
    void sliderChange(SliderChange change) override;
};

} // namespace Tessark::PropertyUI
