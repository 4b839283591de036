#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QCheckBox;

namespace Tessark::PropertyUI {

/**
 * Marks the two ends of a collapsible group of rows.
 *
 * A "begin_group" property is a check box with the property's label, checked at first, that shows
 * and hides the rows up to its "end_group", an empty frame. The dynamic properties "beginGroup" and
 * "endGroup" mark the two for the layout, "disclosure" marks the box for style sheets.
 *
 * Value: bool, true while the group is open, before the widget exists and for an "end_group".
 * Whether a group is open belongs to the user: setValue() changes nothing. Both ends always take
 * the full width.
 */
class TESSARK_PROPERTY_EXPORT GroupPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit GroupPropertyEditor(Property *property);
    ~GroupPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QVariant hint(const QString &key) override;

private:
    QWidget *makeBegin();
    static QWidget *makeEnd();

    QPointer<QCheckBox> m_checkBox; // same object as m_widget; null for an "end_group"
};

} // namespace Tessark::PropertyUI
