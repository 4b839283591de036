#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QLabel;

namespace Tessark::PropertyUI {

/**
 * Shows the picture of an "image" property in a label that the user cannot edit.
 *
 * Value: QPixmap, whatever it was set from; an invalid variant while there is no picture, a null
 * one included. setValue() takes a QPixmap, a QImage, or a QIcon, which is drawn once at the label's
 * size of that moment; any other type leaves the picture as it is. Hint read when the widget is
 * built: kPropertyHintAlignment (int, a set of Qt::Alignment bits). Only revertToDefaultValue()
 * emits anything.
 */
class TESSARK_PROPERTY_EXPORT ImagePropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit ImagePropertyEditor(Property *property);
    ~ImagePropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

private:
    QPointer<QLabel> m_label; // same object as m_widget
};

} // namespace Tessark::PropertyUI
