#include "testing/WheelDragging_p.h"

#include "testing/Hand_p.h"
#include "testing/Reach_p.h"
#include "testing/ValueText_p.h"
#include "testing/WheelTrack_p.h"

#include <core/ColorWheel.h>

#include <QPointer>

namespace Tessark::PropertyTest {

using UI::Hsv;
using UI::WheelPart;

namespace {

bool isFraction(double number)
{
    return number >= 0 && number <= 1;
}

QString textOf(const Hsv &color, WheelPart part)
{
    return part == WheelPart::ValueRing
               ? valueText(color.value)
               : valueText(color.hue) + QLatin1Char(' ') + valueText(color.saturation);
}

void moveAlong(UI::ColorWheel *wheel, const QVector<QPoint> &way)
{
    Pointer pointer(wheel, way.first());
    const QPoint start = pointer.position();
    pointer.moveTo(start);
    pointer.press();
    for (int i = 1; i < way.size() && way.last() != way.first(); ++i)
        pointer.moveTo(start + way.at(i) - way.first());
    pointer.release();
}

} // namespace

QString dragWheel(QWidget *field, const WheelAim &aim, int movements)
{
    const QPointer<UI::ColorWheel> wheel = field->findChild<UI::ColorWheel *>();
    const bool isRing = aim.part == WheelPart::ValueRing;
    if (!wheel || !WheelTrack(*wheel, aim.part).isThere())
        return QStringLiteral("It has no %1").arg(QLatin1String(isRing ? "ring" : "wheel"));
    const Hsv &wanted = aim.color;
    if (!isFraction(wanted.hue) || !isFraction(wanted.saturation) || !isFraction(wanted.value))
        return QStringLiteral("Its wheel goes from 0 to 1");
    const WheelTrack track(*wheel, aim.part);
    const QVector<QPoint> way = track.wayTo(wanted, movements);
    QString obstacle = reach(wheel, way.first());
    if (!obstacle.isEmpty())
        return obstacle;
    const Hsv reached = track.colorAfter(way);
    if (aim.aim == PanelUser::Aim::Exact && !track.isShownAs(reached, wanted)) {
        return QStringLiteral("No pixel of its wheel means %1; the nearest is %2")
            .arg(textOf(wanted, aim.part), textOf(reached, aim.part));
    }
    moveAlong(wheel, way);
    settle();
    if (!wheel || track.isPlacedAs(WheelTrack(*wheel, aim.part).color(), reached))
        return QString();
    return QStringLiteral("It is %1 afterwards")
        .arg(textOf(WheelTrack(*wheel, aim.part).color(), aim.part));
}

} // namespace Tessark::PropertyTest
