#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

namespace Tessark::UI {
class FilenameField;
}

namespace Tessark::PropertyUI {

/**
 * Edits a "filename" property in a line of text with a button that opens a file dialog.
 *
 * Value: QString; empty before the widget exists. Hint read: kPropertyHintUseNativeDialogs (bool)
 * when the widget is built. Every "filename" property picks a directory. valueChanged() comes when
 * the user has set a name, by Return, by leaving the text, in the dialog or by dropping a folder;
 * setValue() is silent.
 */
class TESSARK_PROPERTY_EXPORT FilenamePropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit FilenamePropertyEditor(Property *property);
    ~FilenamePropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;

private:
    QPointer<UI::FilenameField> m_filenameField; // same object as m_widget
};

} // namespace Tessark::PropertyUI
