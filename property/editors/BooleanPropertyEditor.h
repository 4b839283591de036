#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QCheckBox;

namespace Tessark::PropertyUI {

/**
 * Edits a "bool" property with a check box.
 *
 * Value: bool; false before the widget exists. Hints read: kPropertyHintBoolHideLabel (bool, the
 * box has no text) when the widget is built, kPropertyHintEnabled (bool) then and on every
 * propertyChanged(). Each click emits valueChanged() once; setValue() is silent.
 */
class TESSARK_PROPERTY_EXPORT BooleanPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit BooleanPropertyEditor(Property *property);
    ~BooleanPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    void propertyChanged() override;

private:
    QPointer<QCheckBox> m_checkBox; // same object as m_widget
};

} // namespace Tessark::PropertyUI
