#pragma once

#include "core/CoreExport.h"

#include <QAbstractButton>
#include <QIcon>

class QColor;
class QPainter;
class QStyleOptionButton;

namespace Tessark::UI {

/**
 * A checkable triangle that shows whether something is unfolded.
 *
 * Unchecked it points in reading direction, checked it points down. It is made checkable and
 * unchecked. Signals are those of QAbstractButton: the user's edits emit toggled() and clicked(),
 * setChecked() emits toggled() unless signals are blocked.
 *
 * Keys: Space toggles; Right or Plus unfolds, Left or Minus folds (Left and Right are mirrored in
 * right-to-left layouts). A button made uncheckable has the keys of any other button.
 *
 * The dynamic property "group" with the value "round" makes the plate behind the triangle a circle,
 * anything else a rectangle with rounded corners. Style sheets reach the button as
 * Tessark--UI--DisclosureButton; where one draws a background or a border, the plate stays away.
 */
class TESSARK_CORE_EXPORT DisclosureButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(bool flat READ isFlat WRITE setFlat)
    Q_PROPERTY(QIcon openIcon READ openIcon WRITE setOpenIcon)
    Q_PROPERTY(QIcon closedIcon READ closedIcon WRITE setClosedIcon)

public:
    explicit DisclosureButton(QWidget *parent = nullptr, bool flat = true);
    ~DisclosureButton() override;

    /// Whether the plate shows only while the button is hovered, pressed or focused by key (default).
    bool isFlat() const;
    void setFlat(bool flat);

    /// Drawn instead of the triangle while checked; an empty icon (default) leaves the triangle.
    QIcon openIcon() const;
    void setOpenIcon(const QIcon &icon);

    /// Drawn instead of the triangle while unchecked; an empty icon (default) leaves the triangle.
    QIcon closedIcon() const;
    void setClosedIcon(const QIcon &icon);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void initStyleOption(QStyleOptionButton *option) const;
    bool hasPlate(const QStyleOptionButton &option) const;
    bool isRound() const;

    QIcon m_openIcon;
    QIcon m_closedIcon;
    bool m_flat;
};

/// Draws the triangle of DisclosureButton, half as large as the rectangle, in its middle; for styles
/// that draw the "disclosure" check boxes. Open, it points down, else in the direction of reading.
TESSARK_CORE_EXPORT void drawDisclosureTriangle(QPainter *painter, const QRectF &rect, bool open,
                                                Qt::LayoutDirection direction, const QColor &color);

/// A style sheet that draws every QCheckBox whose dynamic property "disclosure" is true as the
/// triangle of DisclosureButton, in the colours of the application's palette. Nothing installs it:
/// give it to setStyleSheet() of the application or of a widget.
TESSARK_CORE_EXPORT QString disclosureStyleSheet();

/// The same for an indicator of another side, in pixels, than 16: it is rounded down to a multiple
/// of 4 and is at least 4. The colours are opaque.
TESSARK_CORE_EXPORT QString disclosureStyleSheet(int side, const QColor &color,
                                                 const QColor &disabledColor);

} // namespace Tessark::UI
