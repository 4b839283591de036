#pragma once

#include "host/PanelRows_p.h"

#include <QObject>

class QHelpEvent;

namespace Tessark::PropertyHost {

/**
 * Draws the labels of rows that are wider than their column with an ellipsis at the end, and tells the
 * whole text in their tool tips, before what these say anyway. Texts, sizes and tool tips of the
 * labels stay what the host has made them. Labels that wrap, have markup or a picture, or can be
 * selected are left alone.
 */
class LabelElider final : public QObject
{
public:
    /// panel owns it.
    LabelElider(const PanelRows &rows, QWidget *panel);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void paint(QLabel &label);
    static void showToolTip(QLabel &label, const QHelpEvent &event);
};

} // namespace Tessark::PropertyHost
