#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QLabel;

namespace Tessark::PropertyUI {

/**
 * Shows a "static_text" property in a label that the user cannot edit.
 *
 * Value: QString; empty before the widget exists. Hint read: kPropertyHintAlignment (int, a set of
 * Qt::Alignment bits) when the widget is built. Only revertToDefaultValue() emits anything.
 */
class TESSARK_PROPERTY_EXPORT StaticTextPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit StaticTextPropertyEditor(Property *property);
    ~StaticTextPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

private:
    QPointer<QLabel> m_label; // same object as m_widget
};

} // namespace Tessark::PropertyUI
