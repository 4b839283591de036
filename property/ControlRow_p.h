#pragma once

#include <QHBoxLayout>

namespace Tessark::PropertyUI {

/**
 * The controls of a field, side by side: a QHBoxLayout that places them as any other would.
 *
 * Mostly one of them alone grows with the field, as the slider beside a number does, and all that is
 * new with each step of a resize is the width of that one. Where it is so, the others are not weighed
 * anew.
 *
 * Its widget is told at once when a control wants another size, so that an item that keeps the
 * widget's hints is never behind.
 */
class ControlRow final : public QHBoxLayout
{
public:
    explicit ControlRow(QWidget *parent);

    void invalidate() override;
    void setGeometry(const QRect &rect) override;

private:
    /// How the controls share a width, and from which width to which this is so.
    struct Sharing
    {
        int growing = -1; // index of the control that grows; none for any other sharing
        int fixedWidth = 0;
        int least = 0;
        int most = 0;
        int spacing = 0;
    };

    Sharing findSharing() const;
    bool isPlain() const;
    int widthOf(int index, int rowWidth) const;
    void place(const QRect &rect, bool growsToTheRight);

    Sharing m_sharing;
    bool m_isKnown = false;
};

} // namespace Tessark::PropertyUI
