#pragma once

class QAbstractSpinBox;

namespace Tessark::PropertyUI {
class PropertyEditor;
}

namespace Tessark::PropertyHost {

/// The way that a drag moves a number field on: its numbers, or their decimal logarithms where the
/// editor's slider is logarithmic.
class ScrubScale
{
public:
    ScrubScale(PropertyUI::PropertyEditor &editor, const QAbstractSpinBox &field);

    double placeOf(double number) const;
    double numberAt(double place) const;

    /// The place so many steps on, within the field's range.
    double moved(double place, double steps) const;

private:
    double m_lowest = 0.0; // places
    double m_highest = 0.0;
    double m_step = 0.0;
    bool m_isLogarithmic = false;
};

} // namespace Tessark::PropertyHost
