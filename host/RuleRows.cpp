#include "host/RuleRows_p.h"

#include "host/EditorRange_p.h"
#include "host/LayoutPause_p.h"
#include "host/RowVisibility_p.h"
#include "host/ViewPanel_p.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/PropertyLayout.h>

#include <QEvent>
#include <QSignalBlocker>

#include <set>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

RuleRows::RuleRows(PropertyEditorPanel *panel, const QSet<const Property *> &ruled)
    : m_panel(panel)
    , m_visibility(visibilityOf(panel))
{
    findRows();
    markRuled(ruled);
    watchGroups();
}

void RuleRows::setVisible(const Property *property, bool visible)
{
    const QList<int> rows = m_rowsOf.values(property);
    for (const int row : rows) {
        at(row).ruleVisible = visible;
        m_dirty.append(row);
    }
}

void RuleRows::setEnabled(const Property *property, bool enabled)
{
    const QList<int> rows = m_rowsOf.values(property);
    for (const int row : rows) {
        at(row).ruleEnabled = enabled;
        m_dirty.append(row);
    }
}

/// Layouts rest meanwhile: each row that is shown would place all rows anew.
void RuleRows::apply()
{
    QVector<int> changed;
    const QVector<int> dirty = std::exchange(m_dirty, {});
    for (const int row : dirty)
        collect(row, changed);
    // What a widget that comes or goes calls may delete anything.
    const QPointer<RuleRows> self(this);
    QVector<QPointer<QWidget>> pages;
    {
        LayoutPause pause;
        std::set<const QWidget *> seen;
        for (const int row : std::as_const(changed)) {
            QWidget *const page = at(row).field ? at(row).field->parentWidget() : nullptr;
            if (!page || !seen.insert(page).second
                || !qobject_cast<PropertyLayout *>(page->layout()))
                continue;
            pages.append(page);
            pause.add(page);
        }
        for (int i = 0; self && i < changed.size(); ++i)
            show(changed.at(i));
    }
    if (self && m_visibility) {
        m_visibility->apply();
        return;
    }
    for (const QPointer<QWidget> &page : std::as_const(pages)) {
        if (page)
            renewSizeHintsAround(page, self ? m_panel.data() : nullptr);
    }
}

void RuleRows::showRange(Property *property, const QVariant &value)
{
    const QPointer<RuleRows> self(this);
    // Silent even for the panel: to it, an edit of another row ends a drag that is under way.
    QVector<QPointer<PropertyEditor>> editors;
    const QList<int> rows = m_rowsOf.values(property);
    for (const int row : rows) {
        PropertyEditor *const editor = at(row).editor;
        if (editor && !editor->blockSignals(true))
            editors.append(editor);
    }
    if (m_panel)
        m_panel->updateProperty(property);
    for (const QPointer<PropertyEditor> &editor : std::as_const(editors)) {
        if (!editor)
            continue;
        renewRange(*editor);
        editor->setValue(value.isValid() ? value : editor->value());
        if (editor)
            editor->blockSignals(false);
    }
    if (self)
        tellRange(m_panel);
}

bool RuleRows::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShowOrHide =
        event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent;
    const bool isNews = event->type() == QEvent::EnabledChange || (isShowOrHide && !m_visibility);
    const int row = isNews && watched != m_own ? m_rowOfWidget.value(watched, -1) : -1;
    if (row < 0)
        return false;
    auto *const widget = static_cast<QWidget *>(watched);
    if (event->type() == QEvent::ShowToParent)
        othersShowed(row, widget);
    else if (event->type() == QEvent::HideToParent)
        othersHid(row, widget);
    else
        othersEnabled(row, widget);
    return false;
}

void RuleRows::findRows()
{
    const PanelRows rows(*m_panel);
    for (const PanelRow &found : rows.all()) {
        const auto index = static_cast<int>(m_rows.size());
        Row row;
        static_cast<PanelRow &>(row) = found;
        m_rows.push_back(row);
        m_rowsOf.insert(row.property, index);
        m_rowOfWidget.insert(row.field, index);
    }
}

/// Groups come before their members, so one pass is enough.
void RuleRows::markRuled(const QSet<const Property *> &ruled)
{
    for (Row &row : m_rows) {
        row.isRuled = ruled.contains(row.property) || (row.group >= 0 && at(row.group).isRuled);
    }
    for (Row &row : m_rows) {
        const int tabGroup = row.isRuled ? m_rowOfWidget.value(row.tabs, -1) : -1;
        if (tabGroup >= 0)
            at(tabGroup).isRuled = true;
    }
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row) {
        if (at(row).isRuled)
            watch(at(row));
    }
}

void RuleRows::watch(Row &row)
{
    row.wantedVisible = !isHiddenByHand(*row.field);
    row.wantedEnabled = !row.field->testAttribute(Qt::WA_ForceDisabled);
    row.field->installEventFilter(this);
    if (!row.label)
        return;
    m_rowOfWidget.insert(row.label, static_cast<int>(&row - m_rows.data()));
    row.label->installEventFilter(this);
}

