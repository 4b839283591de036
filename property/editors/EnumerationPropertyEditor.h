#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QButtonGroup;
class QComboBox;

namespace Tessark::PropertyUI {

/**
 * Edits an "int/enum" property, one choice of a list, with a combo box or radio buttons.
 *
 * Hints read when the widget is built: kPropertyHintDisplayValues (list, the text of each choice)
 * and kPropertyHintWidget (kWidgetTypeRadioButtons for radio buttons in one row). Hint read on every
 * setValue() and value(): kPropertyHintValues (list, the stored value of each choice by position). A
 * hint that is no list, a plain text included, counts as an empty one.
 *
 * Value: int, the index of the choice and -1 for none; with a "values" hint the entry at that index,
 * of whatever type, or an invalid variant. setValue() is silent and ignores a value that is not
 * among the stored ones. Each choice by the user emits valueChanged(), a click on the radio button
 * already checked too. There are no interactive runs.
 */
class TESSARK_PROPERTY_EXPORT EnumerationPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit EnumerationPropertyEditor(Property *property);
    ~EnumerationPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

private:
    QWidget *makeComboBox();
    QWidget *makeRadioButtons();
    int currentIndex() const;

    QPointer<QComboBox> m_comboBox;       // same object as m_widget; or
    QPointer<QButtonGroup> m_buttonGroup; // child of the editor, in radio mode
};

} // namespace Tessark::PropertyUI
