#include "host/NumberPreview_p.h"

#include <QToolTip>

#include <algorithm>

namespace Tessark::PropertyHost {

namespace {

constexpr int kPadding = 3; // pixels

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

void NumberPreview::showAt(const QWidget &field, const QString &text)
{
    setText(text);
    const QWidget &parent = *parentWidget();
    const QSize size = sizeHint().boundedTo(parent.size());
    const QPoint start = field.mapTo(&parent, QPoint(0, 0));
    const int below = start.y() + field.height();
    const bool fitsBelow = below + size.height() <= parent.height();
    const int x = std::clamp(start.x(), 0, parent.width() - size.width());
    const int y = fitsBelow ? below : std::max(start.y() - size.height(), 0);
    setGeometry(QRect(QPoint(x, y), size));
    raise();
    show();
}

} // namespace Tessark::PropertyHost
