#pragma once

#include "host/PanelRows_p.h"

#include <QObject>

#include <memory>

namespace Tessark::PropertyHost {

/**
 * Gives a panel and its tab pages the smallest size at which all of their rows can be seen, whenever
 * their layouts are to be done anew: a scroll area around the panel scrolls over that and no further.
 *
 * What it is told of beforehand costs less: the rows are placed once, when the size is known, and not
 * for the size before, too.
 */
class PanelExtent final : public QObject
{
public:
    /// panel owns it.
    PanelExtent(std::shared_ptr<const PanelRows> rows, QWidget *panel);

    /// Rows of the page are about to come or go.
    void pageChanges(QWidget *page);

    /// Does now what would be done when control is back in the event loop: afterwards all rows of
    /// the panel are where they belong.
    void settle();

    /// The panel's size with fields as wide as they like to be, after settle().
    QSize wantedSize() const;

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QVector<QPointer<QWidget>> m_changed; // pages; an event is on its way if there are any
    std::shared_ptr<const PanelRows> m_rows;
};

} // namespace Tessark::PropertyHost
