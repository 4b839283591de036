#pragma once

#include <algorithm>
#include <vector>

namespace Tessark::Testing {

/// One item of LayoutModel: what a layout is told, what it remembers, where the item ends up.
struct LayoutModelItem
{
    bool newRow = false;
    bool fullWidth = false;
    bool beginsGroup = false;
    bool endsGroup = false;
    bool expandsAcross = false;
    bool expandsDown = false;
    bool hidden = false;
    int hintWidth = 0;
    int hintHeight = 0;
    int minimumWidth = 0;
    int minimumHeight = 0;
    int maximumWidth = 0;
    int maximumHeight = 0;

    int storedWidth = -1;
    int storedHeight = -1;

    bool placed = false;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

struct LayoutModelSize
{
    int width = -1;
    int height = -1;
};

/**
 * The arithmetic of a property layout in plain numbers, to compare the real one with.
 *
 * It is arranged differently on purpose: rows are found first, as ranges of items, and everything a
 * row needs is then computed from the whole range instead of being carried along.
 */
class LayoutModel
{
public:
    std::vector<LayoutModelItem> items;
    int left = 4;
    int top = 4;
    int right = 4;
    int bottom = 4;
    int verticalSpacing = 0;
    int horizontalSpacing = 0;

    /// What a layout of the given size wants; places the items when asked to.
    LayoutModelSize layOut(int width, int height, bool place)
    {
        for (LayoutModelItem &item : items) {
            if (!item.hidden) {
                item.storedWidth = item.hintWidth;
                item.storedHeight = item.hintHeight;
            }
        }
        const int labels = labelColumn();
        const int fields = place ? width - labels - left - right - kLabelGap : widestFields();
        const int y = layOutRows(width, height, place);
        return {fields + labels + left + kLabelGap + right, y - verticalSpacing + bottom};
    }

    /// The size wanted within 100 x 100, as first asked for since the last item came.
    LayoutModelSize sizeHint() { return kept(m_sizeHint); }
    LayoutModelSize minimumSize() { return kept(m_minimumSize); }

    void append(const LayoutModelItem &item)
    {
        items.push_back(item);
        m_sizeHint = {};
        m_minimumSize = {};
    }

    /// The items between the group begin at the index and the end of the group, or of the list.
    std::vector<int> groupMembers(int begin) const
    {
        std::vector<int> members;
        int open = 1;
        for (int i = begin + 1; i < count() && open > 0; ++i) {
            if (at(i).beginsGroup)
                ++open;
            else if (at(i).endsGroup)
                --open;
            if (open > 0)
                members.push_back(i);
        }
        return members;
    }

private:
    static constexpr int kLabelGap = 10;
    static constexpr int kIndent = 16;
    static constexpr int kTallestExpandingRow = 10000;

    /// A stretch of items laid out together, both ends included. Where the first item of a row is
    /// hidden, the rest of the row prolongs the row before, which then occurs twice.
    struct Row
    {
        int first = 0;
        int last = 0;
    };

    LayoutModelSize kept(LayoutModelSize &size)
    {
        if (size.width < 0 || size.height < 0)
            size = layOut(100, 100, false);
        return size;
    }

    int count() const { return static_cast<int>(items.size()); }
    LayoutModelItem &at(int index) { return items[static_cast<std::size_t>(index)]; }
    const LayoutModelItem &at(int index) const { return items[static_cast<std::size_t>(index)]; }

    static bool isLabel(const LayoutModelItem &item) { return item.newRow && !item.fullWidth; }

    bool opensRow(int index) const { return !at(index).hidden && at(index).newRow; }
    bool expandsInRow(int index) const
    {
        return !at(index).hidden && !isLabel(at(index)) && at(index).expandsAcross;
    }

    int labelColumn() const
    {
        int widest = 0;
        for (const LayoutModelItem &item : items) {
            if (!item.hidden && isLabel(item))
                widest = std::max(widest, item.hintWidth);
        }
        return widest;
    }

    int widestFields() const
    {
        int widest = 0;
        int first = 0;
        while (first < count()) {
            int sum = opensRow(first) || at(first).hidden ? 0 : at(first).hintWidth;
            int next = first + 1;
            for (; next < count() && !opensRow(next); ++next)
                sum += at(next).hidden ? 0 : at(next).hintWidth;
            widest = std::max(widest, sum);
            first = next;
        }
        return widest;
    }

    std::vector<Row> rows() const
    {
        std::vector<Row> found;
        for (int last = 0; last < count(); ++last) {
            const bool ends = last == count() - 1 || at(last + 1).newRow;
            if (!ends || at(last).hidden)
                continue;
            int first = last;
            while (first > 0 && !opensRow(first))
                --first;
            found.push_back({first, last});
        }
        return found;
    }

    bool expandsDown(const Row &row) const
    {
        for (int i = row.first; i <= row.last; ++i) {
            if (!at(i).hidden && at(i).expandsDown)
                return true;
        }
        return false;
    }

