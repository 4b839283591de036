#include "property/editors/StaticTextPropertyEditor.h"

#include "property/EditorHelpers_p.h"

#include <QLabel>

namespace Tessark::PropertyUI {

PropertyEditor *StaticTextPropertyEditor::Factory(Property *property)
{
    return new StaticTextPropertyEditor(property);
}

StaticTextPropertyEditor::StaticTextPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

StaticTextPropertyEditor::~StaticTextPropertyEditor() = default;

void StaticTextPropertyEditor::setValue(const QVariant &value)
{
    if (m_label)
        m_label->setText(value.toString());
}

QVariant StaticTextPropertyEditor::value() const
{
    return m_label ? m_label->text() : QString();
}

QWidget *StaticTextPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_label = new QLabel;
        m_widget = m_label;
        applyAlignmentHint(m_label, *m_property);
    }
    return m_widget;
}

} // namespace Tessark::PropertyUI
