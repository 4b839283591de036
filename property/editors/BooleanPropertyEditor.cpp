#include "property/editors/BooleanPropertyEditor.h"

#include "property/EditorHelpers_p.h"

#include <QCheckBox>

namespace Tessark::PropertyUI {

PropertyEditor *BooleanPropertyEditor::Factory(Property *property)
{
    return new BooleanPropertyEditor(property);
}

BooleanPropertyEditor::BooleanPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

BooleanPropertyEditor::~BooleanPropertyEditor() = default;

void BooleanPropertyEditor::setValue(const QVariant &value)
{
    setQuietly(m_checkBox, &QCheckBox::setChecked, value.toBool());
}

QVariant BooleanPropertyEditor::value() const
{
    return m_checkBox && m_checkBox->isChecked();
}

QWidget *BooleanPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        const bool hideLabel = hintOr(*m_property, kPropertyHintBoolHideLabel, false);
        m_checkBox = new QCheckBox(hideLabel ? QString() : m_property->label);
        m_widget = m_checkBox;
        propertyChanged();
        connect(m_checkBox, &QCheckBox::toggled, this, &PropertyEditor::valueChanged);
    }
    return m_widget;
}

void BooleanPropertyEditor::propertyChanged()
{
    if (m_checkBox)
        m_checkBox->setEnabled(hintOr(*m_property, kPropertyHintEnabled, true));
}

} // namespace Tessark::PropertyUI
