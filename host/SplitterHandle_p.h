#pragma once

#include <QPointer>
#include <QWidget>

namespace Tessark::PropertyHost {

class LabelSplitter;
class PanelExtent;

/**
 * The line between labels and fields for users without a mouse: a control that Tab reaches behind the
 * rows, while the line can be moved. Left and Right move it, Home and End as far as it goes, Return
 * makes the width of the labels automatic again. Assistive technology sees a splitter with the width
 * in pixels as its value.
 *
 * It is seen only while it has the focus, and lets the mouse through to the panel, which drags the
 * line by itself.
 */
class SplitterHandle final : public QWidget
{
    Q_OBJECT

public:
    /// For the line of this panel. viewport, that of the scroll area around the panel, owns it.
    SplitterHandle(LabelSplitter *splitter, PanelExtent *extent, QWidget *panel, QWidget *viewport);

    /// Goes to where the line is, or hides without one, once the rows are where they belong.
    void placeLater();

    /// Null without a panel. The rows are where they belong first, so that widths are right.
    LabelSplitter *splitter() const;

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();

    QPointer<LabelSplitter> m_splitter;
    QPointer<PanelExtent> m_extent;
    QPointer<QWidget> m_panel;
    int m_width = -1; // of the labels, as it was told last
    bool m_isPlacePending = false;
};

} // namespace Tessark::PropertyHost
