#pragma once

#include "host/PanelRows_p.h"

#include <QLabel>

#include <memory>

namespace Tessark::PropertyHost {

/// Tells the label and the help of the row under the pointer or, without one, of the row that has
/// the focus. Texts are shown as they are written.
class DescriptionLine final : public QLabel
{
public:
    explicit DescriptionLine(QWidget *parent);

    /// Speaks of the rows of panel from now on, instead of those of the one before.
    void follow(std::shared_ptr<const PanelRows> rows, QWidget *panel);

    /// Reads the help of the row anew.
    void showHelp();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void watchPointer(bool watch);
    void focusMoved();
    void pointerMoved(int row);

    std::shared_ptr<const PanelRows> m_rows;
    QPointer<QWidget> m_panel;
    int m_hovered = -1;
    int m_focused = -1;
};

} // namespace Tessark::PropertyHost
