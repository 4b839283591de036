#include "testing/PanelMap_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <QAbstractButton>

#include <algorithm>

namespace Tessark::PropertyTest {

using namespace PropertyUI;

namespace {

bool isMarker(const PanelRow &row)
{
    return row.type == kPropertyTypeBeginGroup || row.type == kPropertyTypeEndGroup
           || row.type == kPropertyTypeBeginTabGroup || row.type == kPropertyTypeTab
           || row.type == kPropertyTypeEndTabGroup || row.type == kPropertyTypeSeparator;
}

/// Follows the markers of a list of rows.
class Nesting
{
public:
    /// Notes in row, which comes next, what is around it.
    void pass(PanelRow &row)
    {
        if (row.type == kPropertyTypeTab && !m_outer.isEmpty())
            m_folds = m_outer.last().folds;
        row.folds = m_folds;
        if (row.type == kPropertyTypeTab)
            beginPage(row);
        else if (row.type == kPropertyTypeBeginGroup)
            m_folds.append({qobject_cast<QAbstractButton *>(row.field), nullptr, nullptr});
        else if (row.type == kPropertyTypeEndGroup)
            endGroup();
        else if (row.type == kPropertyTypeBeginTabGroup)
            m_outer.append({m_folds, qobject_cast<QTabWidget *>(row.field)});
        else if (row.type == kPropertyTypeEndTabGroup && !m_outer.isEmpty())
            m_folds = m_outer.takeLast().folds;
    }

private:
    struct TabGroup
    {
        QVector<Fold> folds; // around it
        QTabWidget *tabs;
    };

    void beginPage(PanelRow &row)
    {
        if (m_outer.isEmpty())
            return;
        row.page = {nullptr, m_outer.last().tabs, row.field};
        m_folds.append(row.page);
    }

    /// Not out of a page: the groups on it end with it.
    void endGroup()
    {
        const int kept = m_outer.isEmpty() ? 0 : int(m_outer.last().folds.size()) + 1;
        if (m_folds.size() > kept)
            m_folds.removeLast();
    }

    QVector<Fold> m_folds;
    QVector<TabGroup> m_outer;
};

} // namespace

bool Fold::isOpen() const
{
    if (group)
        return group->isChecked();
    return !tabs || !page || tabs->currentWidget() == page;
}

const Fold *PanelRow::closedFold() const
{
    if (field && field->isVisible())
        return nullptr;
    const auto found =
        std::find_if(folds.begin(), folds.end(), [](const Fold &fold) { return !fold.isOpen(); });
    return found == folds.end() ? nullptr : &*found;
}

PanelMap::PanelMap(const PropertyEditorPanel &panel)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    Nesting nesting;
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (!editor)
            continue;
        const Property &property = *editor->editedProperty();
        PanelRow row{
            editor, editor->widget(nullptr), property.name, property.label, property.type, {}, {}};
        nesting.pass(row);
        m_rows.append(row);
    }
}

const PanelRow *PanelMap::row(const QString &name) const
{
    const PanelRow *marker = nullptr;
    for (const PanelRow &row : m_rows) {
        if (row.name != name || !row.field)
            continue;
        if (!isMarker(row))
            return &row;
        if (!marker)
            marker = &row;
    }
    return marker;
}

const PanelRow *PanelMap::row(const QString &type, const QString &title) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const PanelRow &row) {
        return row.type == type && row.field && (row.name == title || row.label == title);
    });
    return found == m_rows.end() ? nullptr : &*found;
}

QStringList PanelMap::names() const
{
    QStringList names;
    for (const PanelRow &row : m_rows) {
        const bool isEnd =
            row.type == kPropertyTypeEndGroup || row.type == kPropertyTypeEndTabGroup;
        if (row.field && !isEnd && !row.name.isEmpty())
            names.append(row.name);
    }
    return names;
}

QStringList PanelMap::titles(const QString &type) const
{
    QStringList titles;
    for (const PanelRow &row : m_rows) {
        if (row.type == type)
            titles.append(row.label.isEmpty() ? row.name : row.label);
    }
    return titles;
}

} // namespace Tessark::PropertyTest
