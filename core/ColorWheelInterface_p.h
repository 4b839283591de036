#pragma once

#include "core/ColorMath_p.h"

#include <QAccessibleWidget>

#include <array>

namespace Tessark::UI {

class ColorWheel;

/// A wheel to assistive technology: a colour chooser with three sliders, hue 0..360 degrees,
/// saturation and brightness 0..100 percent. Setting one of them is an edit by the user.
class ColorWheelInterface final : public QAccessibleWidget
{
public:
    explicit ColorWheelInterface(ColorWheel *wheel);
    ~ColorWheelInterface() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QString text(QAccessible::Text text) const override;

    void edit(const Hsv &hsv);

private:
    ColorWheel *m_wheel; // the interface is deleted with it
    std::array<QAccessible::Id, 3> m_channels{};
};

/// Tells assistive technology, if there is any, of the wheel's new colour.
void tellAssistance(ColorWheel *wheel, const Hsv &before, const Hsv &now);

} // namespace Tessark::UI
