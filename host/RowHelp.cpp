#include "host/RowHelp_p.h"

#include "host/HostHints.h"

#include <property/Property.h>
#include <property/PropertyVocabulary.h>

#include <QTabBar>
#include <QTextDocument> // Qt::convertFromPlainText()

#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// Replaces what was shown before. What a widget has from somebody else stays.
void showHelp(QWidget *widget, const QString &help, const QString &shown)
{
    if (!widget)
        return;
    if (widget->toolTip() == toolTipOf(shown))
        widget->setToolTip(toolTipOf(help));
    if (widget->accessibleDescription() == shown)
        widget->setAccessibleDescription(help);
}

} // namespace

QString helpOf(const Property &property)
{
    return property.hint(kHostHintHelp).toString();
}

QString toolTipOf(const QString &help)
{
    return help.isEmpty() ? QString() : Qt::convertFromPlainText(help, Qt::WhiteSpaceNormal);
}

RowHelp::RowHelp(std::shared_ptr<const PanelRows> rows)
    : m_rows(std::move(rows))
{
    updateAll();
}

void RowHelp::update(const Property *property)
{
    const QVector<int> rows = m_rows->indexesOf(property);
    for (const int row : rows)
        show(row);
}

void RowHelp::updateAll()
{
    for (int row = 0; row < m_rows->count(); ++row)
        show(row);
}

void RowHelp::show(int row)
{
    const PanelRow &widgets = m_rows->at(row);
    const QString help = helpOf(*widgets.property);
    const QString shown = m_shown.value(row);
    if (help == shown)
        return;
    m_shown.insert(row, help);
    if (widgets.tabs) {
        widgets.tabs->setTabToolTip(widgets.tabs->indexOf(widgets.field), toolTipOf(help));
        return;
    }
    // A tool tip of the tab widget would be one of everything on its pages.
    auto *const tabs = widgets.property->type == kPropertyTypeBeginTabGroup
                           ? qobject_cast<QTabWidget *>(widgets.field)
                           : nullptr;
    showHelp(tabs ? tabs->tabBar() : widgets.field.data(), help, shown);
    showHelp(widgets.label, help, shown);
}

} // namespace Tessark::PropertyHost
