#include "host/NumberPreview_p.h"

#include <QToolTip>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

constexpr int kPadding = 3; // pixels

/// What the widgets around show of the widget, or all of it when they show nothing.
QRect seenPart(const QWidget &widget)
{
    QRect seen = widget.rect();
    for (const QWidget *around = &widget; !around->isWindow() && around->parentWidget();
         around = around->parentWidget()) {
        const QPoint start = widget.mapTo(around->parentWidget(), QPoint());
        seen &= around->parentWidget()->rect().translated(-start);
    }
    return seen.isEmpty() ? widget.rect() : seen;
}

} // namespace

NumberPreview::NumberPreview(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("numberPreview"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setTextFormat(Qt::PlainText); // it may quote what the user typed
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setFrameShape(QFrame::Box);
    setMargin(kPadding);
    hide();
}

/// What scrolls shows a part of its widget only.
void NumberPreview::showAt(const QWidget &field, const QString &text)
{
    setText(text);
    const QWidget &parent = *parentWidget();
    const QRect seen = seenPart(parent);
    setWordWrap(false);
    setWordWrap(sizeHint().width() > seen.width());
    const QSize wanted =
        wordWrap() ? QSize(seen.width(), heightForWidth(seen.width())) : sizeHint();
    const QSize size = wanted.boundedTo(seen.size());
    const QPoint start = field.mapTo(&parent, QPoint(0, 0));
    const int below = start.y() + field.height();
    const bool fitsBelow = below + size.height() <= seen.bottom() + 1;
    const int x = std::clamp(start.x(), seen.left(), seen.right() + 1 - size.width());
    const int y = fitsBelow ? below : std::max(start.y() - size.height(), seen.top());
    setGeometry(QRect(QPoint(x, y), size));
    raise();
    show();
}

} // namespace Tessark::PropertyHost
