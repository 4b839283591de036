#pragma once

#include <QAccessibleWidget>
#include <QVariant>

namespace Tessark::UI {

/// A slider to assistive technology, for a factory of QAccessible: its value interface speaks in real
/// units, not in positions. Qt deletes it with the slider, which has realValue(), realMinimum(),
/// realMaximum(), realValueAt() and setRealValue().
template <typename RealSlider>
class RealSliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit RealSliderInterface(RealSlider *slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
        , m_slider(slider)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_slider->realValue(); }
    QVariant minimumValue() const override { return m_slider->realMinimum(); }
    QVariant maximumValue() const override { return m_slider->realMaximum(); }

    /// An edit by the user, so a disabled slider ignores it as it ignores keys.
    void setCurrentValue(const QVariant &value) override
    {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (isNumber && m_slider->isEnabled())
            m_slider->setRealValue(number);
    }

    /// From the current position to the next one; at the last position, the last step.
    QVariant minimumStepSize() const override
    {
        const int lastStart = qMax(m_slider->maximum() - 1, m_slider->minimum());
        const int position = qMin(m_slider->value(), lastStart);
        const int next = qMin(position, m_slider->maximum() - 1) + 1;
        return m_slider->realValueAt(next) - m_slider->realValueAt(position);
    }

private:
    RealSlider *m_slider; // the interface is deleted with it
};

} // namespace Tessark::UI
