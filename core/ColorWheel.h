#pragma once

#include "core/CoreExport.h"

#include <QWidget>

#include <memory>

namespace Tessark::UI {

class ColorLink;
enum class WheelPart;
struct Hsv;
struct WheelView;

/**
 * Picks hue, saturation and value (brightness) on one round surface.
 *
 * Numbers are fractions 0..1; hue is a fraction of a turn in [0, 1), red at 3 o'clock and
 * counter-clockwise from there. A fresh wheel shows black, hue and saturation 0.
 *
 * Signals: only what the user does is announced, by pointer, key, mouse wheel or assistive
 * technology. Every edit belongs to an interaction, which startDragSignal() and stopDragSignal()
 * bracket: a drag, a key held down, a burst of the mouse wheel. The setters are silent. A slot may
 * delete the wheel; only where hiding, disabling or loss of focus ends the interaction, the widget
 * system goes on with it, and a slot of stopDragSignal() must leave that to deleteLater().
 *
 * Made by a ColorControl, the wheel shows the control's colour, and its setters set that.
 *
 * Pointer: Shift drags at a tenth of the speed, Control snaps hue to 15 degrees and value to 0.05,
 * Escape takes the drag back. Keys: Left and Right turn the hue, Up and Down change the saturation,
 * Page Up and Page Down the value, Home and End go to value 0 and 1; Control makes the step larger,
 * Shift smaller. The wheel does not mirror in right-to-left layouts: an angle has no reading
 * direction.
 */
class TESSARK_CORE_EXPORT ColorWheel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(DisplayMode displayMode READ displayMode WRITE setDisplayMode)
    Q_PROPERTY(InteractionMode interactionMode READ interactionMode WRITE setInteractionMode)
    Q_PROPERTY(float ringValue READ ringValue WRITE setRingValue)
    Q_PROPERTY(bool wheelNeedsFocus READ wheelNeedsFocus WRITE setWheelNeedsFocus)

public:
    enum DisplayMode : int {
        HueSaturationDisc = 0, // the disc alone: angle is hue, radius is saturation
        HueRingTriangle = 1,   // a hue ring around a triangle of saturation and value
        DiscAndValueRing = 2,  // the disc, and a ring of value around it
    };
    Q_ENUM(DisplayMode)

    enum InteractionMode : int {
        Absolute = 0, // a press takes the value under the pointer
        Relative = 1, // a press changes nothing; the marker moves as the pointer does
    };
    Q_ENUM(InteractionMode)

    explicit ColorWheel(QWidget *parent = nullptr);
    ~ColorWheel() override;

    /// Default HueSaturationDisc; a number outside the enumeration counts as that. Below a side of
    /// 40 pixels there is room for the disc only, and every mode shows it.
    void setDisplayMode(DisplayMode mode);
    DisplayMode displayMode() const;

    /// Default Absolute; a number outside the enumeration counts as that.
    void setInteractionMode(InteractionMode mode);
    InteractionMode interactionMode() const;

    /// The value (brightness), in every mode.
    float ringValue() const;

    double hue() const;
    double saturation() const;
    double value() const;

    /// The colour shown, opaque.
    QColor color() const;

    /// Whether the mouse wheel acts only with keyboard focus and else scrolls what is behind
    /// (default: true).
    bool wheelNeedsFocus() const;
    void setWheelNeedsFocus(bool needsFocus);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Sets the value silently; hue and saturation stay. NaN is ignored, other numbers clamp. After
    /// an edit by the user a number that is the present value but for rounding to 8 bits changes
    /// nothing, so a host that stores bytes may send back what it got.
    void setRingValue(float value);

    /// Sets all three silently. A finite hue wraps, the others clamp; NaN keeps the old number, and
    /// so does an infinite hue.
    void setHsv(double hue, double saturation, double value);

Q_SIGNALS:
    /// The user begins an interaction. Alternates strictly with stopDragSignal().
    void startDragSignal();

    /// The interaction is over, or Escape took it back.
    void stopDragSignal();

    /// The user chose these.
    void hsvEdited(double hue, double saturation, double value);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class ColorControl;
    friend class ColorWheelInterface;
    struct Input;

    /// From now on the wheel belongs to a control and reports to it.
    void bind(ColorLink *link);

    /// Shows what the control says, silently.
    void showFromControl(const Hsv &hsv);

    /// An edit by the user that is an interaction of its own.
    void editAtOnce(const Hsv &hsv);

    void beginDrag(WheelPart part, const QPointF &point, Qt::KeyboardModifiers modifiers);
    void cancelDrag();
    void turnWheel(double notches);
    bool endInteraction();
    void leaveInput();

    std::unique_ptr<WheelView> m_view; // what is shown, and how
    std::unique_ptr<Input> m_input;    // what the user is doing
};

} // namespace Tessark::UI
