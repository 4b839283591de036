#include "host/SearchMark_p.h"

#include <QEvent>
#include <QPainter>

namespace Tessark::PropertyHost {

namespace {

constexpr int kDistance = 2; // from the row
constexpr qreal kPenWidth = 2;
constexpr qreal kRadius = 3;

} // namespace

SearchMark::SearchMark(QWidget *page, QWidget *label, QWidget *field)
    : QWidget(page)
    , m_label(label)
    , m_field(field)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    for (QWidget *widget : {label, field}) {
        if (widget)
            widget->installEventFilter(this);
    }
    follow();
}

bool SearchMark::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        follow();
        return false;
    default:
        return false;
    }
}

void SearchMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kPenWidth));
    const qreal inset = kPenWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kRadius,
                            kRadius);
}

void SearchMark::follow()
{
    const bool isShown = m_field && !m_field->isHidden();
    setVisible(isShown);
    if (!isShown)
        return;
    QRect row = m_field->geometry();
    if (m_label)
        row |= m_label->geometry();
    setGeometry(row.adjusted(-kDistance, -kDistance, kDistance, kDistance));
    raise();
}

} // namespace Tessark::PropertyHost
