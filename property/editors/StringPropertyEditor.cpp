#include "property/editors/StringPropertyEditor.h"

#include "property/EditorHelpers_p.h"

#include <QLineEdit>

namespace Tessark::PropertyUI {

PropertyEditor *StringPropertyEditor::Factory(Property *property)
{
    return new StringPropertyEditor(property);
}

StringPropertyEditor::StringPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

StringPropertyEditor::~StringPropertyEditor() = default;

void StringPropertyEditor::setValue(const QVariant &value)
{
    // Nothing is blocked: setting the text does not finish an edit.
    showText(m_lineEdit, value.toString());
}

QVariant StringPropertyEditor::value() const
{
    return m_lineEdit ? m_lineEdit->text() : QString();
}

QWidget *StringPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_lineEdit = new QLineEdit;
        m_widget = m_lineEdit;
        propertyChanged();
        connect(m_lineEdit, &QLineEdit::editingFinished, this, &PropertyEditor::valueChanged);
    }
    return m_widget;
}

void StringPropertyEditor::propertyChanged()
{
    if (m_lineEdit)
        m_lineEdit->setEnabled(hintOr(*m_property, kPropertyHintEnabled, true));
}

} // namespace Tessark::PropertyUI
