#pragma once

#include "property/PropertyEditor.h"

namespace Tessark::PropertyUI {

/**
 * Draws a "separator" property as a horizontal line.
 *
 * Value: none; nothing is ever emitted. The line is a labelled row like any other unless the
 * property's "full_width" hint is true.
 */
class TESSARK_PROPERTY_EXPORT SeparatorPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit SeparatorPropertyEditor(Property *property);
    ~SeparatorPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
};

} // namespace Tessark::PropertyUI
