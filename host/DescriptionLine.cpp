#include "host/DescriptionLine_p.h"

#include "host/RowHelp_p.h"

#include <property/Property.h>

#include <QApplication>
#include <QHoverEvent>

#include <utility>

namespace Tessark::PropertyHost {

namespace {

constexpr int kLines = 3; // the label and two of help; the tool tip has all of it
constexpr int kMargin = 4;

} // namespace

DescriptionLine::DescriptionLine(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::RichText);
    setWordWrap(true);
    setMargin(kMargin);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(qApp, &QApplication::focusChanged, this, &DescriptionLine::focusMoved);
}

void DescriptionLine::follow(std::shared_ptr<const PanelRows> rows, QWidget *panel)
{
    watchPointer(false);
    m_rows = std::move(rows);
    m_panel = panel;
    m_hovered = -1;
    watchPointer(isVisible());
    focusMoved();
}

void DescriptionLine::showHelp()
{
    const int row = m_hovered >= 0 ? m_hovered : m_focused;
    if (!m_panel || row < 0) {
        clear();
        return;
    }
    const PropertyUI::Property &property = *m_rows->at(row).property;
    const QString help = helpOf(property).toHtmlEscaped();
    setText(QStringLiteral("<b>%1</b><br>%2")
                .arg(property.label.toHtmlEscaped(),
                     QString(help).replace(QLatin1Char('\n'), QLatin1String("<br>"))));
}

/// Always as high, so that the rows do not move with the pointer.
QSize DescriptionLine::sizeHint() const
{
    return {0, kLines * fontMetrics().lineSpacing() + 2 * kMargin};
}

QSize DescriptionLine::minimumSizeHint() const
{
    return sizeHint();
}

/// A label whose text is wrapped is asked for this rather than for its sizes.
int DescriptionLine::heightForWidth(int) const
{
    return sizeHint().height();
}

bool DescriptionLine::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::HoverMove || event->type() == QEvent::HoverEnter) {
        const QPoint position = static_cast<QHoverEvent *>(event)->pos();
        pointerMoved(m_rows->indexAround(static_cast<QWidget *>(watched)->childAt(position)));
    } else if (event->type() == QEvent::HoverLeave) {
        pointerMoved(-1);
    }
    return false;
}

void DescriptionLine::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    watchPointer(true);
    focusMoved();
}

void DescriptionLine::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    watchPointer(false);
}

void DescriptionLine::watchPointer(bool watch)
{
    if (!m_panel)
        return;
    m_panel->removeEventFilter(this);
    if (!watch)
        return;
    // Hover events tell of the pointer over what the panel has inside, too.
    m_panel->setAttribute(Qt::WA_Hover);
    m_panel->installEventFilter(this);
}

void DescriptionLine::focusMoved()
{
    const QWidget *const focused = QApplication::focusWidget();
    const bool isInside = m_panel && focused && m_panel->isAncestorOf(focused);
    m_focused = isInside ? m_rows->indexAround(focused) : -1;
    showHelp();
}

void DescriptionLine::pointerMoved(int row)
{
    if (std::exchange(m_hovered, row) != row)
        showHelp();
}

} // namespace Tessark::PropertyHost
