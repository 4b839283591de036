#include "PanelStyle.h"

#include <QCheckBox>
#include <QStyleOption>

namespace Tessark::PropertyPanel {

namespace {

constexpr float kLineOpacity = 0.3F;

bool isDisclosure(const QWidget *widget)
{
    return qobject_cast<const QCheckBox *>(widget) && widget->property("disclosure").toBool();
}

} // namespace

PanelStyle::PanelStyle(QStyle *base)
    : QProxyStyle(base)
{
}

void PanelStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element != CE_ShapedFrame || !frame || frame->frameShape != QFrame::HLine) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionFrame soft(*frame);
    QColor color = soft.palette.color(QPalette::WindowText);
    color.setAlphaF(kLineOpacity);
    soft.palette.setColor(QPalette::WindowText, color);
    QProxyStyle::drawControl(element, &soft, painter, widget);
}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    if (element != PE_IndicatorCheckBox || !isDisclosure(widget)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const bool open = option->state & State_On;
    const PrimitiveElement closed =
        option->direction == Qt::RightToLeft ? PE_IndicatorArrowLeft : PE_IndicatorArrowRight;
    QProxyStyle::drawPrimitive(open ? PE_IndicatorArrowDown : closed, option, painter, widget);
}

void PanelStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    // A font that the host or a hint has set for this very widget stays.
    if (isDisclosure(widget) && !widget->testAttribute(Qt::WA_SetFont)) {
        QFont font = widget->font();
        font.setBold(true);
        widget->setFont(font);
    }
}

} // namespace Tessark::PropertyPanel
