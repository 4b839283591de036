#include "property/PropertyLayout.h"

#include "property/ControlRow_p.h"

#include <QChildEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <limits>
#include <typeinfo>

namespace Tessark::PropertyUI {

namespace {

constexpr int kContentsMargin = 4;
constexpr int kGroupIndent = 16;
constexpr int kUnboundedRowHeight = 10000;
constexpr QRect kMeasuringRect(0, 0, 100, 100);

/// Sums of sizes are made in 64 bits, so that very many very large items cannot overflow.
int saturated(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

/// The minimum wins over the maximum.
int bounded(int minimum, int value, int maximum)
{
    return std::max(std::min(value, maximum), minimum);
}

/// The rectangle, cut off where its edges leave the range of int.
QRect rectangle(qint64 x, qint64 y, int width, int height)
{
    QRect result;
    result.setCoords(saturated(x), saturated(y), saturated(x + width - 1),
                     saturated(y + height - 1));
    return result;
}

int groupIndent(qint64 depth)
{
    // The top group level is not indented, each deeper one adds a step.
    return saturated(std::max<qint64>(kGroupIndent * (depth - 1), 0));
}

/// One of count equal shares; all of it where more items ask than were counted.
qint64 equalShare(qint64 spare, int count)
{
    return count > 0 ? spare / count : spare;
}

/// Takes the item of a widget out of the layout or a nested one. The widget may be half destroyed.
bool removeWidgetItem(QLayout *layout, const QObject *widget)
{
    QLayoutItem *item = nullptr;
    for (int i = 0; (item = layout->itemAt(i)); ++i) {
        if (item->widget() == widget) {
            delete layout->takeAt(i);
            layout->invalidate();
            return true;
        }
        if (item->layout() && removeWidgetItem(item->layout(), widget))
            return true;
    }
    return false;
}

bool hasMaximum(const QWidget &widget)
{
    return widget.maximumSize() != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

bool growsHorizontally(const QWidget &widget)
{
    return widget.sizePolicy().horizontalPolicy() & QSizePolicy::GrowFlag;
}

bool growsVertically(const QWidget &widget)
{
    return widget.sizePolicy().verticalPolicy() & QSizePolicy::GrowFlag;
}

/// The item of a row's widget. A QWidgetItem asks its widget for both size hints to find the maximum
/// size, for each layout pass and each move, and needs them for none that may grow without bound.
class RowItem final : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    QSize maximumSize() const override
    {
        const bool isBoundless = growsHorizontally(*wid) && growsVertically(*wid)
                                 && !hasMaximum(*wid) && !alignment() && !isEmpty();
        return isBoundless ? wid->maximumSize() : QWidgetItem::maximumSize();
    }
};

/// Whether the item is of exactly that class.
template <typename Item>
bool isOfClass(const QLayoutItem &item)
{
    return typeid(item) == typeid(Item);
}

/// Whether the widget always tells of a change of its size hints: labels and line edits of Qt do, and so
/// does a row of controls.
bool tellsOfItsHints(const QWidget &widget)
{
    const std::type_info &type = typeid(widget);
    return type == typeid(QLabel) || type == typeid(QLineEdit)
           || (type == typeid(QWidget) && dynamic_cast<const ControlRow *>(widget.layout()));
}

/// An item that asks widget for its size hints with each pass, for a widget may change them without a
/// word. The items of those that tell keep the hints until then.
QWidgetItem *makeRowItem(QWidget *widget)
{
    if (tellsOfItsHints(*widget))
        return new QWidgetItemV2(widget);
    return new RowItem(widget);
}

/// Lets widgets that leave their parent leave the layout too. A layout does that itself, but not
/// while it is disabled, and would keep the item of a deleted widget.
class LeavingWidgets final : public QObject
{
public:
    explicit LeavingWidgets(QLayout *layout)
        : m_layout(layout)
    {
        if (QWidget *parent = layout->parentWidget())
            parent->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (m_layout && event->type() == QEvent::ChildRemoved)
            removeWidgetItem(m_layout, static_cast<QChildEvent *>(event)->child());
        return false;
    }

private:
    const QPointer<QLayout> m_layout;
};

} // namespace

struct PropertyLayout::Measure
{
    int labelWidth = 0;
    qint64 fieldWidth = 0;
    qint64 fixedHeight = 0;
    int expandingRows = 0;
    qint64 spareHeight = 0;
};

struct PropertyLayout::Row
{
    std::size_t first = 0;
    std::size_t last = 0;
    qint64 fixedWidth = 0; // width already spoken for
    int expandCount = 0;   // items that still share the spare width
    int height = 0;
    int heightFloor = 0;
    int heightCap = kUnboundedRowHeight;
    bool expandsVertically = false;
};

/// Where a row goes, as if it were read from left to right.
struct PropertyLayout::RowPlace
{
    qint64 left = 0;
    qint64 top = 0;
    int labelWidth = 0;
    qint64 fullWidth = 0;                  // of the whole layout, margins included
    bool mirrored = false;                 // within fullWidth
    QPointer<const PropertyLayout> layout; // null once a host deleted it
};

bool PropertyLayout::Entry::expandsHorizontally() const
{
    if (options & ExpandHorizontal)
        return true;
    const QWidget *widget = item->widget();
    return widget && widget->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
}

/// Whether the item's size hint is sure to lie between its minimum and its maximum: it is a RowItem,
/// whose widget has neither a maximum size nor an ignored hint.
bool PropertyLayout::Entry::hintIsWithinBounds() const
{
    if (!isRowItem || item->alignment())
        return false;
    const QWidget &widget = *item->widget();
    const QSizePolicy policy = widget.sizePolicy();
    return !hasMaximum(widget) && policy.horizontalPolicy() != QSizePolicy::Ignored
           && policy.verticalPolicy() != QSizePolicy::Ignored;
}

bool PropertyLayout::Entry::expandsVertically() const
{
    if (options & ExpandVertical)
        return true;
    const QWidget *widget = item->widget();
    return widget && widget->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
}

PropertyLayout::PropertyLayout(QWidget *parent, int margin, int spacing)
    : QLayout(parent)
{
    QLayout::setContentsMargins(margin, margin, margin, margin);
    initialise(spacing);
}

PropertyLayout::PropertyLayout(int spacing)
{
    QLayout::setContentsMargins(0, 0, 0, 0);
    initialise(spacing);
}

void PropertyLayout::initialise(int spacing)
{
    QLayout::setSpacing(spacing);
    m_verticalSpacing = spacing;
    m_horizontalSpacing = spacing;
    // These win over the constructor's margin on purpose.
    QLayout::setContentsMargins(kContentsMargin, kContentsMargin, kContentsMargin, kContentsMargin);
}

PropertyLayout::~PropertyLayout()
{
    // A disabled layout does not search itself for every nested layout that leaves.
    setEnabled(false);
    // One by one, so that an item whose deletion deletes another finds that one still listed.
    while (const QLayoutItem *item = PropertyLayout::takeAt(0))
        delete item;
}

void PropertyLayout::addItem(QLayoutItem *item)
{
    addItem(item, LayoutOptions(), Qt::AlignCenter);
}

Qt::Orientations PropertyLayout::expandingDirections() const
{
    return {};
}

QSize PropertyLayout::minimumSize() const
{
    if (!m_cachedMinimumSize.isValid())
        m_cachedMinimumSize = doLayout(kMeasuringRect, true, SizeType::Minimum);
    return m_cachedMinimumSize;
}

void PropertyLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QPointer<PropertyLayout> self(this);
    const quint32 revision = m_revision;
    doLayout(rect, false, SizeType::Preferred);
    if (self && m_revision != revision)
        invalidate(); // placing ended early and has to be done anew
}

QLayoutItem *PropertyLayout::itemAt(int index) const
{
    if (index < 0 || index >= PropertyLayout::count())
        return nullptr;
    return m_items[static_cast<std::size_t>(index)].item;
}

QLayoutItem *PropertyLayout::takeAt(int index)
{
    // The size caches stay as they are: the panel adds all rows before it asks for sizes.
    QLayoutItem *item = PropertyLayout::itemAt(index);
    if (!item)
        return nullptr;
    m_items.erase(m_items.begin() + index);
    ++m_revision;
    // The caller owns a nested layout only when it is no longer a child of this one.
    if (QLayout *nested = item->layout(); nested && nested->parent() == this)
        nested->setParent(nullptr);
    return item;
}

int PropertyLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QSize PropertyLayout::sizeHint() const
{
    if (!m_cachedSizeHint.isValid())
        m_cachedSizeHint = doLayout(kMeasuringRect, true, SizeType::Preferred);
    return m_cachedSizeHint;
}

void PropertyLayout::addItem(QLayoutItem *item, LayoutOptions options, Qt::Alignment alignment)
{
    if (!item)
        return;
    // In this order on purpose: a full-width row keeps ExpandHorizontal, a label does not.
    if (options & NewRow)
        options &= ~LayoutOptions(ExpandHorizontal);
    if (options & FullWidth)
        options |= NewRow;
    if (const QWidget *widget = item->widget()) {
        if (widget->property("beginGroup").toBool())
            options |= BeginGroup;
        else if (widget->property("endGroup").toBool())
            options |= EndGroup;
    }
    const bool isRowItem = isOfClass<RowItem>(*item) || isOfClass<QWidgetItemV2>(*item);
    m_items.push_back({item, options, -1, -1, alignment, isRowItem, false, false});
    ++m_revision;
    m_cachedSizeHint = QSize();
    m_cachedMinimumSize = QSize();
    invalidate();
}

void PropertyLayout::addWidget(QWidget *widget, LayoutOptions options)
{
    addChildItem(widget, options);
}

void PropertyLayout::addLayout(QLayout *layout, LayoutOptions options)
{
    if (!layout)
        return;
    addChildLayout(layout);
    addItem(layout, options, Qt::AlignCenter);
}

void PropertyLayout::addRow(const QString &label, QWidget *field)
{
    addChildItem(new QLabel(label), NewRow);
    addChildItem(field, ExpandHorizontal);
}

void PropertyLayout::addRow(QWidget *widget)
{
    addChildItem(widget, FullWidth | ExpandHorizontal);
}

void PropertyLayout::addChildItem(QWidget *widget, LayoutOptions options)
{
    if (!widget)
        return;
    addChildWidget(widget);
    addItem(makeRowItem(widget), options, Qt::AlignCenter);
}

void PropertyLayout::setVerticalSpacing(int spacing)
{
    m_verticalSpacing = spacing;
}

void PropertyLayout::setHorizontalSpacing(int spacing)
{
    m_horizontalSpacing = spacing;
}

void PropertyLayout::setLabelWidth(int width)
{
    const int labelWidth = std::max(width, -1);
    if (m_labelWidth == labelWidth)
        return;
    m_labelWidth = labelWidth;
    m_cachedSizeHint = QSize();
    m_cachedMinimumSize = QSize();
    invalidate();
}

void PropertyLayout::setGroupVisible(QWidget *groupWidget, bool visible)
{
    const auto begin = std::find_if(m_items.begin(), m_items.end(), [groupWidget](const Entry &e) {
        return groupWidget && e.item->widget() == groupWidget;
    });
    if (begin == m_items.end())
        return;
    begin->options.setFlag(GroupCollapsed, !visible);

    // Showing a widget runs code of the host, which may add or take rows or delete the layout.
    const QPointer<PropertyLayout> self(this);
    auto i = static_cast<std::size_t>(begin - m_items.begin()) + 1;
    const LeavingWidgets leavingWidgets(this);
    setEnabled(false);
    int level = 1;
    while (self && i < m_items.size()) {
        const Entry &entry = m_items[i];
        if (entry.options & BeginGroup)
            ++level;
        else if ((entry.options & EndGroup) && --level == 0)
            break;
        QLayoutItem *const item = entry.item;
        if (QWidget *widget = item->widget())
            widget->setVisible(visible);
        if (self)
            i = indexAfter(item, i);
    }
    if (!self)
        return;
    setEnabled(true);
    invalidate();
}

QSize PropertyLayout::doLayout(const QRect &rect, bool testOnly, SizeType) const
{
    return arrange(rect, testOnly, nullptr);
}

QSize PropertyLayout::smallestSize() const
{
    // Without any room, each item takes what it cannot do without.
    qint64 right = 0;
    const int height = arrange(QRect(), true, &right).height();
    return {saturated(right + contentsMargins().right()), height};
}

/// doLayout(), which also tells, unless right is null, how far the rows reach when read from the
/// left.
QSize PropertyLayout::arrange(const QRect &rect, bool testOnly, qint64 *right) const
{
    const QMargins margins = contentsMargins();
    Measure total = measure();
    if (!testOnly) {
        total.fieldWidth = qint64(rect.width()) - total.labelWidth - margins.left()
                           - margins.right() - m_labelSpacing;
    }
    total.spareHeight = qint64(rect.height()) - total.fixedHeight - margins.top() - margins.bottom()
                        - m_verticalSpacing;

    const QWidget *const host = parentWidget();
    RowPlace place;
    place.top = margins.top(); // not the rectangle's own top: see the class comment
    place.labelWidth = total.labelWidth;
    place.fullWidth = rect.width();
    place.mirrored = host && host->isRightToLeft();
    place.layout = this;
    qint64 depth = 0;
    Row row;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        Entry &entry = m_items[i];
        if (entry.options & BeginGroup)
            ++depth;
        else if (entry.options & EndGroup)
            --depth;
        entry.isShown = !entry.item->isEmpty();
        if (!entry.isShown)
            continue;
        beginRowAt(i, total.labelWidth, row);
        if (!endsRow(i))
            continue;
        place.left = qint64(margins.left()) + groupIndent(depth);
        sizeRow(row, qint64(rect.width()) - place.left - margins.right(), total);
        if (right)
            *right = std::max(*right, rightEdge(row, place));
        if (!testOnly && !placeRow(row, place))
            return {};
        place.top += qint64(row.height) + m_verticalSpacing;
    }
    return {saturated(total.fieldWidth + total.labelWidth + margins.left() + m_labelSpacing
                      + margins.right()),
            saturated(place.top - m_verticalSpacing + margins.bottom())};
}

