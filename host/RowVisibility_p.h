#pragma once

#include "host/PanelRows_p.h"

#include <QObject>

#include <memory>
#include <vector>

namespace Tessark::PropertyHost {

/**
 * Whether the rows of a panel are shown: the one place where all reasons against it meet. A row is
 * shown, with its label, while there is none; of a tab's row, its tab.
 *
 * What a reason says takes effect with apply(), for all rows at once. What the host hides or shows by
 * itself is noticed then, and is a reason like the others. Widgets may go at any time, and what a
 * widget that comes or goes calls may delete this object and the panel.
 */
class RowVisibility final : public QObject
{
    Q_OBJECT

public:
    enum Reason {
        GroupClosed = 1, // of a group around the row
        Rule = 2,        // a condition of the list does not hold
        Filter = 4,      // the row is not among those searched for
        Host = 8,        // the host hid the widget
    };
    Q_DECLARE_FLAGS(Reasons, Reason)

    RowVisibility(std::shared_ptr<const PanelRows> rows, const QWidget *panel);

    const PanelRows &rows() const { return *m_rows; }
    std::shared_ptr<const PanelRows> sharedRows() const { return m_rows; }

    /// Takes effect with apply(). A row of -1 is none.
    void setHidden(int row, Reason reason, bool hidden);
    Reasons reasons(int row) const;

    /// The same with what has become of the row behind this object's back.
    Reasons currentReasons(int row);

    /// Shows and hides the rows whose reasons have changed. Their layouts rest meanwhile.
    void apply();

Q_SIGNALS:
    /// Rows of the page, which is the panel or a tab's, are about to come or go.
    void pageChanges(QWidget *page);

    /// Rows were shown or hidden, or would have been but for other reasons.
    void rowsChanged();

private:
    struct State
    {
        Reasons reasons;
        bool isHidden = false; // as it was made last
        bool isQueued = false; // in m_changed
    };

    State &stateOf(int row) { return m_states[static_cast<std::size_t>(row)]; }
    void noteHost(int row);
    void show(int row);

    std::shared_ptr<const PanelRows> m_rows;
    QPointer<const QWidget> m_panel;
    std::vector<State> m_states;
    QVector<int> m_changed;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(RowVisibility::Reasons)

} // namespace Tessark::PropertyHost