/// Connected behind the panel, which shows and hides the rows of the group first.
void RuleRows::watchGroups()
{
    if (m_visibility)
        return;
    QSet<const QWidget *> pages;
    for (const Row &row : m_rows) {
        if (row.isRuled)
            pages.insert(row.field->parentWidget());
    }
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row) {
        if (at(row).property->type == kPropertyTypeBeginGroup
            && pages.contains(at(row).field->parentWidget()))
            connect(at(row).editor, &PropertyEditor::valueChanged, this,
                    [this, row] { groupToggled(row); });
    }
}

RuleRows::Row &RuleRows::at(int row)
{
    return m_rows[static_cast<std::size_t>(row)];
}

bool RuleRows::hasVisibleTab(const Row &row)
{
    return row.members.isEmpty()
           || std::any_of(row.members.cbegin(), row.members.cend(),
                          [this](int member) { return at(member).ruleVisible; });
}

/// Works out what the rules want of the row; true when that is new.
bool RuleRows::updateWanted(int row)
{
    Row &self = at(row);
    const bool isTabGroup = self.property->type == kPropertyTypeBeginTabGroup;
    const bool shown = self.ruleVisible && (self.group < 0 || at(self.group).shown)
                       && (!isTabGroup || hasVisibleTab(self));
    const bool usable = self.ruleEnabled && (self.group < 0 || at(self.group).usable);
    const bool isNew = shown != self.shown || usable != self.usable;
    self.shown = shown;
    self.usable = usable;
    return isNew;
}

void RuleRows::collect(int row, QVector<int> &changed)
{
    if (!updateWanted(row))
        return;
    changed.append(row);
    const int tabGroup = m_rowOfWidget.value(at(row).tabs, -1);
    if (tabGroup >= 0)
        collect(tabGroup, changed);
    if (at(row).property->type != kPropertyTypeBeginGroup)
        return;
    const QVector<int> members = at(row).members;
    for (const int member : members)
        collect(member, changed);
}

/// Makes a row what the rules and the others want it to be.
void RuleRows::show(int row)
{
    const Row wanted = at(row);
    const QPointer<RuleRows> self(this);
    if (m_visibility) {
        m_visibility->setHidden(m_visibility->rows().indexOf(wanted.field), RowVisibility::Rule,
                                !wanted.shown);
    } else if (wanted.tabs && wanted.field) {
        // The current page may change, which is no edit.
        const QSignalBlocker blocker(wanted.tabs);
        wanted.tabs->setTabVisible(wanted.tabs->indexOf(wanted.field), wanted.shown);
    } else {
        setShown(wanted.field, wanted.shown && wanted.wantedVisible);
        if (self)
            setShown(wanted.label, wanted.shown && wanted.wantedVisible);
    }
    if (self)
        setUsable(wanted.field, wanted.usable && wanted.wantedEnabled);
    if (self)
        setUsable(wanted.label, wanted.usable);
}

void RuleRows::setShown(QWidget *widget, bool shown)
{
    if (!widget || shown == !isHiddenByHand(*widget))
        return;
    const QPointer<RuleRows> self(this);
    m_own = widget;
    widget->setVisible(shown);
    if (self)
        m_own = nullptr;
}

void RuleRows::setUsable(QWidget *widget, bool usable)
{
    if (!widget || usable == !widget->testAttribute(Qt::WA_ForceDisabled))
        return;
    const QPointer<RuleRows> self(this);
    m_own = widget;
    widget->setEnabled(usable);
    if (self)
        m_own = nullptr;
}

void RuleRows::groupToggled(int row)
{
    PropertyEditor *const editor = at(row).editor;
    QWidget *const field = at(row).field;
    if (!editor || !field)
        return;
    noteMembers(row, editor->value().toBool());
    renewSizeHintsAround(field->parentWidget(), m_panel);
}

/// A row that the rules hide does not notice that its group folds, for it is hidden already.
void RuleRows::noteMembers(int row, bool open)
{
    const QVector<int> members = at(row).members;
    for (const int member : members) {
        if (!at(member).shown)
            at(member).wantedVisible = open;
        if (at(member).property->type == kPropertyTypeBeginGroup)
            noteMembers(member, open);
    }
}

void RuleRows::othersShowed(int row, QWidget *widget)
{
    if (widget == at(row).field)
        at(row).wantedVisible = true;
    if (!at(row).shown)
        setShown(widget, false);
}

void RuleRows::othersHid(int row, const QWidget *widget)
{
    if (widget == at(row).field && at(row).shown)
        at(row).wantedVisible = false;
}

void RuleRows::othersEnabled(int row, QWidget *widget)
{
    const bool enabled = !widget->testAttribute(Qt::WA_ForceDisabled);
    if (widget == at(row).field && (enabled || at(row).usable))
        at(row).wantedEnabled = enabled;
    if (enabled && !at(row).usable)
        setUsable(widget, false);
}

} // namespace Tessark::PropertyHost
