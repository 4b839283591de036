#include "host/PanelRows_p.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/PropertyLayout.h>

#include <set>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

QTabWidget *tabWidgetOf(const QWidget *page)
{
    for (QWidget *parent = page->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *const tabs = qobject_cast<QTabWidget *>(parent))
            return tabs;
    }
    return nullptr;
}

} // namespace

bool isHiddenByHand(const QWidget &widget)
{
    return widget.testAttribute(Qt::WA_WState_ExplicitShowHide)
           && widget.testAttribute(Qt::WA_WState_Hidden);
}

PanelRows::PanelRows(PropertyEditorPanel &panel)
{
    m_pages.append(&panel);
    std::set<const QWidget *> seen{&panel};
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        QWidget *const field = editor ? editor->widget(nullptr) : nullptr;
        if (!field)
            continue;
        PanelRow row;
        row.editor = editor;
        row.field = field;
        row.property = editor->editedProperty();
        m_indexOf.insert(field, count());
        m_indexesOf.insert(row.property, count());
        m_rows.push_back(row);
        QWidget *const page = field->parentWidget();
        if (page && seen.insert(page).second && qobject_cast<PropertyLayout *>(page->layout()))
            m_pages.append(page);
    }
    for (const QPointer<QWidget> &page : std::as_const(m_pages))
        walk(*page->layout());
    for (int row = 0; row < count(); ++row) {
        if (at(row).property->type == kPropertyTypeTab)
            findTabs(row);
    }
}

int PanelRows::indexOf(const QObject *widget) const
{
    const int row = m_indexOf.value(widget, -1);
    // Another object may have got the address of one that has gone.
    const bool isAlive = row >= 0 && (at(row).field == widget || at(row).label == widget);
    return isAlive ? row : -1;
}

int PanelRows::indexAround(const QWidget *widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        const int row = indexOf(widget);
        if (row >= 0)
            return row;
    }
    return -1;
}

QVector<int> PanelRows::indexesOf(const Property *property) const
{
    const QList<int> indexes = m_indexesOf.values(property); // the latest first
    return {indexes.crbegin(), indexes.crend()};
}

QVector<QWidget *> PanelRows::pages() const
{
    QVector<QWidget *> pages;
    for (const QPointer<QWidget> &page : m_pages) {
        if (page)
            pages.append(page);
    }
    return pages;
}

/// Finds the labels of the rows of a page, and the groups that they lie in.
void PanelRows::walk(const QLayout &layout)
{
    QVector<int> groups;
    QWidget *before = nullptr;
    for (int i = 0; i < layout.count(); ++i) {
        QWidget *const widget = layout.itemAt(i)->widget();
        const int index = widget ? m_indexOf.value(widget, -1) : -1;
        if (widget && widget->property("endGroup").toBool() && !groups.isEmpty())
            groups.removeLast();
        if (index >= 0) {
            PanelRow &row = m_rows[static_cast<std::size_t>(index)];
            row.group = groups.isEmpty() ? -1 : groups.last();
            if (row.group >= 0)
                m_rows[static_cast<std::size_t>(row.group)].members.append(index);
            auto *const label = qobject_cast<QLabel *>(before);
            // The field of the row before may be a label too.
            if (label && !m_indexOf.contains(label)
                && !row.editor->hint(kPropertyHintFullWidth).toBool()) {
                row.label = label;
                m_indexOf.insert(label, index);
            }
            if (widget->property("beginGroup").toBool())
                groups.append(index);
        }
        before = widget;
    }
}

void PanelRows::findTabs(int row)
{
    PanelRow &tab = m_rows[static_cast<std::size_t>(row)];
    tab.tabs = tabWidgetOf(tab.field);
    const int tabGroup = m_indexOf.value(tab.tabs, -1);
    if (tabGroup < 0)
        return;
    m_rows[static_cast<std::size_t>(tabGroup)].members.append(row);
    tab.group = -1;
}

} // namespace Tessark::PropertyHost
