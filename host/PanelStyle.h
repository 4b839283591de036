#pragma once

#include "host/PropertyHostExport.h"

#include <QProxyStyle>

#include <optional>

class QStyleOptionTab;

namespace Tessark::PropertyHost {

/**
 * Draws what panels are made of; all else is drawn by the style that it stands on.
 *
 * - A check box with the dynamic property "disclosure", the head of a group, becomes a triangle that
 *   points down while the group is open, with a bold text unless a font was set for it.
 * - A button with the dynamic property "group" of the value "round" becomes round.
 * - What is disabled, and can be used else, has a dashed outline: fields, buttons, boxes, lists, and
 *   the handles of sliders. So it is told from the rest without its colour.
 * - Where QPalette::Mid has a contrast of 3 to 1 or more to the window, as in panelPalette(), it is
 *   the colour of outlines, which are doubled and in the colour of the highlight with the focus.
 * - The current tab has a bar in the colour of the highlight there.
 * - A plain horizontal line has that colour too: in the colour of text it would outdo everything.
 * - Boxes and triangles grow with the font.
 *
 * Colours come from the palette of each widget, widths from the style below and from the font.
 *
 *     QApplication::setStyle(new PanelStyle);
 *
 * A style is inherited by no widget: set it for the application, as applyPanelLook() does. For one
 * panel of a program that looks otherwise there is panelStyleSheet().
 */
class TESSARK_PROPERTYHOST_EXPORT PanelStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes the style to stand on over; null means the one that the application would have had.
    explicit PanelStyle(QStyle *base = nullptr);
    ~PanelStyle() override;

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

private:
    enum class Shape { Box, Round };

    static std::optional<Shape> shapeOf(PrimitiveElement element, const QWidget *widget);
    void drawTabOutline(const QStyleOptionTab &option, QPainter *painter,
                        const QWidget *widget) const;
    void drawOutline(Shape shape, const QRect &rect, const QStyleOption &option, QPainter *painter,
                     const QWidget *widget, const QBrush &brush = Qt::NoBrush) const;
};

} // namespace Tessark::PropertyHost