bool PropertyLayout::endsRow(std::size_t index) const
{
    // A hidden entry that starts a row ends the one before it all the same.
    return index + 1 >= m_items.size() || (m_items[index + 1].options & NewRow);
}

/// Notes every visible item's size hint and sums up columns and rows. Widths of full-width items
/// and the spacing between items are left out of the column widths on purpose.
PropertyLayout::Measure PropertyLayout::measure() const
{
    Measure result;
    qint64 rowWidth = 0;
    int rowHeight = 0;
    bool rowExpands = false;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        Entry &entry = m_items[i];
        if (entry.item->isEmpty())
            continue;
        const QSize size = entry.item->sizeHint();
        entry.width = size.width();
        entry.height = size.height();
        if (entry.options & NewRow) {
            if (entry.isLabel())
                result.labelWidth = std::max(result.labelWidth, size.width());
            result.fieldWidth = std::max(result.fieldWidth, rowWidth);
            rowWidth = 0;
            rowExpands = false;
            rowHeight = size.height();
        } else {
            rowWidth += size.width();
            rowHeight = std::max(rowHeight, size.height());
        }
        rowExpands = rowExpands || entry.expandsVertically();
        if (!endsRow(i))
            continue;
        if (rowExpands)
            ++result.expandingRows;
        else
            result.fixedHeight += qint64(rowHeight) + m_verticalSpacing;
    }
    result.fieldWidth = std::max(result.fieldWidth, rowWidth);
    if (m_labelWidth >= 0)
        result.labelWidth = m_labelWidth;
    return result;
}

