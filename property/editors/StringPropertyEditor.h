#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QLineEdit;

namespace Tessark::PropertyUI {

/**
 * Edits a "string" property in a line of text.
 *
 * Value: QString; empty before the widget exists. Hint read: kPropertyHintEnabled (bool) when the
 * widget is built and on every propertyChanged(). valueChanged() comes when an edit is finished, by
 * Return or by leaving the field, not on every key; setValue() is silent.
 */
class TESSARK_PROPERTY_EXPORT StringPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit StringPropertyEditor(Property *property);
    ~StringPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    void propertyChanged() override;

private:
    QPointer<QLineEdit> m_lineEdit; // same object as m_widget
};

} // namespace Tessark::PropertyUI
