#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>
#include <QSize>

#include <memory>

class QComboBox;

namespace Tessark::PropertyUI {

class SizeFields;

/**
 * Edits a "render_size" property as SizePropertyEditor edits a size and, given a full size, offers
 * it whole, halved and quartered in a combo box, whose last entry unlocks the numbers.
 *
 * Value: QSize; an invalid one before the widget exists. Hints read when the widget is built:
 * kPropertyHintAspectRatio (QSize) as there, and kPropertyHintFullSize (QSize); without the latter,
 * or with a negative width, there is no combo box and the numbers are enabled.
 *
 * setValue() is silent and leaves the combo box as it is: which preset a value matches is not worked
 * out. A number changed by the user emits valueChanged() once. A preset sets both numbers like a
 * user, the ratio included, so that it emits for each number that changes and once more at the end;
 * "Custom..." emits once. Typing in a focused field is an interactive run.
 */
class TESSARK_PROPERTY_EXPORT RenderSizePropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit RenderSizePropertyEditor(Property *property);
    ~RenderSizePropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;

private Q_SLOTS:
    void spinBoxValueChanged(int value);
    void comboBoxValueChanged(int choice);

private:
    QWidget *makeWidget();
    QComboBox *makeComboBox();
    bool applyPreset(int divisor);

    std::unique_ptr<SizeFields> m_fields; // null until the widget is built
    QSize m_fullSize;
    QPointer<QComboBox> m_comboBox; // null unless there is a full size
};

} // namespace Tessark::PropertyUI
