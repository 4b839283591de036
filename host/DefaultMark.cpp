#include "host/DefaultMark_p.h"

#include <QPainter>
#include <QPolygonF>

namespace Tessark::PropertyHost {

namespace {

constexpr int kSide = 14;
constexpr qreal kRadius = 3.5;
constexpr qreal kRadiusUnderPointer = 4.5;
constexpr qreal kBarWidth = 2;
constexpr qreal kBarWidthUnderPointer = 3;

} // namespace

DefaultMark::DefaultMark(const QString &label, QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setToolTip(tr("Set to Default"));
    setAccessibleName(label.isEmpty() ? tr("Set to Default") : tr("Set %1 to Default").arg(label));
}

void DefaultMark::setShape(Shape shape)
{
    m_shape = shape;
    update();
}

QSize DefaultMark::sizeHint() const
{
    return {kSide, kSide};
}

void DefaultMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color());
    const bool isPointedAt = isEnabled() && underMouse();
    const QRectF area = rect();
    if (m_shape == Shape::Bar) {
        const qreal width = isPointedAt ? kBarWidthUnderPointer : kBarWidth;
        painter.drawRect(QRectF(area.center().x() - width / 2, 0, width, area.height()));
        return;
    }
    const qreal radius = isPointedAt ? kRadiusUnderPointer : kRadius;
    const QPointF center = area.center();
    painter.drawPolygon(QPolygonF{{center + QPointF(0, -radius), center + QPointF(radius, 0),
                                   center + QPointF(0, radius), center + QPointF(-radius, 0)}});
}

/// That of the texts around it when pressed, and of what is chosen otherwise.
QColor DefaultMark::color() const
{
    if (!isEnabled())
        return palette().color(QPalette::Disabled, QPalette::WindowText);
    return palette().color(isDown() ? QPalette::WindowText : QPalette::Highlight);
}

} // namespace Tessark::PropertyHost
