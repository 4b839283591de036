#include "host/RowVisibility_p.h"

#include "host/LayoutPause_p.h"

#include <QSignalBlocker>

#include <set>
#include <utility>

namespace Tessark::PropertyHost {

RowVisibility::RowVisibility(std::shared_ptr<const PanelRows> rows, const QWidget *panel)
    : m_rows(std::move(rows))
    , m_panel(panel)
    , m_states(m_rows->all().size())
{
}

void RowVisibility::setHidden(int row, Reason reason, bool hidden)
{
    if (row < 0 || reasons(row).testFlag(reason) == hidden)
        return;
    State &state = stateOf(row);
    state.reasons.setFlag(reason, hidden);
    if (!std::exchange(state.isQueued, true))
        m_changed.append(row);
}

RowVisibility::Reasons RowVisibility::reasons(int row) const
{
    return m_states[static_cast<std::size_t>(row)].reasons;
}

RowVisibility::Reasons RowVisibility::currentReasons(int row)
{
    noteHost(row);
    return reasons(row);
}

void RowVisibility::apply()
{
    const QVector<int> changed = std::exchange(m_changed, {});
    QVector<QPointer<QWidget>> pages;
    std::set<const QWidget *> seen;
    LayoutPause pause;
    for (const int row : changed) {
        stateOf(row).isQueued = false;
        noteHost(row);
        QWidget *const field = m_rows->at(row).field;
        QWidget *const page = field && !m_rows->at(row).tabs ? field->parentWidget() : nullptr;
        if (page && seen.insert(page).second) {
            pages.append(page);
            pause.add(page);
            Q_EMIT pageChanges(page);
        }
    }
    const QPointer<RowVisibility> self(this);
    for (int i = 0; self && i < changed.size(); ++i)
        show(changed.at(i));
    for (const QPointer<QWidget> &page : std::as_const(pages)) {
        // The view measures the panel by itself, for which nothing has to be renewed.
        if (self && page && page != m_panel)
            renewSizeHintsAround(page, m_panel);
    }
    if (self && !changed.isEmpty())
        Q_EMIT rowsChanged();
}

/// Notes what has become of the row behind this object's back.
void RowVisibility::noteHost(int row)
{
    const PanelRow &widgets = m_rows->at(row);
    if (widgets.tabs || !widgets.field)
        return;
    State &state = stateOf(row);
    const bool isHidden = isHiddenByHand(*widgets.field);
    if (isHidden != state.isHidden)
        state.reasons.setFlag(Host, isHidden);
    state.isHidden = isHidden;
}

/// Host code runs here.
void RowVisibility::show(int row)
{
    const PanelRow widgets = m_rows->at(row);
    const bool isHidden = bool(stateOf(row).reasons);
    const bool isNew = std::exchange(stateOf(row).isHidden, isHidden) != isHidden;
    if (!isNew || !widgets.field)
        return;
    if (widgets.tabs) {
        // The current page may change, which is no edit.
        const QSignalBlocker blocker(widgets.tabs);
        widgets.tabs->setTabVisible(widgets.tabs->indexOf(widgets.field), !isHidden);
        return;
    }
    widgets.field->setVisible(!isHidden);
    if (widgets.label)
        widgets.label->setVisible(!isHidden);
}

} // namespace Tessark::PropertyHost
