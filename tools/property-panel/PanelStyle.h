#pragma once

#include <QProxyStyle>

namespace Tessark::PropertyPanel {

/**
 * Adapts what a panel is made of to its place; all else is drawn by the base style.
 *
 * A check box with the dynamic property "disclosure", the head of a group, becomes a triangle that
 * points down while the group is open, with a bold text. A plain horizontal line is softened: in
 * the colour of text it would outdo everything around it.
 */
class PanelStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes base over; null means the style that the application would have had.
    explicit PanelStyle(QStyle *base);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void polish(QWidget *widget) override;
    using QProxyStyle::polish;
};

} // namespace Tessark::PropertyPanel
