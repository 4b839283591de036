#include "DisclosureStyle.h"

#include <QCheckBox>
#include <QStyleOption>

namespace Tessark::PropertyPanel {

namespace {

bool isDisclosure(const QWidget *widget)
{
    return qobject_cast<const QCheckBox *>(widget) && widget->property("disclosure").toBool();
}

} // namespace

DisclosureStyle::DisclosureStyle(QStyle *base)
    : QProxyStyle(base)
{
}

void DisclosureStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
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

void DisclosureStyle::polish(QWidget *widget)
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
