#pragma once

#include "host/PanelRows_p.h"

#include <QObject>
#include <QPoint>
#include <QRect>

#include <memory>
#include <optional>

class QMouseEvent;

namespace Tessark::PropertyHost {

/**
 * The line between the labels and the fields of a panel: it has one width of labels for all pages,
 * and lets the user drag it in the gap between label and field, if that is allowed. A double click
 * there makes the width automatic again.
 */
class LabelSplitter final : public QObject
{
    Q_OBJECT

public:
    /// panel owns it, and lies in a scroll area.
    LabelSplitter(std::shared_ptr<const PanelRows> rows, QWidget *panel);

    /// Whether the user may drag it; not at first.
    bool isMovable() const { return m_isMovable; }
    void setMovable(bool movable);

    /// In pixels; nothing if each page has the width of its widest label.
    std::optional<int> labelWidth() const { return m_labelWidth; }
    void setLabelWidth(std::optional<int> width);

    /// The gap at the first row that shows its label, in the panel; null without such a row.
    QRect shownGap() const;

    /// The width of the labels around that row, and the range that the user can move it in.
    int shownWidth() const;
    int smallestWidth() const;
    int widestWidth() const;

    /// Sets the width within that range.
    void moveTo(int width);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// By the user or by setLabelWidth().
    void moved();

private:
    struct Drag
    {
        int from = 0; // where the pointer took hold
        int width = 0;
        int widest = 0;
    };

    const PanelRow *shownRow() const;
    bool isOverGap(const QWidget &page, const QPoint &position) const;
    void showCursor(QWidget &page, bool overGap);
    bool mousePressed(QWidget &page, const QMouseEvent &event);
    void mouseMoved(const QWidget &page, const QMouseEvent &event);
    int widthOf(const QWidget &page) const;
    int widestOf(int width) const;

    std::shared_ptr<const PanelRows> m_rows;
    QPointer<QWidget> m_panel;
    std::optional<int> m_labelWidth;
    std::optional<Drag> m_drag;
    bool m_isMovable = false;
};

} // namespace Tessark::PropertyHost