/// Counts the visible entry at index into row, which starts afresh at a NewRow entry.
void PropertyLayout::beginRowAt(std::size_t index, int labelWidth, Row &row) const
{
    const Entry &entry = m_items[index];
    if (entry.options & NewRow) {
        row.first = index;
        row.fixedWidth = 0;
        row.expandCount = 0;
    }
    row.last = index;
    if (entry.isLabel())
        row.fixedWidth = qint64(m_labelSpacing) + labelWidth;
    else if (entry.expandsHorizontally())
        ++row.expandCount;
    else
        row.fixedWidth += qint64(entry.width) + m_horizontalSpacing;
}

/// Gives the items of row their widths and row its height. rowSpace is the width inside margins and
/// indentation; measure holds the rows that still expand and the height they share.
void PropertyLayout::sizeRow(Row &row, qint64 rowSpace, Measure &measure) const
{
    qint64 spareWidth = rowSpace - row.fixedWidth;
    row.height = 0;
    row.heightCap = kUnboundedRowHeight;
    row.heightFloor = 0;
    row.expandsVertically = false;
    for (std::size_t i = row.first; i <= row.last; ++i) {
        Entry &entry = m_items[i];
        if (entry.isShown)
            sizeItem(entry, row, spareWidth);
    }
    if (!row.expandsVertically)
        return;
    const int share = saturated(equalShare(measure.spareHeight, measure.expandingRows));
    row.height = std::min(std::max(share, row.heightFloor), row.heightCap);
    --measure.expandingRows;
    measure.spareHeight -= row.height;
}

