#include "property/editors/TabPropertyEditor.h"

#include <QTabWidget>

namespace Tessark::PropertyUI {

PropertyEditor *TabPropertyEditor::Factory(Property *property)
{
    return new TabPropertyEditor(property);
}

TabPropertyEditor::TabPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

TabPropertyEditor::~TabPropertyEditor() = default;

// Deliberately empty: a refresh does not switch the user's pages.
void TabPropertyEditor::setValue(const QVariant &) {}

QVariant TabPropertyEditor::value() const
{
    return m_tabWidget ? QVariant(m_tabWidget->currentIndex()) : QVariant(true);
}

QWidget *TabPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        if (m_property->type == kPropertyTypeBeginTabGroup)
            m_widget = makeTabWidget();
        else if (m_property->type == kPropertyTypeTab)
            m_widget = new QWidget;
    }
    return m_widget;
}

QString TabPropertyEditor::controlName(const QWidget *control) const
{
    // Tab groups often have no label.
    return control == m_tabWidget ? tr("Pages") : tr("Tabs");
}

QVariant TabPropertyEditor::hint(const QString &key)
{
    return key == kPropertyHintFullWidth ? QVariant(true) : PropertyEditor::hint(key);
}

QWidget *TabPropertyEditor::makeTabWidget()
{
    m_tabWidget = new QTabWidget;
    const int position = m_property->hint(kPropertyHintTabPosition).toInt();
    if (position >= QTabWidget::North && position <= QTabWidget::East)
        m_tabWidget->setTabPosition(static_cast<QTabWidget::TabPosition>(position));
    connect(m_tabWidget, &QTabWidget::currentChanged, this, &PropertyEditor::valueChanged);
    return m_tabWidget;
}

} // namespace Tessark::PropertyUI