    int hintHeight(const Row &row) const
    {
        int tallest = opensRow(row.first) ? at(row.first).hintHeight : 0;
        for (int i = row.first; i <= row.last; ++i) {
            if (!at(i).hidden)
                tallest = std::max(tallest, at(i).hintHeight);
        }
        return tallest;
    }

    int indent(const Row &row) const
    {
        int depth = 0;
        for (int i = 0; i <= row.last; ++i)
            depth += at(i).beginsGroup ? 1 : at(i).endsGroup ? -1 : 0;
        return std::max(kIndent * depth - kIndent, 0);
    }

    int expandingItems(const Row &row) const
    {
        int expanding = 0;
        for (int i = row.first; i <= row.last; ++i)
            expanding += expandsInRow(i) ? 1 : 0;
        return expanding;
    }

    /// The width that is not there to be shared: the label column, and items that do not expand.
    int takenWidth(const Row &row) const
    {
        int taken = 0;
        for (int i = row.first; i <= row.last; ++i) {
            if (at(i).hidden)
                continue;
            if (isLabel(at(i)))
                taken += kLabelGap + labelColumn();
            else if (!at(i).expandsAcross)
                taken += at(i).hintWidth + horizontalSpacing;
        }
        return taken;
    }

    int layOutRows(int width, int height, bool place)
    {
        const std::vector<Row> all = rows();
        int spareHeight = height - top - bottom - verticalSpacing;
        int sharers = 0;
        for (const Row &row : all) {
            if (expandsDown(row))
                ++sharers;
            else
                spareHeight -= hintHeight(row) + verticalSpacing;
        }

        int y = top;
        for (std::size_t r = 0; r < all.size(); ++r) {
            // Shares that a shorter occurrence of the same row has used up are gone.
            int shares = expandingItems(all[r]);
            for (std::size_t s = 0; s < r; ++s)
                shares -= all[s].first == all[r].first ? expandingItems(all[s]) : 0;

            sizeAcross(all[r], width, shares);
            int rowHeight = tallest(all[r]);
            if (expandsDown(all[r])) {
                rowHeight = sharedHeight(all[r], spareHeight / sharers);
                --sharers;
                spareHeight -= rowHeight;
            }
            if (place)
                placeRow(all[r], y, rowHeight);
            y += rowHeight + verticalSpacing;
        }
        return y;
    }

    void sizeAcross(const Row &row, int width, int shares)
    {
        int spare = width - takenWidth(row) - left - indent(row) - right;
        for (int i = row.first; i <= row.last; ++i) {
            LayoutModelItem &item = at(i);
            if (item.hidden)
                continue;
            if (expandsInRow(i)) {
                item.storedWidth = shares > 0 ? spare / shares : spare;
                --shares;
            }
            item.storedWidth = std::min(item.storedWidth, item.maximumWidth);
            item.storedWidth = std::max(item.storedWidth, item.minimumWidth);
            if (expandsInRow(i))
                spare -= item.storedWidth + horizontalSpacing;
        }
    }

    static int boundedHeight(const LayoutModelItem &item)
    {
        return std::max(std::min(item.maximumHeight, item.hintHeight), item.minimumHeight);
    }

    int tallest(const Row &row) const
    {
        int height = 0;
        for (int i = row.first; i <= row.last; ++i) {
            if (!at(i).hidden)
                height = std::max(height, boundedHeight(at(i)));
        }
        return height;
    }

    int sharedHeight(const Row &row, int share) const
    {
        int cap = kTallestExpandingRow;
        int floor = 0;
        for (int i = row.first; i <= row.last; ++i) {
            const LayoutModelItem &item = at(i);
            if (item.hidden)
                continue;
            if (item.expandsDown)
                cap = std::min(cap, item.maximumHeight);
            floor = std::max(floor, item.expandsDown ? item.minimumHeight : boundedHeight(item));
        }
        return std::min(std::max(share, floor), cap);
    }

    void placeRow(const Row &row, int y, int rowHeight)
    {
        const int start = left + indent(row);
        int x = start;
        for (int i = row.first; i <= row.last; ++i) {
            LayoutModelItem &item = at(i);
            const bool inLabelColumn = i == row.first && !item.fullWidth;
            item.placed = true;
            item.x = inLabelColumn ? start + labelColumn() - item.storedWidth : x;
            item.width = item.storedWidth;
            item.y = item.expandsDown ? y : y + (rowHeight - item.storedHeight) / 2;
            item.height = item.expandsDown ? rowHeight : item.storedHeight;
            x = inLabelColumn ? start + labelColumn() + kLabelGap
                              : x + item.storedWidth + horizontalSpacing;
        }
    }

    LayoutModelSize m_sizeHint;
    LayoutModelSize m_minimumSize;
};

} // namespace Tessark::Testing
