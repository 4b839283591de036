#include "core/WheelView_p.h"

#include "core/ColorWheel.h"
#include "core/ColorWheelInterface_p.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace Tessark::UI {

WheelView::WheelView(ColorWheel *wheelOfView)
    : wheel(wheelOfView)
{
}

WheelGeometry WheelView::geometry() const
{
    return wheelGeometry(displayMode, wheel->size());
}

void WheelView::show(const Hsv &newHsv)
{
    const Hsv oldHsv = hsv;
    hsv = newHsv;
    if (hsv == oldHsv)
        return;
    const WheelTrace trace = traceOf(geometry(), hsv, wheel->devicePixelRatioF());
    if (trace != lastTrace) {
        lastTrace = trace;
        wheel->update();
    }
    tellAssistance(wheel, oldHsv, hsv);
}

void WheelView::paint(QPainter *painter)
{
    QStyleOption option;
    option.initFrom(wheel);
    wheel->style()->drawPrimitive(QStyle::PE_Widget, &option, painter, wheel);
    const WheelGeometry shape = geometry();
    const bool hasKeyFocus = option.state.testFlag(QStyle::State_HasFocus)
                             && option.state.testFlag(QStyle::State_KeyboardFocusChange);
    paintWheel(painter, shape,
               {hsv, wheel->isEnabled(), hasKeyFocus, option.palette.color(QPalette::Mid),
                option.palette.color(QPalette::Highlight)},
               &images);
    lastTrace = traceOf(shape, hsv, wheel->devicePixelRatioF());
}

} // namespace Tessark::UI
