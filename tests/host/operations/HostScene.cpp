#include "HostScene.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDebug>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace Operations {

namespace {

constexpr int kStores = 3;

std::vector<std::unique_ptr<EditedObject>> makeObjects()
{
    std::vector<std::unique_ptr<EditedObject>> objects;
    for (int number = 0; number < kStores; ++number)
        objects.push_back(makeStoreObject(number));
    objects.push_back(makeStructObject());
    objects.push_back(makeBoundObject());
    return objects;
}

QVector<ObjectFacts> factsOf(const std::vector<std::unique_ptr<EditedObject>> &objects)
{
    QVector<ObjectFacts> facts;
    for (const auto &object : objects)
        facts.append(object->facts());
    return facts;
}

const QStringList &valueRows()
{
    static const QStringList s_rows{kGain, kLimit, kCount, kOn, kTitle, kMode, kPlace};
    return s_rows;
}

QString textOf(const QVariant &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

QString lastOf(const QStringList &steps)
{
    constexpr int kShown = 8;
    return steps.mid(std::max(0, int(steps.size()) - kShown)).join(QLatin1Char(' '));
}

/// The name of the row; a group has its label.
QString nameOf(const Property &property)
{
    return property.name.isEmpty() || property.type == kPropertyTypeBeginGroup ? property.label
                                                                               : property.name;
}

} // namespace

HostScene::HostScene()
    : m_objects(makeObjects())
    , m_model(factsOf(m_objects))
{
    renewStack();
    m_view = std::make_unique<PropertyPanelView>();
    select({0, 1});
    showSelection();
    renewView();
}

HostScene::~HostScene()
{
    m_view.reset();
    m_stack.reset();
}

PropertyEditor *HostScene::editor(const QString &row) const
{
    QVector<PropertyEditor *> editors;
    if (m_view && m_view->panel())
        m_view->panel()->getEditors(editors, QString());
    const auto found = std::find_if(editors.cbegin(), editors.cend(), [&row](const auto *editor) {
        return editor && nameOf(*editor->editedProperty()) == row;
    });
    return found == editors.cend() ? nullptr : *found;
}

QStringList HostScene::rowsInSight() const
{
    QStringList rows;
    for (const QString &row : valueRows()) {
        if (m_view && m_model.isVisible(row) && m_model.isEnabled(row))
            rows.append(row);
    }
    return rows;
}

void HostScene::select(const QVector<int> &objects)
{
    flush();
    const bool showsObject = m_model.shownObject().has_value();
    if (showsObject && m_view)
        m_view->clear(); // its rules may have changed the ranges of an object's rows
    m_model.select(objects);
    setMembers();
    if (showsObject)
        showAgain();
}

void HostScene::showSelection()
{
    flush();
    m_model.showSelection();
    m_isListNew = false;
    forgetRows();
    if (!m_view)
        return;
    show(m_selection->list());
    m_selection->attach(m_view->panel());
}

void HostScene::showObject(int object)
{
    flush();
    m_selection->attach(nullptr);
    forgetRows();
    m_model.showObject(object);
    if (!m_view)
        return;
    const auto &shown = m_objects[std::size_t(object)];
    show(shown->list());
    m_undo[std::size_t(object)]->attach(m_view->panel());
    shown->watch(m_view->panel());
    m_view->updateUI();
}

void HostScene::refresh()
{
    m_selection->refresh();
    if (m_view)
        m_view->updateUI();
}

void HostScene::renewView()
{
    m_view.reset();
    seePassing();
    m_model.openGroup();
    m_view = std::make_unique<PropertyPanelView>();
    m_view->resize(420, 460);
    showAgain();
    m_view->show();
}

/// The menu, or the end of another view, may have taken this away.
void HostScene::activateView()
{
    if (m_view->isActiveWindow())
        return;
    m_view->activateWindow();
    if (!QTest::qWaitForWindowActive(m_view.get()))
        m_fault = QStringLiteral("the window does not become active");
}

void HostScene::renewPolicy()
{
    m_policy.reset(); // what waits passes
    seePassing();
    makePolicy();
    m_rows.clear();
    showAgain();
}

void HostScene::renewSelectionDelegate()
{
    flush();
    m_view->clear(); // before the rows
    forgetRows();
    makeSelectionDelegate();
    showAgain();
}

void HostScene::renewUndoDelegate(int object)
{
    flush();
    const auto at = std::size_t(object);
    m_undo[at] = std::make_unique<UndoDelegate>(m_objects[at]->delegate(), m_stack.get());
    m_model.replaceUndoDelegate(object);
    if (m_model.shownObject() == object)
        showAgain();
}

/// Objects that have rows of their own take them along, so that panel and steps have to go before.
void HostScene::renewObject(int object)
{
    flush();
    const auto at = std::size_t(object);
    m_view->clear();
    forgetRows();
    if (m_objects[at]->ownsRows()) {
        m_stack->clear();
        m_model.clearStack();
    }
    m_objects[at]->renew();
    m_model.renew(object);
    m_model.setRules(object, QString(), QString(), false);
    m_objects[at]->setRules(QString(), QString(), false);
    m_undo[at]->setDelegate(m_objects[at]->delegate());
    QCoreApplication::processEvents(); // the selection notices
    setMembers();
    showAgain();
}

/// Edits pass on without steps from now on.
void HostScene::takeStackAway()
{
    flush();
    m_stack.reset();
    m_model.setHasStack(false);
}

void HostScene::renewStack()
{
    if (m_policy)
        flush();
    if (m_view)
        m_view->clear();
    forgetRows();
    m_stack = std::make_unique<QUndoStack>();
    m_model.setHasStack(true);
    m_undo.clear();
    for (int i = 0; i < objectCount(); ++i) {
        m_undo.push_back(
            std::make_unique<UndoDelegate>(m_objects[std::size_t(i)]->delegate(), m_stack.get()));
        m_model.replaceUndoDelegate(i);
    }
    makeSelectionDelegate();
    if (!m_policy)
        makePolicy();
    showAgain();
}

void HostScene::setMode(const QString &row, CommitMode mode)
{
    m_modes.insert(row, mode);
    for (const Property *property : std::as_const(m_rows)) {
        if (property->name == row)
            m_policy->setMode(property, mode);
    }
    seePassing();
}

void HostScene::setRules(int object, const QString &placeVisible, const QString &titleEnabled,
                         bool gainFollows)
{
    flush();
    m_model.setRules(object, placeVisible, titleEnabled, gainFollows);
    if (m_model.shownObject() && m_view)
        m_view->clear();
    m_objects[std::size_t(object)]->setRules(placeVisible, titleEnabled, gainFollows);
    setMembers();
    showAgain();
}

void HostScene::setPartialRows(PartialRows rows)
{
    flush();
    if (m_model.shownObject() && m_view)
        m_view->clear();
    m_model.setPartialRowsShown(rows == PartialRows::Disable);
    m_isListNew = false;
    m_selection->setPartialRows(rows);
    showAgain();
}

void HostScene::hostSets(int object, const QString &row, const QVariant &value)
{
    m_model.hostSets(object, row, value);
    m_objects[std::size_t(object)]->hostSets(row, value);
}

bool HostScene::assign(const QString &row, const QVariant &value)
{
    flush();
    return m_selection->assign(selectedRow(row), value) == m_model.assign(row, value);
}

bool HostScene::add(const QString &row, int operand)
{
    flush();
    const auto problem =
        m_selection->applyRelative(selectedRow(row), RelativeOperation::Add, operand);
    return !problem == m_model.add(row, operand);
}

bool HostScene::setToDefault(const QString &row)
{
    flush();
    return m_selection->setToDefault(selectedRow(row)) == m_model.setToDefault(row);
}

/// As a host writes what it took from a clipboard.
void HostScene::paste(const QString &row, const QVariant &value)
{
    Property *const property = editor(row)->editedProperty();
    m_view->panel()->setValue(property, value, NewChange);
    if (m_view)
        m_view->updateUI();
}

void HostScene::undo(bool refreshes)
{
    flush();
    m_model.undo();
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    m_stack->undo();
    if (refreshes)
        refresh();
}

void HostScene::redo()
{
    flush();
    m_model.redo();
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    m_stack->redo();
    refresh();
}

void HostScene::flush()
{
    if (!m_policy)
        return;
    m_policy->flush();
    seePassing();
}

QString HostScene::difference()
{
    QCoreApplication::processEvents(); // some marks come then
    seePassing();
    for (const QString &difference : {std::exchange(m_fault, QString()), valueDifference(),
                                      stackDifference(), panelDifference()}) {
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

QString HostScene::inWords() const
{
    if (m_model.shownObject())
        return QStringLiteral("object %1").arg(*m_model.shownObject());
    QStringList objects;
    for (const int object : m_model.selected())
        objects.append(QString::number(object));
    return QStringLiteral("selected: ") + objects.join(QLatin1Char(' '));
}

/// Between panel and policy.
void HostScene::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    seePassing();
    const QString row = nameOf(*property);
    if (m_isRestoring) { // a group, which announces what it shows
        m_policy->setValue(property, value, flags);
        return;
    }
    m_told.insert(row, value);
    Edit edit{row, value, flags.testFlag(ContinuedChange), {}, m_defaultRow == row, m_isPassing};
    if (row == kPlace)
        edit.parts = m_parts;
    m_model.edited(edit);
    const bool isLive = m_policy->mode(property).isLive();
    m_policy->setValue(property, value, flags);
    if (isLive && m_policy->hasPending())
        m_fault = row + QStringLiteral(" is live, but waits");
    seePassing();
    if (std::exchange(m_deletesView, false))
        m_view.reset();
}

QVariant HostScene::value(Property *property)
{
    return m_policy ? m_policy->value(property) : QVariant();
}

/// The row in the list of the selection; null without one.
Property *HostScene::selectedRow(const QString &row) const
{
    const QVector<Property *> rows = m_selection->properties();
    const auto found = std::find_if(rows.cbegin(), rows.cend(), [&row](const Property *property) {
        return property->name == row;
    });
    return found == rows.cend() ? nullptr : *found;
}

IPropertyEditorDelegate *HostScene::inner() const
{
    if (m_model.shownObject())
        return m_undo[std::size_t(*m_model.shownObject())].get();
    return m_selection.get();
}

void HostScene::makePolicy()
{
    m_policy = std::make_unique<CommitPolicy>(inner());
}

/// The policy must not know rows that go.
void HostScene::forgetRows()
{
    if (m_policy) {
        for (const Property *property : std::as_const(m_rows))
            m_policy->forget(property);
    }
    m_rows.clear();
}

void HostScene::show(const PropertyList &list)
{
    makePolicy();
    m_rows = list.properties();
    for (const Property *property : std::as_const(m_rows)) {
        if (m_modes.contains(property->name))
            m_policy->setMode(property, *m_modes.constFind(property->name));
    }
    m_view->setProperties(list, this);
    m_policy->watch(m_view->panel());
}

QVector<SelectionMember> HostScene::members() const
{
    QVector<SelectionMember> members;
    for (const int selected : m_model.selected()) {
        const EditedObject &object = *m_objects[std::size_t(selected)];
        members.append({object.list(), object.delegate()});
    }
    return members;
}

/// A panel of other rows is for the host to make.
void HostScene::setMembers()
{
    QVector<SelectionMember> members;
    for (const int object : m_model.selected())
        members.append(
            {m_objects[std::size_t(object)]->list(), m_objects[std::size_t(object)]->delegate()});
    m_isListNew = false;
    m_selection->setMembers(members);
    if (m_isListNew && !m_model.shownObject())
        showSelection();
}

void HostScene::showAgain()
{
    if (m_model.shownObject())
        showObject(*m_model.shownObject());
    else
        showSelection();
}

void HostScene::makeSelectionDelegate()
{
    m_selection = std::make_unique<SelectionDelegate>(m_stack.get());
    QObject::connect(m_selection.get(), &SelectionDelegate::listChanged, m_selection.get(),
                     [this] { m_isListNew = true; });
    m_model.replaceSelectionDelegate();
    m_model.setPartialRowsShown(false);
    m_model.select(m_model.selected());
    m_selection->setMembers(members());
}

/// Tells the model that what waited has passed.
void HostScene::seePassing()
{
    if (m_model.isPending() && (!m_policy || !m_policy->hasPending()))
        m_model.passed();
}

QString HostScene::valueDifference() const
{
    for (int i = 0; i < objectCount(); ++i) {
        const EditedObject &object = *m_objects[std::size_t(i)];
        for (const QString &row : valueRows()) {
            if (m_model.has(i, row) && object.kept(row) != m_model.kept(i, row)) {
                return QStringLiteral("%1 of object %2 is %3 and not %4")
                    .arg(row)
                    .arg(i)
                    .arg(textOf(object.kept(row)), textOf(m_model.kept(i, row)));
            }
        }
        if (object.triggers() != m_model.triggers(i))
            return QStringLiteral("the action of object %1 was triggered %2 times and not %3")
                .arg(i)
                .arg(object.triggers())
                .arg(m_model.triggers(i));
    }
    return {};
}

QString HostScene::stackDifference() const
{
    QStringList steps;
    for (int i = 0; m_stack && i < m_stack->count(); ++i)
        steps.append(m_stack->text(i));
    const int index = m_stack ? m_stack->index() : 0;
    if (steps == m_model.steps() && index == m_model.stepIndex())
        return {};
    return QStringLiteral("the stack stands at %1 of %2 and not at %3 of %4")
        .arg(index)
        .arg(lastOf(steps))
        .arg(m_model.stepIndex())
        .arg(lastOf(m_model.steps()));
}

QString HostScene::panelDifference() const
{
    if (!m_model.shownObject() && m_selection->mixedCount() != m_model.mixedInSelection()) {
        return QStringLiteral("%1 rows are mixed and not %2")
            .arg(m_selection->mixedCount())
            .arg(m_model.mixedInSelection());
    }
    if (!m_view)
        return {};
    for (const QString &row : valueRows()) {
        const QString difference = rowDifference(row);
        if (!difference.isEmpty())
            return difference;
    }
    return {};
}

QString HostScene::rowDifference(const QString &row) const
{
    const PropertyEditor *const shown = editor(row);
    if (bool(shown) != m_model.isInPanel(row))
        return row + QLatin1String(shown ? " is in the panel" : " is not in the panel");
    if (!shown)
        return {};
    const QString difference = ruleDifference(row);
    if (!difference.isEmpty())
        return difference;
    if (m_model.isMixed(row))
        return m_model.isPending(row) ? QString() : mixedDifference(row);
    if (shown->value() == m_model.inEditor(row))
        return {};
    return QStringLiteral("%1 shows %2 and not %3")
        .arg(row, textOf(shown->value()), textOf(m_model.inEditor(row)));
}

QString HostScene::ruleDifference(const QString &row) const
{
    PropertyEditor *const shown = editor(row);
    const QWidget *const widget = shown->widget(nullptr);
    const bool isVisible = m_model.isVisible(row);
    if (widget->isVisibleTo(m_view->panel()) != isVisible)
        return row + QLatin1String(isVisible ? " is hidden" : " is shown");
    const bool isEnabled = m_model.isEnabled(row);
    if (widget->isEnabled() != isEnabled)
        return row + QLatin1String(isEnabled ? " is disabled" : " is enabled");
    const double highest = shown->editedProperty()->maxValue.toDouble();
    if (row != kGain || highest == m_model.highestGain())
        return {};
    return QStringLiteral("gain goes up to %1 and not to %2")
        .arg(highest)
        .arg(m_model.highestGain());
}

QString HostScene::mixedDifference(const QString &row) const
{
    const QWidget *const widget = editor(row)->widget(nullptr);
    const auto fields = widget->findChildren<QAbstractSpinBox *>();
    for (int part = 0; part < fields.size(); ++part) {
        const bool isMixed = fields.size() == 1 || m_model.isPartMixed(row, part);
        if (fields.at(part)->text().isEmpty() != isMixed)
            return QStringLiteral("field %1 of %2 is %3blank")
                .arg(part)
                .arg(row, isMixed ? QStringLiteral("not ") : QString());
    }
    const auto *const box = qobject_cast<const QCheckBox *>(widget);
    if (box && box->checkState() != Qt::PartiallyChecked)
        return row + QStringLiteral(" does not look mixed");
    const auto *const choices = qobject_cast<const QComboBox *>(widget);
    if (choices && choices->currentIndex() >= 0)
        return row + QStringLiteral(" has a choice");
    const auto *const line = qobject_cast<const QLineEdit *>(widget);
    return line && !line->text().isEmpty() ? row + QStringLiteral(" has a text") : QString();
}

} // namespace Operations
