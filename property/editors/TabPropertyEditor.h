#pragma once

#include "property/PropertyEditor.h"

#include <QPointer>

class QTabWidget;

namespace Tessark::PropertyUI {

/**
 * Marks a tab group and its pages.
 *
 * A "begin_tab_group" property is a tab widget, a "tab" property an empty page that the panel adds
 * to it and fills, an "end_tab_group" has no widget and so no row. Hint read:
 * kPropertyHintTabPosition (int, QTabWidget::TabPosition; any other number means north) when the
 * tab widget is built.
 *
 * Value: int, index of the current page, for a "begin_tab_group" once its widget exists; otherwise
 * bool true. The current page belongs to the user: setValue() changes nothing. valueChanged() comes
 * with every change of the page, also when the first page is added. Always takes the full width.
 */
class TESSARK_PROPERTY_EXPORT TabPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit TabPropertyEditor(Property *property);
    ~TabPropertyEditor() override;

    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;
    QString controlName(const QWidget *control) const override;
    QVariant hint(const QString &key) override;

private:
    QWidget *makeTabWidget();

    QPointer<QTabWidget> m_tabWidget; // same object as m_widget; for a "begin_tab_group" only
};

} // namespace Tessark::PropertyUI
