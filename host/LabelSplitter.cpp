#include "host/LabelSplitter_p.h"

#include <property/PropertyLayout.h>

#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using PropertyUI::PropertyLayout;

namespace {

constexpr int kSmallestLabelWidth = 24;
constexpr int kReach = 2; // above and below a row, so that the gaps between rows belong to it

/// What lies between label and field, in their page.
QRect gapOf(const PanelRow &row)
{
    const QRect label = row.label->geometry();
    const QRect field = row.field->geometry();
    const QRect both = label.united(field).adjusted(0, -kReach, 0, kReach);
    const int left = std::min(label.right(), field.right()) + 1;
    const int right = std::max(label.left(), field.left());
    return {left, both.top(), right - left, both.height()};
}

} // namespace

LabelSplitter::LabelSplitter(std::shared_ptr<const PanelRows> rows, QWidget *panel)
    : QObject(panel)
    , m_rows(std::move(rows))
    , m_panel(panel)
{
}

void LabelSplitter::setMovable(bool movable)
{
    if (m_isMovable == movable)
        return;
    m_isMovable = movable;
    m_drag.reset();
    const QVector<QWidget *> pages = m_rows->pages();
    for (QWidget *page : pages) {
        if (movable) {
            // The page is told of the pointer over what it has inside, too, which would else keep
            // the cursor of the gap.
            page->setAttribute(Qt::WA_Hover);
            page->installEventFilter(this);
        } else {
            page->removeEventFilter(this);
            page->unsetCursor();
        }
    }
}

void LabelSplitter::setLabelWidth(std::optional<int> width)
{
    m_labelWidth = width;
    const QVector<QWidget *> pages = m_rows->pages();
    for (QWidget *page : pages) {
        if (auto *const layout = qobject_cast<PropertyLayout *>(page->layout()))
            layout->setLabelWidth(width.value_or(-1));
    }
    Q_EMIT moved();
}

QRect LabelSplitter::shownGap() const
{
    const PanelRow *const row = shownRow();
    if (!row)
        return QRect();
    const QRect gap = gapOf(*row);
    return QRect(row->label->parentWidget()->mapTo(m_panel, gap.topLeft()), gap.size());
}

int LabelSplitter::shownWidth() const
{
    const PanelRow *const row = shownRow();
    return row ? widthOf(*row->label->parentWidget()) : 0;
}

int LabelSplitter::smallestWidth() const
{
    return std::min(kSmallestLabelWidth, shownWidth());
}

int LabelSplitter::widestWidth() const
{
    return widestOf(shownWidth());
}

void LabelSplitter::moveTo(int width)
{
    if (shownRow())
        setLabelWidth(std::max(std::min(width, widestWidth()), kSmallestLabelWidth));
}

bool LabelSplitter::eventFilter(QObject *watched, QEvent *event)
{
    auto &page = *static_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::HoverMove:
        if (!m_drag)
            showCursor(page, isOverGap(page, static_cast<QHoverEvent *>(event)->pos()));
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return mousePressed(page, *static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        if (m_drag)
            mouseMoved(page, *static_cast<QMouseEvent *>(event));
        return m_drag.has_value();
    case QEvent::MouseButtonRelease:
        return std::exchange(m_drag, std::nullopt).has_value();
    default:
        return false;
    }
}

/// On the page that is in view, if there are several.
const PanelRow *LabelSplitter::shownRow() const
{
    const auto &rows = m_rows->all();
    const auto found = std::find_if(rows.cbegin(), rows.cend(), [this](const PanelRow &row) {
        return m_panel && row.label && row.field && row.label->isVisibleTo(m_panel);
    });
    return found == rows.cend() ? nullptr : &*found;
}

bool LabelSplitter::isOverGap(const QWidget &page, const QPoint &position) const
{
    const auto &rows = m_rows->all();
    return std::any_of(rows.cbegin(), rows.cend(), [&page, &position](const PanelRow &row) {
        if (!row.label || !row.field || row.field->parentWidget() != &page || row.field->isHidden())
            return false;
        return gapOf(row).contains(position);
    });
}

void LabelSplitter::showCursor(QWidget &page, bool overGap)
{
    if (overGap)
        page.setCursor(Qt::SplitHCursor);
    else
        page.unsetCursor();
}

bool LabelSplitter::mousePressed(QWidget &page, const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || !isOverGap(page, event.pos()))
        return false;
    if (event.type() == QEvent::MouseButtonDblClick) {
        m_drag.reset();
        setLabelWidth(std::nullopt);
        return true;
    }
    const int width = widthOf(page);
    m_drag = Drag{event.pos().x(), width, widestOf(width)};
    return true;
}

void LabelSplitter::mouseMoved(const QWidget &page, const QMouseEvent &event)
{
    const int moved = event.pos().x() - m_drag->from;
    const int wanted = m_drag->width + (page.isRightToLeft() ? -moved : moved);
    setLabelWidth(std::max(std::min(wanted, m_drag->widest), kSmallestLabelWidth));
}

/// The width of the labels on the page as it is shown.
int LabelSplitter::widthOf(const QWidget &page) const
{
    if (m_labelWidth)
        return *m_labelWidth;
    int width = 0;
    for (const PanelRow &row : m_rows->all()) {
        if (row.label && row.label->parentWidget() == &page && !row.label->isHidden())
            width = std::max(width, row.label->width());
    }
    return width;
}

/// What labels of such a width may grow to before the fields have no room left.
int LabelSplitter::widestOf(int width) const
{
    const QWidget *const view = m_panel ? m_panel->parentWidget() : nullptr;
    return width + (view ? std::max(view->width() - m_panel->minimumWidth(), 0) : 0);
}

} // namespace Tessark::PropertyHost
