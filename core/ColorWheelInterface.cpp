#include "core/ColorWheelInterface_p.h"

#include "core/ColorWheel.h"

#include <algorithm>
#include <cmath>

namespace Tessark::UI {

namespace {

/// One number of the colour as assistive technology sees it.
struct Channel
{
    const char *name;
    double Hsv::*fraction;
    double maximum; // what a fraction of 1 is shown as
};

constexpr Channel kChannels[] = {
    {QT_TRANSLATE_NOOP("Tessark::UI::ColorWheel", "Hue"), &Hsv::hue, 360},
    {QT_TRANSLATE_NOOP("Tessark::UI::ColorWheel", "Saturation"), &Hsv::saturation, 100},
    {QT_TRANSLATE_NOOP("Tessark::UI::ColorWheel", "Brightness"), &Hsv::value, 100},
};

Hsv hsvOf(const ColorWheel &wheel)
{
    return {wheel.hue(), wheel.saturation(), wheel.value()};
}

double shownNumber(const Channel &channel, const Hsv &hsv)
{
    return hsv.*channel.fraction * channel.maximum;
}

QString describe(const Hsv &hsv)
{
    return ColorWheel::tr("Hue %1 degrees, saturation %2 percent, brightness %3 percent")
        .arg(qRound(hsv.hue * 360) % 360)
        .arg(qRound(hsv.saturation * 100))
        .arg(qRound(hsv.value * 100));
}

/// A slider without a widget of its own: it lies where the wheel lies.
class ChannelInterface final : public QAccessibleInterface, public QAccessibleValueInterface
{
public:
    ChannelInterface(ColorWheelInterface *parent, const Channel &channel)
        : m_parent(parent)
        , m_channel(channel)
    {
    }

    bool isValid() const override { return m_parent->isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_parent->window(); }
    QAccessibleInterface *parent() const override { return m_parent; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Slider; }
    QRect rect() const override { return m_parent->rect(); }
    void setText(QAccessible::Text, const QString &) override {}

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.disabled = m_parent->state().disabled;
        state.invisible = m_parent->state().invisible;
        return state;
    }

    QString text(QAccessible::Text text) const override
    {
        switch (text) {
        case QAccessible::Name:
            return ColorWheel::tr(m_channel.name);
        case QAccessible::Value:
            return QString::number(qRound(shownNumber(m_channel, hsvOf(wheel()))));
        default:
            return QString();
        }
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return nullptr;
    }

    QVariant currentValue() const override { return shownNumber(m_channel, hsvOf(wheel())); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return m_channel.maximum; }
    QVariant minimumStepSize() const override { return 1.0; }

    /// An edit by the user, so a disabled wheel ignores it as it ignores keys.
    void setCurrentValue(const QVariant &value) override
    {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (!isNumber || std::isnan(number) || !wheel().isEnabled())
            return;
        Hsv hsv = hsvOf(wheel());
        hsv.*m_channel.fraction = std::clamp(number / m_channel.maximum, 0.0, 1.0);
        hsv.hue = wrappedHue(hsv.hue);
        m_parent->edit(hsv);
    }

private:
    const ColorWheel &wheel() const { return *static_cast<const ColorWheel *>(m_parent->object()); }

    ColorWheelInterface *m_parent; // deletes this
    const Channel &m_channel;
};

} // namespace

ColorWheelInterface::ColorWheelInterface(ColorWheel *wheel)
    : QAccessibleWidget(wheel, QAccessible::ColorChooser)
    , m_wheel(wheel)
{
    for (std::size_t i = 0; i < m_channels.size(); ++i) {
        auto *const channel = new ChannelInterface(this, kChannels[i]);
        m_channels[i] = QAccessible::registerAccessibleInterface(channel);
    }
}

ColorWheelInterface::~ColorWheelInterface()
{
    for (const QAccessible::Id id : m_channels)
        QAccessible::deleteAccessibleInterface(id);
}

int ColorWheelInterface::childCount() const
{
    return int(m_channels.size());
}

QAccessibleInterface *ColorWheelInterface::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    return QAccessible::accessibleInterface(m_channels[std::size_t(index)]);
}

int ColorWheelInterface::indexOfChild(const QAccessibleInterface *child) const
{
    for (int i = 0; i < childCount(); ++i) {
        if (this->child(i) == child)
            return i;
    }
    return -1;
}

/// The sliders share the wheel's place: a point shows the wheel.
QAccessibleInterface *ColorWheelInterface::childAt(int, int) const
{
    return nullptr;
}

QAccessibleInterface *ColorWheelInterface::focusChild() const
{
    return m_wheel->hasFocus() ? const_cast<ColorWheelInterface *>(this) : nullptr;
}

QString ColorWheelInterface::text(QAccessible::Text text) const
{
    if (text == QAccessible::Value)
        return describe(hsvOf(*m_wheel));
    if (text == QAccessible::Name && m_wheel->accessibleName().isEmpty())
        return ColorWheel::tr("Color wheel");
    return QAccessibleWidget::text(text);
}

void ColorWheelInterface::edit(const Hsv &hsv)
{
    m_wheel->editAtOnce(hsv);
}

void tellAssistance(ColorWheel *wheel, const Hsv &before, const Hsv &now)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent whole(wheel, describe(now));
    QAccessible::updateAccessibility(&whole);
    int index = 0;
    for (const Channel &channel : kChannels) {
        if (before.*channel.fraction != now.*channel.fraction) {
            QAccessibleValueChangeEvent part(wheel, shownNumber(channel, now));
            part.setChild(index);
            QAccessible::updateAccessibility(&part);
        }
        ++index;
    }
}

} // namespace Tessark::UI
