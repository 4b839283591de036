#pragma once

#include "property/PropertyEditor.h"

#include <memory>

namespace Tessark::PropertyUI {

class SizeFields;

/**
 * Edits an "ivec2/size" property with entry fields of width and height, 1 to 4096, and a check box
 * "Constrain Aspect", checked at first, that keeps their ratio.
 *
 * Value: QSize; an invalid one before the widget exists. Hint read when the widget is built:
 * kPropertyHintAspectRatio (QSize), the ratio to keep. A ratio of width 0 leaves out the check box;
 * without hint it is there and keeps both numbers equal. The other number is truncated to whole
 * pixels; it stays as it is where the ratio has no answer (a height of 0).
 *
 * Each change by the user emits valueChanged() once, the number that follows included; typing in a
 * focused field is an interactive run. setValue() is silent, clamps, and does not apply the ratio.
 */
class TESSARK_PROPERTY_EXPORT SizePropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit SizePropertyEditor(Property *property);
    ~SizePropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;

private Q_SLOTS:
    void spinBoxValueChanged(int value);

private:
    std::unique_ptr<SizeFields> m_fields; // null until the widget is built
};

} // namespace Tessark::PropertyUI
