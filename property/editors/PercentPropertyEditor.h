#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QDoubleSpinBox;
class QSlider;

namespace Tessark::PropertyUI {

/**
 * Edits a "percent" property with a slider and an entry field that shows per cent.
 *
 * Value: double, the fraction (0.25 for 25 %), read and ranged in single precision; before the
 * widget exists it is a float 0. The slider spans minimum to maximum, the field minimum to hard
 * maximum, with two decimals. No hints are read.
 *
 * Each change by the user emits valueChanged() once; dragging the slider and typing in the focused
 * field are interactive runs. setValue() is silent; while a change of the field is being announced
 * it does nothing, so that the host's echo does not disturb typing.
 */
class TESSARK_PROPERTY_EXPORT PercentPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit PercentPropertyEditor(Property *property);
    ~PercentPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

private Q_SLOTS:
    void sliderChanged(int value);
    void spinBoxChanged(double value);

private:
    void makeSlider();
    void makeSpinBox();

    QPointer<QSlider> m_slider;
    QPointer<QDoubleSpinBox> m_spinBox; // a plain one, which always shows its two decimals
    bool m_updatingFromSpinBox = false; // while spinBoxChanged() runs
};

} // namespace Tessark::PropertyUI