void PropertyLayout::sizeItem(Entry &entry, Row &row, qint64 &spareWidth) const
{
    const QSize hint(entry.width, entry.height);
    const bool takesShare = !entry.isLabel() && entry.expandsHorizontally();
    if (takesShare) {
        entry.width = saturated(equalShare(spareWidth, row.expandCount));
        --row.expandCount;
    }
    const bool fillsRow = entry.expandsVertically();
    entry.fillsRow = fillsRow;
    QSize minimum = hint;
    QSize maximum = hint;
    if (fillsRow || entry.width < hint.width() || !entry.hintIsWithinBounds()) {
        // Asked for once, and only where it counts: a widget computes them anew each time.
        minimum = entry.item->minimumSize();
        maximum = entry.item->maximumSize();
    } else if (takesShare && growsHorizontally(*entry.item->widget())) {
        maximum.setWidth(entry.width);
    }
    entry.width = bounded(minimum.width(), entry.width, maximum.width());
    if (entry.isLabel() && m_labelWidth >= 0)
        entry.width = std::min(entry.width, m_labelWidth);
    if (takesShare)
        spareWidth -= qint64(entry.width) + m_horizontalSpacing;

    const int height = bounded(minimum.height(), entry.height, maximum.height());
    row.height = std::max(row.height, height);
    if (fillsRow) {
        row.heightCap = std::min(row.heightCap, maximum.height());
        row.heightFloor = std::max(row.heightFloor, minimum.height());
        row.expandsVertically = true;
    } else {
        row.heightFloor = std::max(row.heightFloor, height);
    }
}

