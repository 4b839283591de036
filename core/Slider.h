#pragma once

#include "core/CoreExport.h"

#include <QColor>
#include <QPointer>
#include <QSlider>

#include <memory>

class QPainter;
class QStyleOptionSlider;

namespace Tessark::UI {

class ColorLink;
class RealPosition;

/**
 * A slider with a real-valued range and, on request, a gradient of colours in the groove: one channel
 * of a colour.
 *
 * It covers realMinimum() .. realMaximum() evenly with the integer positions of QSlider. The real
 * value is kept as it was set, to the last bit, until the position changes by another road (user,
 * setValue()); then it is the value of that position. Inherited setters of the integer range spread
 * the same real range over other positions.
 *
 * Pointer: a left press on the groove moves the handle there and starts a drag, a press on the handle
 * keeps its place under the pointer. Escape during a drag brings back the value at press and ends it.
 *
 * Signals: every call and edit that changes something announces it, unless signals are blocked.
 * A slot sees realValueChanged() before valueChanged(int); in both the slider is up to date. Made by
 * a ColorControl, each of them is an edit of that channel, with signals blocked too.
 */
class TESSARK_CORE_EXPORT Slider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(double realValue READ realValue WRITE setRealValue NOTIFY realValueChanged)
    Q_PROPERTY(double realMinimum READ realMinimum)
    Q_PROPERTY(double realMaximum READ realMaximum)
    Q_PROPERTY(int resolution READ resolution WRITE setResolution)
    Q_PROPERTY(bool wheelNeedsFocus READ wheelNeedsFocus WRITE setWheelNeedsFocus)
    Q_PROPERTY(bool gradientVisible READ isGradientVisible WRITE setGradientVisible)

public:
    /// Covers 0..1 with 1000 intervals at value 0; a single step is 0.01, a page step 0.1.
    explicit Slider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~Slider() override;

    /// The real range; the value clamps into it. One end pulls the other along, setRealRange() swaps
    /// reversed ends. An end that is infinite or NaN is ignored. Equal ends give one position. These
    /// hide the inherited setters of the integer range on purpose, so that 1 is the real 1.
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setRealRange(double minimum, double maximum);
    double realMinimum() const;
    double realMaximum() const;

    /// The exact value last set, or that of the position if the position changed since.
    double realValue() const;

    /// The real value of a position between minimum() and maximum(); others clamp. The ends are
    /// exactly realMinimum() and realMaximum().
    double realValueAt(int position) const;

    /// The position nearest to a real value. Values outside the range give an end, NaN the current
    /// position.
    int positionOf(double value) const;

    /// The number of equal intervals (default 1000), clamped to 1..1000000. Steps are left alone.
    void setResolution(int positions);
    int resolution() const;

    /// Colours the groove evenly from realMinimum() to realMaximum().
    void setGradient(const QColor &first, const QColor &last);
    void clearGradient();

    /// Whether a gradient shows (default: true); without one the slider looks like any other.
    /// For style sheets: "qproperty-gradientVisible: false".
    bool isGradientVisible() const;
    void setGradientVisible(bool visible);

    /// Whether the mouse wheel acts only with keyboard focus and else scrolls what is behind
    /// (default: false).
    bool wheelNeedsFocus() const;
    void setWheelNeedsFocus(bool needsFocus);

    bool event(QEvent *event) override;

public Q_SLOTS:
    /// Shows a real value. Values outside the range clamp, NaN is ignored. valueChanged(int) follows
    /// only if the position moves, realValueChanged() whenever the real value changes.
    void setRealValue(double value);

Q_SIGNALS:
    void realValueChanged(double value);

protected:
    void sliderChange(SliderChange change) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class ColorControl;
    class LinearPosition;
    struct HandleTrack;

    enum class DragEnd { Kept, Cancelled };

    /// From now on the slider belongs to a control and reports to it.
    void bind(ColorLink *link);

    /// Shows what the control says, silently.
    void showFromControl(double value);

    template <typename Change>
    void reporting(Change change);
    void reportEdit();
    void startDrag(const QPointF &pointer);
    void moveHandle(const QPointF &pointer);
    void endDrag(DragEnd end);
    HandleTrack handleTrack(const QStyleOptionSlider &option) const;
    QStyleOptionSlider styleOption() const;
    void paintGradient(QPainter *painter, const QStyleOptionSlider &option) const;

    std::unique_ptr<RealPosition> m_position;
    int m_resolution; // what resolution() goes back to when the real range is no longer a point
    QColor m_first;   // of the gradient; invalid without one
    QColor m_last;
    bool m_gradientVisible = true;
    bool m_dragging = false;
    qreal m_grabOffset = 0; // from the handle's centre to the pointer, along the groove
    QPointer<ColorLink> m_link;
    double m_reported = 0; // the value that the control knows
    int m_reportingDepth = 0;
};

} // namespace Tessark::UI
