#include "host/RowMenu_p.h"

#include "host/GroupFolding_p.h"
#include "host/LateToolTip_p.h"
#include "host/OperandDialog_p.h"
#include "host/RowHelp_p.h"
#include "host/RowText_p.h"
#include "host/SelectionDelegate.h"
#include "host/ValueJson.h"
#include "host/ValueKind_p.h"
#include "host/ViewPanel_p.h"

#include <property/Property.h>
#include <property/PropertyEditor.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QWhatsThis>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

bool isPasteTarget(const PanelRow &row)
{
    return row.editor && row.field && row.field->isEnabled() && carriesValue(row.property->type)
           && row.property->type != kPropertyTypeStaticText;
}

/// Pages of tabs and what holds them are no rows to users.
bool hasMenu(const PanelRow &row)
{
    return row.field && (carriesValue(row.property->type) || GroupFolding::isGroup(row));
}

QList<QComboBox *> comboBoxesIn(QWidget *field)
{
    auto *const box = qobject_cast<QComboBox *>(field);
    return box ? QList<QComboBox *>{box} : field->findChildren<QComboBox *>();
}

/// Below a widget, or where the pointer is.
QPoint placeOf(const QWidget &widget, const QContextMenuEvent &event)
{
    return event.reason() == QContextMenuEvent::Mouse
               ? event.globalPos()
               : widget.mapToGlobal(widget.rect().bottomLeft());
}

} // namespace

RowMenu::RowMenu(ViewPanel *panel, const DelegateChain &delegates)
    : QObject(panel)
    , m_panel(panel)
    , m_rows(panel->rows())
    , m_delegates(delegates)
    , m_changed(delegates)
    , m_edit(delegates)
{
    connect(panel, &ViewPanel::menuRequested, this, &RowMenu::openUnlessTheirOwn);
    for (const PanelRow &row : m_rows->all()) {
        if (row.label)
            row.label->installEventFilter(this);
        else if (GroupFolding::isGroup(row))
            row.field->installEventFilter(this);
        if (!carriesValue(row.property->type))
            continue;
        const auto boxes = comboBoxesIn(row.field);
        for (QComboBox *box : boxes)
            box->installEventFilter(this);
    }
}

bool RowMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto &request = *static_cast<QContextMenuEvent *>(event);
    // A combo box takes the event and does nothing with it.
    const bool isOfKeys = request.reason() == QContextMenuEvent::Keyboard;
    const auto *const widget = static_cast<QWidget *>(watched);
    const int row = m_rows->indexAround(widget);
    if (row < 0 || (qobject_cast<QComboBox *>(watched) && !isOfKeys))
        return false;
    open(row, placeOf(*widget, request));
    return true;
}

/// A field that has a menu of its own has taken the event. That of the panel stays where there is a label
/// to ask for this one.
void RowMenu::openUnlessTheirOwn(QContextMenuEvent *request)
{
    const bool isOfKeys = request->reason() == QContextMenuEvent::Keyboard;
    const QWidget *const asked =
        isOfKeys ? QApplication::focusWidget()
                 : m_panel->childAt(m_panel->mapFromGlobal(request->globalPos()));
    const int row = m_rows->indexAround(asked);
    if (row < 0 || !hasMenu(m_rows->at(row)) || (!isOfKeys && m_rows->at(row).label))
        return;
    request->accept();
    open(row, placeOf(*m_rows->at(row).field, *request));
}

/// Host code runs here, and may delete anything.
void RowMenu::open(int row, const QPoint &position)
{
    // Not a child of the panel: what is chosen in it may delete that.
    const QPointer<QMenu> menu = new QMenu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setLayoutDirection(m_panel->layoutDirection());
    connect(this, &QObject::destroyed, menu, &QWidget::close);
    const QPointer<RowMenu> self(this);
    fill(*menu, row, position);
    if (self && menu)
        Q_EMIT aboutToShow(menu, m_rows->at(row).property);
    if (self && menu)
        menu->popup(position);
    else if (menu)
        menu->deleteLater();
}