/// Where the last visible item of row ends. Follows placeRow().
qint64 PropertyLayout::rightEdge(const Row &row, const RowPlace &place) const
{
    qint64 x = place.left;
    qint64 edge = x;
    for (std::size_t i = row.first; i <= row.last; ++i) {
        const Entry &entry = m_items[i];
        const bool isRowLabel = i == row.first && !(entry.options & FullWidth);
        if (!entry.item->isEmpty())
            edge = x + (isRowLabel ? place.labelWidth : entry.width);
        if (isRowLabel)
            x = place.left + place.labelWidth + m_labelSpacing;
        else
            x += qint64(entry.width) + m_horizontalSpacing;
    }
    return edge;
}

/// Gives the items of row their rectangles. False when one of them made the host change the list or
/// delete the layout: row and the caller's indexes are void then, and nothing may be touched.
bool PropertyLayout::placeRow(const Row &row, const RowPlace &place) const
{
    const quint32 revision = m_revision;
    qint64 x = place.left;
    for (std::size_t i = row.first; i <= row.last; ++i) {
        const Entry &entry = m_items[i];
        const bool isRowLabel = i == row.first && !(entry.options & FullWidth);
        if (isRowLabel)
            x += qint64(place.labelWidth) - entry.width;
        // A fixed item keeps its size-hint height even where its maximum made the row lower.
        const bool fillsRow = entry.isShown ? entry.fillsRow : entry.expandsVertically();
        const int height = fillsRow ? row.height : entry.height;
        const qint64 y = fillsRow ? place.top : place.top + (qint64(row.height) - height) / 2;
        const qint64 left = place.mirrored ? place.fullWidth - x - entry.width : x;
        entry.item->setGeometry(rectangle(left, y, entry.width, height));
        if (!place.layout || m_revision != revision)
            return false;
        if (isRowLabel)
            x = place.left + place.labelWidth + m_labelSpacing;
        else // hidden entries too: they take the place of their last width
            x += qint64(entry.width) + m_horizontalSpacing;
    }
    return true;
}

/// Where a walk goes on after host code ran while it was at item, then at index: behind item, or,
/// where item has left the list, with the one that moved into its place.
std::size_t PropertyLayout::indexAfter(const QLayoutItem *item, std::size_t index) const
{
    const auto isItem = [item](const Entry &entry) { return entry.item == item; };
    if (index < m_items.size() && isItem(m_items[index]))
        return index + 1;
    const auto found = std::find_if(m_items.begin(), m_items.end(), isItem);
    return found == m_items.end() ? index : static_cast<std::size_t>(found - m_items.begin()) + 1;
}

} // namespace Tessark::PropertyUI
