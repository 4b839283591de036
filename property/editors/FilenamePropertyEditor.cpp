#include "property/editors/FilenamePropertyEditor.h"

#include "core/FilenameField.h"
#include "property/EditorHelpers_p.h"
#include "property/QtCompat_p.h"

#include <QAbstractButton>

namespace Tessark::PropertyUI {

PropertyEditor *FilenamePropertyEditor::Factory(Property *property)
{
    return new FilenamePropertyEditor(property);
}

FilenamePropertyEditor::FilenamePropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

FilenamePropertyEditor::~FilenamePropertyEditor() = default;

void FilenamePropertyEditor::setValue(const QVariant &value)
{
    // Nothing is blocked: showing a name does not announce it.
    if (m_filenameField)
        m_filenameField->setFilename(value.toString());
}

QVariant FilenamePropertyEditor::value() const
{
    return m_filenameField ? m_filenameField->filename() : QString();
}

QWidget *FilenamePropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        const bool nativeDialogs = hintOr(*m_property, kPropertyHintUseNativeDialogs, false);
        // Deliberate: despite the type's name, all of these properties hold directories.
        m_filenameField = new UI::FilenameField(nullptr, kDirectoryOnlyMode, nativeDialogs);
        m_widget = m_filenameField;
        connect(m_filenameField, &UI::FilenameField::filenameSet, this,
                &PropertyEditor::valueChanged);
    }
    return m_widget;
}

QString FilenamePropertyEditor::controlName(const QWidget *control) const
{
    // The text of the only button is three dots.
    return qobject_cast<const QAbstractButton *>(control) ? UI::FilenameField::tr("Browse")
                                                          : PropertyEditor::controlName(control);
}

} // namespace Tessark::PropertyUI
