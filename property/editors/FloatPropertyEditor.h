#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QAbstractSlider;

namespace Tessark::PropertyUI {

class DoubleSpinBox;

/**
 * Edits a "float" property with a slider, linear or logarithmic, and an entry field.
 *
 * Value: double, in stored units; the controls show it times the display scale. 0 before the widget
 * exists. The slider spans minimum to maximum, the field minimum to hard maximum; bounds that are
 * no number count as 0. Hints read when the widget is built: kPropertyHintDisplayScale (double, 1),
 * kPropertyHintLogarithmicSlider (bool, false; the ends are powers of ten, truncated toward 1),
 * kPropertyHintFloatDecimals (int, 4) and kPropertyHintSuffix (text).
 *
 * Each change by the user emits valueChanged() once; dragging the slider and typing in the focused
 * field are interactive runs. setValue() is silent. It leaves a focused field alone, so that a
 * value from the host never overwrites what is being typed, and does nothing while a change of the
 * field is being announced.
 */
class TESSARK_PROPERTY_EXPORT FloatPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit FloatPropertyEditor(Property *property);
    ~FloatPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

    /// The slider's position in stored units; 0 before the widget exists.
    double sliderValue() const;

    /// Moves the slider to a value in stored units. Its signals are not blocked, so the field
    /// follows and valueChanged() is emitted when the position changes.
    void setSliderValue(double value);

private Q_SLOTS:
    void sliderChanged(int value);
    void spinBoxChanged(double value);

private:
    void setSliderQuietly(double value);
    QAbstractSlider *makeLinearSlider() const;
    QAbstractSlider *makeLogarithmicSlider();
    DoubleSpinBox *makeSpinBox();
    double toStored(double displayed) const;

    QPointer<QAbstractSlider> m_slider; // a QSlider or a UI::LogSlider
    QPointer<DoubleSpinBox> m_spinBox;
    bool m_updatingFromSpinBox = false; // while spinBoxChanged() runs
    double m_displayScale = 1.0;        // displayed units per stored unit
};

} // namespace Tessark::PropertyUI
