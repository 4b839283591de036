#include "host/PanelStyle.h"

#include "host/ColorContrast_p.h"

#include <core/DisclosureButton.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QPainter>
#include <QScrollArea>
#include <QStyleOption>

#include <algorithm>
#include <optional>

namespace Tessark::PropertyHost {

namespace {

constexpr char kBoldProperty[] = "tessarkBold"; // of a widget whose font this style has made bold
constexpr double kVisible = 3;                  // contrast of lines
constexpr double kVeil = 0.2;                   // of the text's colour over a pressed button
constexpr double kRadius = 2;                   // of corners, by the width of lines
constexpr int kBar = 3;                         // thickness of a current tab's, by the same

bool isDisclosure(const QWidget *widget)
{
    return qobject_cast<const QCheckBox *>(widget) && widget->property("disclosure").toBool();
}

bool isRound(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget)
           && widget->property("group").toString() == QLatin1String("round");
}

/// A field that scrolls what is in it, and not an area with widgets.
bool isScrollingField(const QWidget *widget)
{
    return qobject_cast<const QAbstractScrollArea *>(widget)
           && !qobject_cast<const QScrollArea *>(widget);
}

/// Where a tab of the shape meets its page.
Qt::Edge pageEdge(QTabBar::Shape shape)
{
    switch (shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        return Qt::TopEdge;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        return Qt::RightEdge;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        return Qt::LeftEdge;
    default:
        return Qt::BottomEdge;
    }
}

/// The extent of the rectangle at a right angle to the edge.
int thickness(Qt::Edge edge, const QRect &rect)
{
    return edge == Qt::TopEdge || edge == Qt::BottomEdge ? rect.height() : rect.width();
}

QRect grownAt(Qt::Edge edge, const QRect &rect, int by)
{
    return rect.adjusted(edge == Qt::LeftEdge ? -by : 0, edge == Qt::TopEdge ? -by : 0,
                         edge == Qt::RightEdge ? by : 0, edge == Qt::BottomEdge ? by : 0);
}

/// No pen where the outlines of the base style are to do.
QPen outlinePen(const QStyleOption &option, double width)
{
    const QPalette &palette = option.palette;
    const QColor window = palette.color(QPalette::Window);
    if (!option.state.testFlag(QStyle::State_Enabled))
        return QPen(apartFrom(window, palette.color(QPalette::WindowText), kVisible), width,
                    Qt::DashLine, Qt::FlatCap);
    const QColor color = palette.color(QPalette::Mid);
    if (contrastOf(color, window) < kVisible)
        return Qt::NoPen;
    if (option.state.testFlag(QStyle::State_HasFocus))
        return QPen(palette.color(QPalette::Highlight), 2 * width);
    return QPen(color, width);
}

QBrush buttonBrush(const QStyleOption &option)
{
    const QColor button = option.palette.color(QPalette::Button);
    const bool isPressed = option.state & (QStyle::State_Sunken | QStyle::State_On);
    return isPressed ? between(button, option.palette.color(QPalette::ButtonText), kVeil) : button;
}

/// The part of the control that gets an outline, or none.
QStyle::SubControl outlinedPart(QStyle::ComplexControl control, const QStyleOptionComplex &option)
{
    const auto ifDrawn = [&option](QStyle::SubControl part, bool isFramed = true) {
        return isFramed && option.subControls.testFlag(part) ? part : QStyle::SC_None;
    };
    if (const auto *const box = qstyleoption_cast<const QStyleOptionSpinBox *>(&option))
        return ifDrawn(QStyle::SC_SpinBoxFrame, box->frame);
    if (const auto *const box = qstyleoption_cast<const QStyleOptionComboBox *>(&option))
        return ifDrawn(QStyle::SC_ComboBoxFrame, box->frame);
    if (control == QStyle::CC_Slider)
        return ifDrawn(QStyle::SC_SliderHandle);
    return control == QStyle::CC_ScrollBar ? ifDrawn(QStyle::SC_ScrollBarSlider) : QStyle::SC_None;
}

QFont boldened(QFont font)
{
    font.setBold(true);
    return font;
}

QFontMetrics fontMetricsFor(const QStyleOption *option, const QWidget *widget)
{
    if (option)
        return option->fontMetrics;
    return widget ? widget->fontMetrics() : QFontMetrics(QApplication::font());
}

} // namespace

PanelStyle::PanelStyle(QStyle *base)
    : QProxyStyle(base)
{
}

PanelStyle::~PanelStyle() = default;

void PanelStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element != CE_ShapedFrame || !frame || frame->frameShape != QFrame::HLine) {
        QProxyStyle::drawControl(element, option, painter, widget);
        const auto *const tab = qstyleoption_cast<const QStyleOptionTab *>(option);
        if (element == CE_TabBarTabShape && tab)
            drawTabOutline(*tab, painter, widget);
        return;
    }
    QStyleOptionFrame soft(*frame);
    soft.palette.setColor(QPalette::WindowText, soft.palette.color(QPalette::Mid));
    QProxyStyle::drawControl(element, &soft, painter, widget);
}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    const bool isButton = element == PE_PanelButtonCommand || element == PE_PanelButtonTool;
    if (element == PE_IndicatorCheckBox && isDisclosure(widget)) {
        UI::drawDisclosureTriangle(painter, option->rect, option->state & State_On,
                                   option->direction, option->palette.color(QPalette::WindowText));
    } else if (isButton && isRound(widget)) {
        drawOutline(Shape::Round, option->rect, *option, painter, widget, buttonBrush(*option));
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (const std::optional<Shape> shape = shapeOf(element, widget))
            drawOutline(*shape, option->rect, *option, painter, widget);
    }
}

void PanelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto rectOf = [this, control, option, widget](SubControl part) {
        return proxy()->subControlRect(control, option, part, widget);
    };
    if (control == CC_Slider && option->subControls.testFlag(SC_SliderGroove)) {
        painter->save();
        const bool hasHandle = option->subControls.testFlag(SC_SliderHandle);
        const QRect handle = hasHandle ? rectOf(SC_SliderHandle) : QRect();
        painter->setClipRegion(QRegion(option->rect).subtracted(handle), Qt::IntersectClip);
        drawOutline(Shape::Round, rectOf(SC_SliderGroove), *option, painter, widget);
        painter->restore();
    }
    const SubControl part = outlinedPart(control, *option);
    const bool isField = control == CC_SpinBox || control == CC_ComboBox;
    if (part != SC_None)
        drawOutline(Shape::Box, isField ? option->rect : rectOf(part), *option, painter, widget);
}

int PanelStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const
{
    const int base = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return std::max(base, fontMetricsFor(option, widget).ascent());
    default:
        return base;
    }
}

void PanelStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    // A font that the host or a hint has set for this very widget stays.
    if (isDisclosure(widget) && !widget->testAttribute(Qt::WA_SetFont)) {
        widget->setFont(boldened(widget->font()));
        widget->setProperty(kBoldProperty, true);
    }
}

void PanelStyle::unpolish(QWidget *widget)
{
    if (widget->property(kBoldProperty).toBool()) {
        const QWidget *const parent = widget->parentWidget();
        const QFont inherited = parent ? parent->font() : QApplication::font(widget);
        if (widget->font() == boldened(inherited)) // else the host has given it another one since
            widget->setFont(QFont());
        widget->setProperty(kBoldProperty, QVariant());
    }
    QProxyStyle::unpolish(widget);
}

/// What gets an outline, if it does.
std::optional<PanelStyle::Shape> PanelStyle::shapeOf(PrimitiveElement element,
                                                     const QWidget *widget)
{
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_FrameLineEdit:
    case PE_PanelButtonCommand:
    case PE_PanelButtonTool:
    case PE_FrameTabWidget:
        return Shape::Box;
    case PE_IndicatorRadioButton:
        return Shape::Round;
    case PE_Frame:
        return isScrollingField(widget) ? std::optional(Shape::Box) : std::nullopt;
    case PE_Widget: // of a DisclosureButton
        return isRound(widget) ? std::optional(Shape::Round) : std::nullopt;
    default:
        return std::nullopt;
    }
}

/// Open to the page. The current tab has a bar on the other side: it is not to be told by its colour
/// alone.
void PanelStyle::drawTabOutline(const QStyleOptionTab &option, QPainter *painter,
                                const QWidget *widget) const
{
    const int width = proxy()->pixelMetric(PM_DefaultFrameWidth, &option, widget);
    const Qt::Edge page = pageEdge(option.shape);
    painter->save();
    painter->setClipRect(option.rect, Qt::IntersectClip);
    drawOutline(Shape::Box, grownAt(page, option.rect, 2 * width), option, painter, widget);
    if (option.state.testFlag(State_Selected) && outlinePen(option, width).style() == Qt::SolidLine)
        painter->fillRect(grownAt(page, option.rect, kBar * width - thickness(page, option.rect)),
                          option.palette.color(QPalette::Highlight));
    painter->restore();
}

void PanelStyle::drawOutline(Shape shape, const QRect &rect, const QStyleOption &option,
                             QPainter *painter, const QWidget *widget, const QBrush &brush) const
{
    const double width = proxy()->pixelMetric(PM_DefaultFrameWidth, &option, widget);
    const QPen pen = outlinePen(option, width);
    if (pen.style() == Qt::NoPen && brush.style() == Qt::NoBrush)
        return;
    const double inset = pen.widthF() / 2;
    const QRectF line = QRectF(rect).adjusted(inset, inset, -inset, -inset);
    const double radius =
        shape == Shape::Round ? std::min(line.width(), line.height()) / 2 : kRadius * width;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(brush);
    if (pen.style() == Qt::DashLine) { // the base style's outline would fill the gaps
        painter->setPen(QPen(option.palette.color(QPalette::Window), pen.widthF()));
        painter->drawRoundedRect(line, radius, radius);
    }
    painter->setPen(pen);
    painter->drawRoundedRect(line, radius, radius);
    painter->restore();
}

} // namespace Tessark::PropertyHost
