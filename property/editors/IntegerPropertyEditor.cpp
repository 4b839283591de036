#include "property/editors/IntegerPropertyEditor.h"

#include "property/EditorHelpers_p.h"
#include "property/WideSlider_p.h"

#include <QSlider>
#include <QSpinBox>

namespace Tessark::PropertyUI {

PropertyEditor *IntegerPropertyEditor::Factory(Property *property)
{
    return new IntegerPropertyEditor(property);
}

IntegerPropertyEditor::IntegerPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

IntegerPropertyEditor::~IntegerPropertyEditor() = default;

void IntegerPropertyEditor::setValue(const QVariant &value)
{
    const int number = toSaturatedInt(value);
    setQuietly(m_slider, &QSlider::setValue, number);
    showQuietly(m_spinBox, number);
}

QVariant IntegerPropertyEditor::value() const
{
    return m_spinBox ? m_spinBox->value() : 0;
}

QWidget *IntegerPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        QWidget *const row = makeRow();
        m_slider = new QSlider(Qt::Horizontal);
        m_spinBox = new QSpinBox;
        propertyChanged();
        m_spinBox->installEventFilter(this);
        watchSlider(m_slider, this);
        connect(m_slider, &QSlider::valueChanged, this, &IntegerPropertyEditor::sliderChanged);
        connect(m_spinBox, qOverload<int>(&QSpinBox::valueChanged), this,
                &IntegerPropertyEditor::spinBoxChanged);
        fillRow(row, {m_slider, m_spinBox});
        m_widget = row;
    }
    return m_widget;
}

void IntegerPropertyEditor::propertyChanged()
{
    const bool enabled = hintOr(*m_property, kPropertyHintEnabled, true);
    const int minimum = toSaturatedInt(m_property->minValue);
    if (m_slider) {
        m_slider->setRange(minimum, toSaturatedInt(m_property->maxValue));
        supportWideRange(m_slider);
        m_slider->setEnabled(enabled);
    }
    if (m_spinBox) {
        m_spinBox->setRange(minimum, toSaturatedInt(m_property->hardMaxValue));
        // Ranges narrower than a hundred get a step of 0, so that the arrows do not move them. That
        // is on purpose and not rounded up.
        m_spinBox->setSingleStep(hundredthOf(m_spinBox->minimum(), m_spinBox->maximum()));
        m_spinBox->setEnabled(enabled);
    }
}

void IntegerPropertyEditor::sliderChanged(int value)
{
    showQuietly(m_spinBox, value);
    Q_EMIT valueChanged();
}

void IntegerPropertyEditor::spinBoxChanged(int value)
{
    setQuietly(m_slider, &QSlider::setValue, value);
    Q_EMIT valueChanged();
}

} // namespace Tessark::PropertyUI
