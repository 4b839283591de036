#pragma once

#include "core/CoreExport.h"

#include <QSlider>

#include <memory>

namespace Tessark::UI {

class RealPosition;

/**
 * A slider whose positions are spaced evenly on a decimal logarithm.
 *
 * It covers 10^minimumExponent() .. 10^maximumExponent() with the integer positions of QSlider and
 * looks and behaves like one. The real value is kept as it was set, to the last bit, until the
 * position changes by another road (user, setValue()); then it is the value of that position.
 *
 * Signals: every call and edit that changes something announces it, unless signals are blocked.
 * A slot sees realValueChanged() before valueChanged(int); in both the slider is up to date.
 * Escape during a drag brings back the value at press and ends the drag.
 */
class TESSARK_CORE_EXPORT LogSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(double realValue READ realValue WRITE setRealValue NOTIFY realValueChanged)
    Q_PROPERTY(double realMinimum READ realMinimum)
    Q_PROPERTY(double realMaximum READ realMaximum)
    Q_PROPERTY(int minimumExponent READ minimumExponent)
    Q_PROPERTY(int maximumExponent READ maximumExponent)
    Q_PROPERTY(bool wheelNeedsFocus READ wheelNeedsFocus WRITE setWheelNeedsFocus)

public:
    explicit LogSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~LogSlider() override;

    /// Covers 10^minimumExponent .. 10^maximumExponent in so many equal intervals (fresh: 0, 1,
    /// 1000). Reversed exponents are swapped, exponents clamp to -300..300, positions to 1..1000000.
    /// Equal exponents give one position. The real value clamps into the new range.
    void setRealRange(int minimumExponent, int maximumExponent, int positions);

    double realMinimum() const;
    double realMaximum() const;
    int minimumExponent() const;
    int maximumExponent() const;

    /// The exact value last set, or that of the position if the position changed since (fresh: 1).
    double realValue() const;

    /// The real value of a position between minimum() and maximum(); others clamp. The ends are
    /// exactly realMinimum() and realMaximum().
    double realValueAt(int position) const;

    /// The position nearest to a real value on the logarithm. Values outside the range give an end,
    /// NaN the current position.
    int positionOf(double value) const;

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

private:
    std::unique_ptr<RealPosition> m_position;
};

} // namespace Tessark::UI
