#include "host/RuleRows_p.h"

#include "host/EditorRange_p.h"

#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>
#include <property/PropertyLayout.h>

#include <QChildEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpacerItem>
#include <QTabWidget>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool isHiddenByHand(const QWidget &widget)
{
    return widget.testAttribute(Qt::WA_WState_ExplicitShowHide)
           && widget.testAttribute(Qt::WA_WState_Hidden);
}

/// The layout keeps its size hints until an item is added; they must follow the rows that are shown.
void renewSizeHints(QLayout *layout)
{
    if (!qobject_cast<PropertyLayout *>(layout))
        return;
    layout->addItem(new QSpacerItem(0, 0));
    delete layout->takeAt(layout->count() - 1);
}

/// For a page, also the sizes of the pages around it.
void renewSizeHintsAround(const QWidget *page, const QWidget *panel)
{
    for (const QWidget *widget = page; widget; widget = widget->parentWidget()) {
        renewSizeHints(widget->layout());
        if (widget == panel)
            return;
    }
}

QTabWidget *tabWidgetOf(const QWidget *page)
{
    for (QWidget *parent = page->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *const tabs = qobject_cast<QTabWidget *>(parent))
            return tabs;
    }
    return nullptr;
}

} // namespace

RuleRows::RuleRows(PropertyEditorPanel *panel, const QSet<const Property *> &ruled)
    : m_panel(panel)
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
    QSet<QWidget *> pages;
    QVector<QPointer<QWidget>> paused;
    for (const int row : std::as_const(changed)) {
        QWidget *const page = at(row).field ? at(row).field->parentWidget() : nullptr;
        if (!page || !qobject_cast<PropertyLayout *>(page->layout()) || pages.contains(page))
            continue;
        pages.insert(page);
        paused.append(page);
        m_paused.insert(page);
        page->installEventFilter(this);
        page->layout()->setEnabled(false);
    }
    // What a widget that comes or goes calls may delete anything.
    const QPointer<RuleRows> self(this);
    for (int i = 0; self && i < changed.size(); ++i)
        show(changed.at(i));
    for (const QPointer<QWidget> &page : std::as_const(paused)) {
        if (!page || !page->layout())
            continue;
        page->layout()->setEnabled(true);
        renewSizeHintsAround(page, self ? m_panel.data() : nullptr);
        if (!self)
            continue;
        m_paused.remove(page);
        page->removeEventFilter(this);
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
}

bool RuleRows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildRemoved && m_paused.contains(watched)) {
        forgetWidget(static_cast<QWidget *>(watched), static_cast<QChildEvent *>(event)->child());
        return false;
    }
    const bool isNews = event->type() == QEvent::ShowToParent
                        || event->type() == QEvent::HideToParent
                        || event->type() == QEvent::EnabledChange;
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
    QVector<PropertyEditor *> editors;
    m_panel->getEditors(editors, QString());
    QVector<const QLayout *> layouts;
    QSet<const QLayout *> seen;
    for (PropertyEditor *editor : std::as_const(editors)) {
        QWidget *const field = editor ? editor->widget(nullptr) : nullptr;
        if (!field)
            continue;
        const auto index = static_cast<int>(m_rows.size());
        Row row;
        row.editor = editor;
        row.field = field;
        row.property = editor->editedProperty();
        m_rows.push_back(row);
        m_rowsOf.insert(row.property, index);
        m_rowOfWidget.insert(field, index);
        const QLayout *const layout =
            field->parentWidget() ? field->parentWidget()->layout() : nullptr;
        if (qobject_cast<const PropertyLayout *>(layout) && !seen.contains(layout)) {
            seen.insert(layout);
            layouts.append(layout);
        }
    }
    for (const QLayout *layout : std::as_const(layouts))
        walk(*layout);
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row) {
        if (at(row).property->type == kPropertyTypeTab)
            findTabs(row);
    }
}

/// Finds the labels of the rows of a page, and the groups that they lie in.
void RuleRows::walk(const QLayout &layout)
{
    QVector<int> groups;
    const QWidget *before = nullptr;
    for (int i = 0; i < layout.count(); ++i) {
        QWidget *const widget = layout.itemAt(i)->widget();
        const int row = m_rowOfWidget.value(widget, -1);
        if (widget && widget->property("endGroup").toBool() && !groups.isEmpty())
            groups.removeLast();
        if (row >= 0) {
            at(row).group = groups.isEmpty() ? -1 : groups.last();
            if (at(row).group >= 0)
                at(at(row).group).members.append(row);
            const bool hasLabel = !at(row).editor->hint(kPropertyHintFullWidth).toBool()
                                  && !m_rowOfWidget.contains(before);
            if (hasLabel && qobject_cast<const QLabel *>(before))
                at(row).label = const_cast<QWidget *>(before);
        }
        if (row >= 0 && widget->property("beginGroup").toBool())
            groups.append(row);
        before = widget;
    }
}

void RuleRows::findTabs(int row)
{
    QTabWidget *const tabs = tabWidgetOf(at(row).field);
    at(row).tabs = tabs;
    const int group = m_rowOfWidget.value(tabs, -1);
    if (group < 0)
        return;
    at(group).members.append(row);
    at(row).group = -1;
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
    if (wanted.tabs && wanted.field) {
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

/// A disabled layout would keep the item of a widget that goes.
void RuleRows::forgetWidget(QWidget *parent, const QObject *child)
{
    QLayout *const layout = parent->layout();
    for (int i = 0; layout && i < layout->count(); ++i) {
        if (layout->itemAt(i)->widget() == child) {
            delete layout->takeAt(i);
            return;
        }
    }
}

} // namespace Tessark::PropertyHost
