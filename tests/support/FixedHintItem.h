#pragma once

#include <QLayoutItem>
#include <QRect>

namespace Tessark::Testing {

/// A layout item without widget: its sizes are what a test sets, contradictory ones included, and
/// it keeps the rectangle it was given exactly. It asks to expand, for layouts that look.
class FixedHintItem : public QLayoutItem
{
public:
    explicit FixedHintItem(const QSize &hint, const QSize &minimum = QSize(0, 0),
                           const QSize &maximum = QSize(QLAYOUTSIZE_MAX, QLAYOUTSIZE_MAX))
        : m_hint(hint)
        , m_minimum(minimum)
        , m_maximum(maximum)
    {
    }

    /// An empty item is what a hidden widget is to a layout.
    void setEmpty(bool empty) { m_empty = empty; }
    bool isEmpty() const override { return m_empty; }

    /// How often the layout asked for the hint.
    int measurements() const { return m_measurements; }
    QSize sizeHint() const override
    {
        ++m_measurements;
        return m_hint;
    }

    QSize minimumSize() const override { return m_minimum; }
    QSize maximumSize() const override { return m_maximum; }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    void setGeometry(const QRect &rect) override { m_geometry = rect; }
    QRect geometry() const override { return m_geometry; }

private:
    QSize m_hint;
    QSize m_minimum;
    QSize m_maximum;
    QRect m_geometry;
    bool m_empty = false;
    mutable int m_measurements = 0;
};

} // namespace Tessark::Testing
