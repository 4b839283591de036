#pragma once

#include <QProxyStyle>

namespace Tessark::PropertyPanel {

/// Draws a check box that carries the dynamic property "disclosure", the head of a group, as a
/// triangle that points down while the group is open, with a bold text. All else is drawn by the
/// base style.
class DisclosureStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes base over; null means the style that the application would have had.
    explicit DisclosureStyle(QStyle *base);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void polish(QWidget *widget) override;
    using QProxyStyle::polish;
};

} // namespace Tessark::PropertyPanel
