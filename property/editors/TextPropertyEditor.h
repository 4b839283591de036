#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QPlainTextEdit;

namespace Tessark::PropertyUI {

/**
 * Edits a "text" property in a field of several lines, in a fixed-pitch font.
 *
 * Value: QString with line feeds; empty before the widget exists. Typing emits nothing, on purpose:
 * the host reads value() when it wants the text. Only revertToDefaultValue() emits, as everywhere.
 */
class TESSARK_PROPERTY_EXPORT TextPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit TextPropertyEditor(Property *property);
    ~TextPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

private:
    QPointer<QPlainTextEdit> m_textEdit; // same object as m_widget
};

} // namespace Tessark::PropertyUI
