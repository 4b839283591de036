#include "property/editors/GroupPropertyEditor.h"

#include <QCheckBox>
#include <QFrame>

namespace Tessark::PropertyUI {

PropertyEditor *GroupPropertyEditor::Factory(Property *property)
{
    return new GroupPropertyEditor(property);
}

GroupPropertyEditor::GroupPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

GroupPropertyEditor::~GroupPropertyEditor() = default;

// Deliberately empty: a refresh neither opens nor closes the user's groups.
void GroupPropertyEditor::setValue(const QVariant &) {}

QVariant GroupPropertyEditor::value() const
{
    return !m_checkBox || m_checkBox->isChecked();
}

QWidget *GroupPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow())
        m_widget = m_property->type == kPropertyTypeBeginGroup ? makeBegin() : makeEnd();
    return m_widget;
}

QVariant GroupPropertyEditor::hint(const QString &key)
{
    return key == kPropertyHintFullWidth ? QVariant(true) : PropertyEditor::hint(key);
}

QWidget *GroupPropertyEditor::makeBegin()
{
    m_checkBox = new QCheckBox(m_property->label);
    m_checkBox->setProperty("disclosure", true);
    m_checkBox->setProperty("beginGroup", true);
    m_checkBox->setChecked(true);
    connect(m_checkBox, &QCheckBox::toggled, this, &PropertyEditor::valueChanged);
    return m_checkBox;
}

QWidget *GroupPropertyEditor::makeEnd()
{
    auto *const frame = new QFrame;
    frame->setFrameStyle(QFrame::NoFrame);
    frame->setProperty("endGroup", true);
    return frame;
}

} // namespace Tessark::PropertyUI
