#pragma once

#include "property/PropertyExport.h"

#include <QLayout>
#include <QSize>

#include <deque>

namespace Tessark::PropertyUI {

/**
 * Arranges widgets in rows of two columns: labels, right-aligned in a column as wide as the widest
 * of them, and fields, which share the rest. A row may span both columns, rows between the begin
 * and end marker of a group are indented by nesting depth and shown or hidden together, and rows
 * may stretch vertically to share spare height.
 *
 * A widget marks the begin of a group by the dynamic property "beginGroup" and the end by
 * "endGroup" (both bool, read when it is added). A widget whose size policy is exactly
 * QSizePolicy::Expanding in a direction counts as expanding in it.
 *
 * Where the parent widget reads from right to left, rows are mirrored.
 *
 * The contents margins are 4 on every side unless a host sets others. The layout is meant to be the
 * top-level layout of its widget: items are placed from the origin, wherever the rectangle lies. It
 * owns its items. Both size hints are computed once and kept until the next item is added.
 */
class TESSARK_PROPERTY_EXPORT PropertyLayout : public QLayout
{
    Q_OBJECT

public:
    enum LayoutOption {
        NewRow = 1,           // first item of a row: its label, unless the row is FullWidth
        ExpandHorizontal = 2, // takes a share of the row's spare width; not with NewRow alone
        ExpandVertical = 4,   // its row takes a share of the spare height, the item all of the row
        FullWidth = 8,        // first item of a row without label column
        BeginGroup = 16,      // opens a group; set from the widget's "beginGroup" property
        EndGroup = 32,        // closes a group; set from the widget's "endGroup" property
        GroupCollapsed = 64,  // on a group's begin while the group is hidden; informative
    };
    Q_DECLARE_FLAGS(LayoutOptions, LayoutOption)

    enum class SizeType {
        Minimum,
        Preferred,
    };

    /// Installs the layout on parent. margin has no lasting effect: the contents margins are 4.
    PropertyLayout(QWidget *parent, int margin, int spacing);
    explicit PropertyLayout(int spacing);
    ~PropertyLayout() override;

    void addItem(QLayoutItem *item) override;
    Qt::Orientations expandingDirections() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    int count() const override;
    QSize sizeHint() const override;

    /// Adds an item, which the layout owns from now on. NewRow clears ExpandHorizontal; FullWidth
    /// implies NewRow without clearing it. The alignment is stored and never read. A null item,
    /// widget or layout is not added.
    void addItem(QLayoutItem *item, LayoutOptions options, Qt::Alignment alignment);

    /// Adds a widget or a nested layout and makes it a child.
    void addWidget(QWidget *widget, LayoutOptions options);
    void addLayout(QLayout *layout, LayoutOptions options);

    /// Adds a row of a new QLabel with the given text and field, which takes the spare width.
    void addRow(const QString &label, QWidget *field);

    /// Adds a row of one widget that spans both columns.
    void addRow(QWidget *widget);

    /// Set the gap between rows and between the items of a row, in pixels. They take effect the
    /// next time the layout is activated; nothing is invalidated.
    void setVerticalSpacing(int spacing);
    void setHorizontalSpacing(int spacing);

    /// The width of the label column in pixels; negative, as at first, for that of the widest label.
    /// A label that is wider than the column is cut off.
    int labelWidth() const { return m_labelWidth; }
    void setLabelWidth(int width);

    /// Shows or hides everything between groupWidget, which begins a group, and the end of that
    /// group, nested groups and their markers included. Does nothing for a widget not in the layout.
    void setGroupVisible(QWidget *groupWidget, bool visible);

    /// Measures all items and, unless testOnly, places them. Returns the size wanted, which is the
    /// same for every SizeType. Placing ends early, with an invalid size, when an item that moves
    /// makes the host change the list of items or delete the layout.
    QSize doLayout(const QRect &rect, bool testOnly, SizeType sizeType) const;

    /// The smallest size at which nothing is cut off or covered. Unlike minimumSize(), it counts rows
    /// over both columns, indentation and gaps, takes fields as narrow as they can be, and is
    /// measured anew with each call.
    QSize smallestSize() const;

private:
    struct Entry
    {
        QLayoutItem *item = nullptr;
        LayoutOptions options;
        int width = -1;  // size hint as measured, then the width given in the row
        int height = -1; // size hint as measured
        Qt::Alignment alignment;
        bool isRowItem = false; // made by the layout for a widget
        bool isShown = false;   // as the pass found it
        bool fillsRow = false;  // of one that is shown: takes the height of its row

        bool isLabel() const { return (options & NewRow) && !(options & FullWidth); }
        bool expandsHorizontally() const;
        bool expandsVertically() const;
        bool hintIsWithinBounds() const;
    };
    struct Measure;
    struct Row;
    struct RowPlace;

    void initialise(int spacing);
    void addChildItem(QWidget *widget, LayoutOptions options);
    QSize arrange(const QRect &rect, bool testOnly, qint64 *right) const;
    bool endsRow(std::size_t index) const;
    Measure measure() const;
    void beginRowAt(std::size_t index, int labelWidth, Row &row) const;
    void sizeRow(Row &row, qint64 rowSpace, Measure &measure) const;
    void sizeItem(Entry &entry, Row &row, qint64 &spareWidth) const;
    qint64 rightEdge(const Row &row, const RowPlace &place) const;
    bool placeRow(const Row &row, const RowPlace &place) const;
    std::size_t indexAfter(const QLayoutItem *item, std::size_t index) const;

    mutable std::deque<Entry> m_items; // measuring and placing note sizes here
    quint32 m_revision = 0;            // of the list; rises whenever an item comes or goes
    int m_verticalSpacing = 0;
    int m_horizontalSpacing = 0;
    int m_labelSpacing = 10;
    int m_labelWidth = -1;
    mutable QSize m_cachedSizeHint;
    mutable QSize m_cachedMinimumSize;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(PropertyLayout::LayoutOptions)

} // namespace Tessark::PropertyUI