void RowMenu::fill(QMenu &menu, int row, const QPoint &position)
{
    const QPointer<RowMenu> self(this);
    addValueActions(menu, row);
    if (!self)
        return;
    const Property &property = *m_rows->at(row).property;
    QAction *const copyName = menu.addAction(tr("Copy &Name"), this, [name = property.name] {
        QApplication::clipboard()->setText(name);
    });
    copyName->setEnabled(!property.name.isEmpty());
    addRelativeEdits(menu, row);
    menu.addSeparator();
    QAction *const help = menu.addAction(tr("&Help"), this, [this, row, position] {
        QWhatsThis::showText(position, toolTipOf(helpOf(*m_rows->at(row).property)), m_panel);
    });
    help->setEnabled(!helpOf(property).isEmpty());
}

void RowMenu::addValueActions(QMenu &menu, int row)
{
    const QPointer<RowMenu> self(this);
    const QVector<int> changed = changedRowsOf(row);
    const QString text = self ? copiedText(row) : QString();
    if (!self)
        return;
    const Assignments assignments = pasted(row, QApplication::clipboard()->text());

    QAction *const toDefault =
        menu.addAction(tr("Set to &Default"), this, [this, changed] { setToDefault(changed); });
    toDefault->setEnabled(!changed.isEmpty());
    menu.addSeparator();
    QAction *const copy =
        menu.addAction(tr("&Copy"), this, [text] { QApplication::clipboard()->setText(text); });
    copy->setEnabled(!text.isNull());
    QAction *const toPaste =
        menu.addAction(tr("&Paste"), this, [this, assignments] { paste(assignments); });
    toPaste->setEnabled(!assignments.empty());
}

void RowMenu::addRelativeEdits(QMenu &menu, int row)
{
    const SelectionDelegate *const selection = m_delegates.selection();
    const PanelRow &widgets = m_rows->at(row);
    if (!selection || !selection->isCommon(widgets.property) || !isPasteTarget(widgets)
        || !parseRelativeEdit(QStringLiteral("+=0"), *widgets.property))
        return;
    menu.addSeparator();
    menu.addAction(tr("&Add to Each..."), this,
                   [this, row] { askForOperand(row, RelativeOperation::Add); });
    menu.addAction(tr("&Multiply Each..."), this,
                   [this, row] { askForOperand(row, RelativeOperation::Multiply); });
}

void RowMenu::askForOperand(int row, RelativeOperation operation)
{
    const PanelRow &widgets = m_rows->at(row);
    if (!m_panel || !widgets.field)
        return;
    auto *const dialog = new OperandDialog(*widgets.property, operation, m_panel);
    // Later: the dialog, which may go with the panel, is still at work.
    connect(
        dialog, &OperandDialog::operationChosen, this,
        [this, row](const QString &text) { changeEach(row, text); }, Qt::QueuedConnection);
    dialog->open();
}

void RowMenu::changeEach(int row, const QString &text)
{
    const PanelRow widgets = m_rows->at(row);
    const auto edit = parseRelativeEdit(text, *widgets.property);
    const auto problem = edit ? RowEdit(m_edit).change(widgets, *edit) : std::nullopt;
    if (problem && m_panel)
        new LateToolTip(m_panel, problem->message);
}

/// The rows with values that the menu is about: of a group all in it, on the pages of its tabs too.
QVector<int> RowMenu::rowsOf(int row) const
{
    QVector<int> rows;
    if (GroupFolding::isGroup(m_rows->at(row)))
        collect(row, rows);
    else if (carriesValue(m_rows->at(row).property->type))
        rows.append(row);
    return rows;
}

void RowMenu::collect(int row, QVector<int> &rows) const
{
    const auto &type = m_rows->at(row).property->type;
    if (carriesValue(type))
        rows.append(row);
    for (const int member : m_rows->at(row).members)
        collect(member, rows);
    if (type != kPropertyTypeTab)
        return;
    for (int i = 0; i < m_rows->count(); ++i) {
        const PanelRow &other = m_rows->at(i);
        if (other.group < 0 && !other.tabs && other.field
            && other.field->parentWidget() == m_rows->at(row).field)
            collect(i, rows);
    }
}

