#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QPushButton;

namespace Tessark::PropertyUI {

/**
 * Offers an "action" property as a push button that carries the property's label.
 *
 * Value: none. Each click emits valueChanged() once; the host learns of it from that alone.
 */
class TESSARK_PROPERTY_EXPORT ActionPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit ActionPropertyEditor(Property *property);
    ~ActionPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

private:
    QPointer<QPushButton> m_button; // same object as m_widget
};

} // namespace Tessark::PropertyUI
