#include "property/editors/StaticTextPropertyEditor.h"

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
    if (!m_widget) {
        m_label = new QLabel;
        m_widget = m_label;
        const QVariant alignment = m_property->hint(kPropertyHintAlignment);
        if (alignment.isValid())
            m_label->setAlignment(Qt::Alignment(QFlag(alignment.toInt())));
    }
    return m_widget;
}

} // namespace Tessark::PropertyUI
