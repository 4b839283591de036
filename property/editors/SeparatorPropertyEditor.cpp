#include "property/editors/SeparatorPropertyEditor.h"

#include <QFrame>

namespace Tessark::PropertyUI {

PropertyEditor *SeparatorPropertyEditor::Factory(Property *property)
{
    return new SeparatorPropertyEditor(property);
}

SeparatorPropertyEditor::SeparatorPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

SeparatorPropertyEditor::~SeparatorPropertyEditor() = default;

void SeparatorPropertyEditor::setValue(const QVariant &) {}

QVariant SeparatorPropertyEditor::value() const
{
    return {};
}

QWidget *SeparatorPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        auto *const line = new QFrame;
        line->setFrameStyle(QFrame::HLine);
        m_widget = line;
    }
    return m_widget;
}

} // namespace Tessark::PropertyUI
