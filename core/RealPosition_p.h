#pragma once

#include "core/DragCancel_p.h"
#include "core/SliderMaps_p.h"

#include <variant>

class QEvent;
class QSlider;

namespace Tessark::UI {

/// The most intervals that a slider with a real value spreads its scale over.
inline constexpr int kMostPositions = 1000000;

/**
 * The real value behind the integer position of a slider, which owns this object and passes on what
 * happens to it. The value is kept as it was set, to the last bit, until the position changes by
 * another road; then it is the value of that position.
 *
 * Values clamp to the scale. Any of the calls that change something may delete the slider.
 */
class RealPosition
{
public:
    using Scale = std::variant<LinearScale, LogScale>;

    /// The slider has its integer range already; the value starts at the scale's minimum.
    RealPosition(QSlider *slider, const Scale &scale);
    virtual ~RealPosition();

    /// Takes another scale over so many equal intervals; they clamp to 1..kMostPositions, and a
    /// scale of one point gives one position. The value clamps into the new scale.
    void setScale(const Scale &scale, int positions);

    const Scale &scale() const;
    double minimum() const;
    double maximum() const;

    double value() const;
    double at(int position) const;

    /// The position nearest to a value; NaN gives the current one.
    int positionOf(double value) const;

    /// Shows a value and announces what changed; NaN is ignored.
    void setValue(double value);

    bool wheelNeedsFocus() const;
    void setWheelNeedsFocus(bool needsFocus);

    /// Judges every event of the slider first; true means that the event goes no further.
    bool takesEvent(QEvent *event);

    // For sliderChange(), before Qt's own. That runs before valueChanged(int), and also while
    // signals are blocked.
    void noteRangeChange();
    void noteValueChange();

private:
    /// Emits the slider's signal of its real value.
    virtual void emitValueChanged(double value) = 0;

    /// Ends the drag that Escape took back; the value is already the one at press.
    virtual void letGo();

    void takeValue(double value);
    void tellValue();
    void moveToValue();
    void announceValue();
    void announceRange(PositionRange oldRange, int oldPosition);
    void cancelDrag();

    QSlider *const m_slider; // the owner of this object
    Scale m_scale;
    double m_minimum = 0;
    double m_maximum = 0;
    double m_value = 0;
    int m_position = 0;         // the position that m_value belongs to
    bool m_isUntold = false;    // m_value changed and assistive technology does not know
    bool m_unannounced = false; // m_value changed and the signal of it is still to come
    bool m_wheelNeedsFocus = false;
    DragCancel m_dragCancel;
};

} // namespace Tessark::UI
