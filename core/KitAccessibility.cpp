#include "core/KitAccessibility_p.h"

#include "core/ColorWheel.h"
#include "core/ColorWheelInterface_p.h"
#include "core/LogSlider.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace Tessark::UI {

namespace {

/// A slider to assistive technology: its value interface speaks in real units, not in positions.
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

QAccessibleInterface *kitInterface(const QString &className, QObject *object)
{
    // Qt asks for the class and then for each of its bases, so a host's subclass with an interface of
    // its own comes first.
    if (className == QLatin1String(LogSlider::staticMetaObject.className())) {
        if (auto *const slider = qobject_cast<LogSlider *>(object))
            return new RealSliderInterface<LogSlider>(slider);
    }
    if (className == QLatin1String(ColorWheel::staticMetaObject.className())) {
        if (auto *const wheel = qobject_cast<ColorWheel *>(object))
            return new ColorWheelInterface(wheel);
    }
    return nullptr;
}

} // namespace

void installKitAccessibility()
{
    static const bool installed = (QAccessible::installFactory(kitInterface), true);
    Q_UNUSED(installed);
}

} // namespace Tessark::UI