QVector<int> RowMenu::changedRowsOf(int row) const
{
    const QPointer<const RowMenu> self(this);
    QVector<int> changed;
    const QVector<int> rows = rowsOf(row);
    for (const int each : rows) {
        const bool isChanged = self && m_changed.isChanged(m_rows->at(each));
        if (self && isChanged && m_rows->at(each).field && m_rows->at(each).field->isEnabled())
            changed.append(each);
    }
    return changed;
}

/// Null where there is nothing to copy: a mixed row has no value.
QString RowMenu::copiedText(int row) const
{
    const QPointer<const RowMenu> self(this);
    if (!GroupFolding::isGroup(m_rows->at(row))) {
        const QVariant value = valueOf(row);
        return self && value.isValid() ? textOfValue(*m_rows->at(row).property, value) : QString();
    }
    QJsonObject values;
    const QVector<int> rows = rowsOf(row);
    for (const int each : rows) {
        const QVariant value = self ? valueOf(each) : QVariant();
        if (!self)
            return {};
        const Property &property = *m_rows->at(each).property;
        const QJsonValue json = valueToJson(property, value);
        if (!property.name.isEmpty() && !json.isUndefined())
            values.insert(property.name, json);
    }
    return values.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(values).toJson());
}

/// The value that everyone has, or an invalid variant.
QVariant RowMenu::valueOf(int row) const
{
    Property *const property = m_rows->at(row).property;
    const SelectionDelegate *const selection = m_delegates.selection();
    const bool isMixed = selection && selection->isMixed(property);
    return m_panel && carriesValue(property->type) && !isMixed ? m_panel->value(property)
                                                               : QVariant();
}

RowMenu::Assignments RowMenu::pasted(int row, const QString &text) const
{
    if (GroupFolding::isGroup(m_rows->at(row)))
        return pastedIntoGroup(row, text);
    const auto value = isPasteTarget(m_rows->at(row)) ? valueOfText(*m_rows->at(row).property, text)
                                                      : std::nullopt;
    return value ? Assignments{{row, *value}} : Assignments{};
}

/// All that the text, a JSON object, names in the group; none if one of them does not fit.
RowMenu::Assignments RowMenu::pastedIntoGroup(int group, const QString &text) const
{
    const QJsonObject values = QJsonDocument::fromJson(text.toUtf8()).object();
    Assignments assignments;
    const QVector<int> rows = rowsOf(group);
    for (const int row : rows) {
        const Property &property = *m_rows->at(row).property;
        if (!isPasteTarget(m_rows->at(row)) || !values.contains(property.name))
            continue;
        QString ignored;
        const auto value = valueFromJson(property, values.value(property.name), ignored);
        if (!value)
            return {};
        assignments.push_back({row, *value});
    }
    return assignments;
}

void RowMenu::setToDefault(const QVector<int> &rows)
{
    if (rows.size() == 1) {
        const PanelRow widgets = m_rows->at(rows.first());
        RowEdit(m_edit).setToDefault(widgets);
        return;
    }
    // This object may go with each edit; the rows stay as long as they are held.
    const auto all = [rows = rows, panelRows = m_rows, edit = m_edit] {
        for (const int row : rows)
            edit.setToDefault(panelRows->at(row));
    };
    RowEdit(m_edit).asOneStep(tr("Set to Default"), all);
}

void RowMenu::paste(const Assignments &assignments)
{
    if (assignments.size() == 1) {
        const PanelRow widgets = m_rows->at(assignments.front().row);
        const QVariant value = assignments.front().value;
        RowEdit(m_edit).set(widgets, value);
        return;
    }
    const auto all = [assignments, panelRows = m_rows, edit = m_edit] {
        for (const Assignment &assignment : assignments)
            edit.set(panelRows->at(assignment.row), assignment.value);
    };
    RowEdit(m_edit).asOneStep(tr("Paste"), all);
}

} // namespace Tessark::PropertyHost
