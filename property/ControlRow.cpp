#include "property/ControlRow_p.h"

#include <QWidget>

namespace Tessark::PropertyUI {

namespace {

/// A widget without any wish but its size hint and its policy.
bool isPlainItem(QLayoutItem &item)
{
    const QWidget *const widget = item.widget();
    return widget && !item.isEmpty() && !item.hasHeightForWidth()
           && widget->sizePolicy().horizontalStretch() == 0;
}

} // namespace

ControlRow::ControlRow(QWidget *parent)
    : QHBoxLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

void ControlRow::invalidate()
{
    m_isKnown = false;
    QHBoxLayout::invalidate();
    if (QWidget *const widget = parentWidget())
        widget->updateGeometry();
}

void ControlRow::setGeometry(const QRect &rect)
{
    if (!m_isKnown) {
        m_sharing = findSharing();
        m_isKnown = true;
    }
    const bool isShared = m_sharing.growing >= 0 && rect.width() >= m_sharing.least
                          && rect.width() <= m_sharing.most && !alignment();
    if (!isShared) {
        QHBoxLayout::setGeometry(rect);
        return;
    }
    const QRect before = geometry();
    if (rect == before)
        return;
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): that of the parent would weigh and place them
    QLayout::setGeometry(rect);
    place(rect, rect.right() > before.right());
}

ControlRow::Sharing ControlRow::findSharing() const
{
    Sharing sharing;
    if (!isPlain())
        return sharing;
    int growing = -1;
    sharing.spacing = spacing();
    sharing.fixedWidth = sharing.spacing * (count() - 1);
    for (int i = 0; i < count(); ++i) {
        QLayoutItem &item = *itemAt(i);
        const bool grows = item.expandingDirections() & Qt::Horizontal;
        if (!isPlainItem(item) || stretch(i) != 0 || (grows && growing >= 0))
            return sharing;
        if (grows)
            growing = i;
        else
            sharing.fixedWidth += item.sizeHint().width();
    }
    if (growing < 0)
        return sharing;
    const int hint = itemAt(growing)->sizeHint().width();
    const int maximum = itemAt(growing)->maximumSize().width();
    if (maximum <= hint)
        return sharing;
    sharing.least = sharing.fixedWidth + hint;
    sharing.most = sharing.fixedWidth + maximum;
    sharing.growing = growing;
    return sharing;
}

bool ControlRow::isPlain() const
{
    return direction() == LeftToRight && contentsMargins().isNull() && spacing() >= 0;
}

int ControlRow::widthOf(int index, int rowWidth) const
{
    return index == m_sharing.growing ? rowWidth - m_sharing.fixedWidth
                                      : itemAt(index)->sizeHint().width();
}

/// The one that makes room for another goes first, as with Qt.
void ControlRow::place(const QRect &rect, bool growsToTheRight)
{
    const bool mirrored = parentWidget() && parentWidget()->isRightToLeft();
    const bool lastFirst = growsToTheRight != mirrored;
    const int last = count() - 1;
    int x = lastFirst ? rect.width() : 0;
    for (int n = 0; n <= last; ++n) {
        const int index = lastFirst ? last - n : n;
        const int width = widthOf(index, rect.width());
        if (lastFirst)
            x -= width;
        const int left = rect.left() + (mirrored ? rect.width() - x - width : x);
        itemAt(index)->setGeometry(QRect(left, rect.top(), width, rect.height()));
        x += lastFirst ? -m_sharing.spacing : width + m_sharing.spacing;
    }
}

} // namespace Tessark::PropertyUI
