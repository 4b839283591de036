#include "host/LabelElider_p.h"

#include "host/LabelPlaces_p.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QTextDocument> // Qt::convertFromPlainText()
#include <QToolTip>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

bool canBeElided(const QLabel &label)
{
    const Qt::TextInteractionFlags selectable =
        Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard | Qt::TextEditable;
    return showsPlainText(label) && !label.text().isEmpty() && !label.wordWrap()
           && !(label.textInteractionFlags() & selectable);
}

bool isCutOff(const QLabel &label)
{
    return label.width() < label.sizeHint().width() && canBeElided(label);
}

Qt::LayoutDirection directionOf(const QLabel &label)
{
    return label.text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

Qt::Alignment alignmentOf(const QLabel &label)
{
    return QStyle::visualAlignment(directionOf(label), label.alignment());
}

QRect textRectOf(const QLabel &label)
{
    const int margin = label.margin();
    const int indent = std::max(label.indent(), 0);
    const Qt::Alignment alignment = alignmentOf(label);
    return label.contentsRect()
        .adjusted(margin, margin, -margin, -margin)
        .adjusted(alignment & Qt::AlignLeft ? indent : 0, 0,
                  alignment & Qt::AlignRight ? -indent : 0, 0);
}

QString elidedText(const QLabel &label, int flags)
{
    const int width = textRectOf(label).width();
    QStringList lines = label.text().split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = label.fontMetrics().elidedText(line, Qt::ElideRight, width, flags);
    return lines.join(QLatin1Char('\n'));
}

QStyleOptionFrame frameOf(const QLabel &label)
{
    QStyleOptionFrame frame;
    frame.initFrom(&label);
    frame.frameShape = label.frameShape();
    frame.lineWidth = label.lineWidth();
    frame.midLineWidth = label.midLineWidth();
    if (label.frameShadow() == QFrame::Sunken)
        frame.state |= QStyle::State_Sunken;
    else if (label.frameShadow() == QFrame::Raised)
        frame.state |= QStyle::State_Raised;
    return frame;
}

} // namespace

LabelElider::LabelElider(const PanelRows &rows, QWidget *panel)
    : QObject(panel)
{
    for (const PanelRow &row : rows.all()) {
        if (row.label)
            row.label->installEventFilter(this);
    }
}

bool LabelElider::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint && event->type() != QEvent::ToolTip)
        return false;
    auto &label = *static_cast<QLabel *>(watched);
    if (!isCutOff(label))
        return false;
    if (event->type() == QEvent::Paint)
        paint(label);
    else
        showToolTip(label, *static_cast<QHelpEvent *>(event));
    return true;
}

/// As a label paints itself, but for the text.
void LabelElider::paint(QLabel &label)
{
    QStylePainter painter(&label);
    painter.drawControl(QStyle::CE_ShapedFrame, frameOf(label));
    const int mnemonic = label.buddy() ? Qt::TextShowMnemonic : 0;
    const int direction =
        directionOf(label) == Qt::RightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter.drawItemText(textRectOf(label), int(alignmentOf(label)) | direction | mnemonic,
                         label.palette(), label.isEnabled(), elidedText(label, mnemonic),
                         label.foregroundRole());
}

void LabelElider::showToolTip(QLabel &label, const QHelpEvent &event)
{
    QString text = Qt::convertFromPlainText(label.text(), Qt::WhiteSpaceNormal);
    const QString more = label.toolTip();
    if (!more.isEmpty())
        text += Qt::mightBeRichText(more) ? more : Qt::convertFromPlainText(more);
    QToolTip::showText(event.globalPos(), text, &label);
}

} // namespace Tessark::PropertyHost
