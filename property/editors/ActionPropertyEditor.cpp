#include "property/editors/ActionPropertyEditor.h"

#include <QPushButton>

namespace Tessark::PropertyUI {

PropertyEditor *ActionPropertyEditor::Factory(Property *property)
{
    return new ActionPropertyEditor(property);
}

ActionPropertyEditor::ActionPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

ActionPropertyEditor::~ActionPropertyEditor() = default;

void ActionPropertyEditor::setValue(const QVariant &) {}

QVariant ActionPropertyEditor::value() const
{
    return {};
}

QWidget *ActionPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_button = new QPushButton(m_property->label);
        m_widget = m_button;
        connect(m_button, &QPushButton::clicked, this, &PropertyEditor::valueChanged);
    }
    return m_widget;
}

} // namespace Tessark::PropertyUI
