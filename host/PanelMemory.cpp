#include "host/PanelMemory_p.h"

#include "host/SearchOrigin_p.h"

#include <property/Property.h>
#include <property/PropertyVocabulary.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

QString calledBy(const Property &property)
{
    return property.name.isEmpty() ? property.label : property.name;
}

/// The field and what it has inside, in an order that is the same for the same field.
QList<QWidget *> controlsOf(QWidget *field)
{
    return QList<QWidget *>{field} + field->findChildren<QWidget *>();
}

} // namespace

PanelMemory::PanelMemory(ViewPanel &panel, QScrollArea &area, const SearchOrigin *origin)
    : m_panel(panel)
    , m_area(area)
    , m_origin(origin)
    , m_rows(panel.rows())
{
}

PanelState PanelMemory::state() const
{
    PanelState state;
    for (int index = 0; index < m_rows->count(); ++index) {
        const PanelRow &row = m_rows->at(index);
        if (GroupFolding::isGroup(row))
            state.openGroups[calledBy(*row.property)].append(isOpen(index));
        auto *const tabs = qobject_cast<QTabWidget *>(row.field);
        if (!tabs || row.property->type != kPropertyTypeBeginTabGroup)
            continue;
        const int current = currentTab(index, *tabs);
        const QString name = current < 0 ? QString() : calledBy(*m_rows->at(current).property);
        const int place = current < 0 ? -1 : tabs->indexOf(m_rows->at(current).field);
        state.currentTabs[calledBy(*row.property)].append({name, place});
    }
    state.place = m_origin ? m_origin->place : place();
    state.focus = focus();
    if (m_origin && !state.focus)
        state.focus = m_origin->focus;
    return state;
}

void PanelMemory::restoreGroupsAndTabs(const PanelState &state)
{
    const auto groups = rowsByName(kPropertyTypeBeginGroup);
    for (auto it = groups.cbegin(); it != groups.cend(); ++it) {
        const QVector<bool> open = state.openGroups.value(it.key());
        for (int i = 0; i < std::min(it.value().size(), open.size()); ++i)
            m_panel.folding().setOpen(it.value().at(i), open.at(i));
    }
    const auto tabGroups = rowsByName(kPropertyTypeBeginTabGroup);
    for (auto it = tabGroups.cbegin(); it != tabGroups.cend(); ++it) {
        const QVector<PanelState::Tab> tabs = state.currentTabs.value(it.key());
        for (int i = 0; i < std::min(it.value().size(), tabs.size()); ++i)
            restoreTab(m_rows->at(it.value().at(i)), tabs.at(i));
    }
    m_panel.folding().update();
}

void PanelMemory::restorePlace(const std::optional<PanelState::Place> &place)
{
    const int row = place ? find(place->row) : -1;
    if (!place)
        m_area.verticalScrollBar()->setValue(0);
    else if (row >= 0 && isInView(row))
        m_area.verticalScrollBar()->setValue(topOf(row) + place->offset);
}

void PanelMemory::restoreFocus(const PanelState::Focus &focus)
{
    const int row = find(focus.row);
    QWidget *const field = row < 0 ? nullptr : m_rows->at(row).field.data();
    if (!field)
        return;
    QWidget *const control = controlsOf(field).value(focus.control, field);
    control->setFocus(Qt::OtherFocusReason);
}

QMap<QString, QVector<int>> PanelMemory::rowsByName(const QString &type) const
{
    QMap<QString, QVector<int>> rows;
    for (int row = 0; row < m_rows->count(); ++row) {
        if (m_rows->at(row).property->type == type)
            rows[calledBy(*m_rows->at(row).property)].append(row);
    }
    return rows;
}

RowName PanelMemory::nameOf(int row) const
{
    RowName name{calledBy(*m_rows->at(row).property), 0};
    for (int before = 0; before < row; ++before)
        name.index += calledBy(*m_rows->at(before).property) == name.name ? 1 : 0;
    return name;
}

int PanelMemory::find(const RowName &name) const
{
    int left = name.index;
    for (int row = 0; row < m_rows->count(); ++row) {
        if (calledBy(*m_rows->at(row).property) == name.name && left-- == 0)
            return row;
    }
    return -1;
}

bool PanelMemory::isInView(int row) const
{
    const QWidget *const field = m_rows->at(row).field;
    return field && field->isVisibleTo(&m_panel);
}

/// In pixels of the panel.
int PanelMemory::topOf(int row) const
{
    return m_rows->at(row).field->mapTo(&m_panel, QPoint()).y();
}

bool PanelMemory::isOpen(int group) const
{
    return m_origin ? m_origin->isOpen(group) : GroupFolding::isOpen(m_rows->at(group));
}

int PanelMemory::currentTab(int tabGroup, const QTabWidget &tabs) const
{
    return m_origin ? m_origin->currentTab(tabGroup) : m_rows->indexOf(tabs.currentWidget());
}

/// The row nearest to the upper edge of the view, the later one of two on the same level. Nothing
/// where it is scrolled to the top.
std::optional<PanelState::Place> PanelMemory::place() const
{
    const int scrolled = m_area.verticalScrollBar()->value();
    int nearest = -1;
    for (int row = 0; row < m_rows->count(); ++row) {
        const bool isCandidate = !calledBy(*m_rows->at(row).property).isEmpty() && isInView(row)
                                 && topOf(row) <= scrolled;
        if (isCandidate && (nearest < 0 || topOf(row) >= topOf(nearest)))
            nearest = row;
    }
    if (scrolled <= 0 || nearest < 0)
        return std::nullopt;
    return PanelState::Place{nameOf(nearest), scrolled - topOf(nearest)};
}

/// That of the window, which keeps it while another window is active.
std::optional<PanelState::Focus> PanelMemory::focus() const
{
    const QWidget *const focused = m_panel.window()->focusWidget();
    const int row = focused && m_panel.isAncestorOf(focused) ? m_rows->indexAround(focused) : -1;
    if (row < 0 || !m_rows->at(row).field)
        return std::nullopt;
    const auto control = controlsOf(m_rows->at(row).field).indexOf(const_cast<QWidget *>(focused));
    return PanelState::Focus{nameOf(row), static_cast<int>(control)};
}

void PanelMemory::restoreTab(const PanelRow &tabGroup, const PanelState::Tab &tab) const
{
    auto *const tabs = qobject_cast<QTabWidget *>(tabGroup.field);
    int found = -1;
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        const int row = m_rows->indexOf(tabs->widget(i));
        const bool isCalledSo = row >= 0 && calledBy(*m_rows->at(row).property) == tab.name;
        if (isCalledSo && (found < 0 || i == tab.index))
            found = i;
    }
    if (found < 0)
        return;
    // The current tab belongs to the user: to show it anew is no edit.
    const QSignalBlocker blocker(tabs);
    tabs->setCurrentIndex(found);
}

} // namespace Tessark::PropertyHost
