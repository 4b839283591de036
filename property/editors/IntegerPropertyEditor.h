#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QSlider;
class QSpinBox;

namespace Tessark::PropertyUI {

/**
 * Edits an "int" property with a slider and an entry field.
 *
 * Value: int; 0 before the widget exists. The slider spans minimum to maximum, the field minimum to
 * hard maximum; bounds that are no number count as 0. Hint read: kPropertyHintEnabled (bool).
 * propertyChanged() reads hint and range again and leaves the value alone.
 *
 * Each change by the user emits valueChanged() once; dragging the slider and typing in the focused
 * field are interactive runs. setValue() is silent and also replaces what is being typed.
 */
class TESSARK_PROPERTY_EXPORT IntegerPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit IntegerPropertyEditor(Property *property);
    ~IntegerPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    void propertyChanged() override;

private Q_SLOTS:
    void sliderChanged(int value);
    void spinBoxChanged(int value);

private:
    QPointer<QSlider> m_slider;
    QPointer<QSpinBox> m_spinBox;
};

} // namespace Tessark::PropertyUI
