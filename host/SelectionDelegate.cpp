#include "host/SelectionDelegate.h"

#include "host/ChangedRows_p.h"
#include "host/FollowedBounds_p.h"
#include "host/Messages_p.h"
#include "host/PropertyList.h"
#include "host/RowJoin_p.h"
#include "host/SelectionMarks_p.h"
#include "host/SelectionRows_p.h"
#include "host/UndoRun_p.h"
#include "host/ValueJson.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"
#include "host/ValueParts_p.h"

#include <property/PropertyEditorPanel.h>

#include <QImage>
#include <QUndoStack>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

/// A row of one object.
struct SelectionDelegate::Target
{
    SelectionMember member;
    Property *property;

    bool isAlive() const { return member.delegate() != nullptr; }

    bool isSame(const Target &other) const
    {
        return property == other.property && member.delegate() == other.member.delegate();
    }

    QVariant value() const
    {
        IPropertyEditorDelegate *const delegate = member.delegate();
        return delegate ? delegate->value(property) : QVariant();
    }

    void setValue(const QVariant &value, ChangeFlags flags) const
    {
        if (IPropertyEditorDelegate *const delegate = member.delegate())
            delegate->setValue(property, value, flags);
    }
};

struct SelectionDelegate::Row
{
    Property *shown;
    Property declared; // as it was made; editors and rules may add to what is shown
    Targets targets;
    bool isCommon;
    bool hasOwnDefaults;
    MixedState state;
    QVariant value; // what value() gave last
    bool differsFromDefault = false;
};

/// A list that a panel may still have.
struct SelectionDelegate::Retired
{
    std::shared_ptr<PropertyList> list;
    QPointer<PropertyEditorPanel> panel;
};

/// One undo step: what an edit of a row changed in each object.
class SelectionDelegate::Step final : public UndoRun
{
public:
    struct Change
    {
        Target target;
        QVariant before;
        QVariant after;
    };

    Step(SelectionDelegate *owner, const Property *property, quint64 run,
         std::vector<Change> changes)
        : UndoRun(owner, property, run)
        , m_owner(owner)
        , m_changes(std::move(changes))
    {
    }

protected:
    void restoreOrigin() override { restore(&Change::before); }

    void restoreOutcome() override { restore(&Change::after); }

    bool takeOutcome(const UndoRun &later) override
    {
        for (const Change &change : static_cast<const Step &>(later).m_changes) {
            const auto same = [&change](const Change &own) {
                return own.target.isSame(change.target);
            };
            const auto own = std::find_if(m_changes.begin(), m_changes.end(), same);
            if (own == m_changes.end())
                m_changes.push_back(change);
            else
                own->after = change.after;
        }
        return std::any_of(m_changes.cbegin(), m_changes.cend(), [](const Change &change) {
            return change.target.isAlive()
                   && !isSameValue(*change.target.property, change.before, change.after);
        });
    }

private:
    void restore(QVariant Change::*side)
    {
        // The callbacks may clear the stack, and with it this step.
        const std::vector<Change> changes = m_changes;
        const QPointer<SelectionDelegate> owner = m_owner;
        Targets targets;
        for (const Change &change : changes) {
            change.target.setValue(change.*side, NewChange);
            targets.push_back(change.target);
        }
        if (owner)
            owner->restored(targets);
    }

    QPointer<SelectionDelegate> m_owner;
    std::vector<Change> m_changes;
};

namespace {

/// What a mixed row shows in parts that differ: nothing that the editor would not show for no value.
double neutralPart(const Property &property, int part)
{
    const ValueKind kind = typeTraits(property.type).kind;
    if (kind == ValueKind::Size)
        return 1;
    if (kind == ValueKind::Matrix)
        return part > 2 ? 1 : 0; // the scales
    if (kind == ValueKind::ImageFormat)
        return part == 0 ? -1 : 1; // no format; the lowest rate
    const auto bound = [part](const QVector<double> &numbers) {
        return numbers.value(numbers.size() == 1 ? 0 : part, 0.0);
    };
    const double minimum = bound(numbersOf(property, property.minValue));
    const double maximum = bound(numbersOf(property, property.hardMaxValue));
    return std::max(minimum, std::min(maximum, 0.0));
}

/// Whether what some parts have in common is shown. A colour with some channels of nobody is nobody's.
bool showsCommonParts(ValueKind kind)
{
    return kind != ValueKind::Color && kind != ValueKind::OpaqueColor;
}

MixedState stateOf(const Property &property, const QVector<QVariant> &values)
{
    MixedState state;
    if (values.isEmpty() || !carriesValue(property.type))
        return state;
    const auto isOther = [&](const QVariant &value) {
        return !isSameValue(property, value, values.first());
    };
    state.isMixed = std::any_of(values.cbegin(), values.cend(), isOther);
    const QVector<double> first = partsOf(property, values.first());
    if (!state.isMixed || first.isEmpty() || !showsCommonParts(typeTraits(property.type).kind))
        return state;
    state.parts.fill(false, first.size());
    for (const QVariant &value : values) {
        const QVector<double> parts = partsOf(property, value);
        if (parts.size() != first.size())
            return {true, {}};
        for (int i = 0; i < parts.size(); ++i)
            state.parts[i] = state.parts.at(i) || !isSamePart(parts.at(i), first.at(i));
    }
    if (!state.parts.contains(true)) // what differs is not in the parts
        state.parts.fill(true);
    return state;
}

/// A value that the editor shows none of the objects' values for.
QVariant neutralValue(const Property &property, const MixedState &state, const QVariant &first)
{
    const ValueKind kind = typeTraits(property.type).kind;
    if (kind == ValueKind::Picture)
        return QImage();
    if (kind == ValueKind::Choice)
        return property.hint(kPropertyHintValues).isNull() ? QVariant(-1) : QVariant();
    if (!state.parts.contains(false))
        return {};
    QVector<double> parts = partsOf(property, first);
    for (int i = 0; i < parts.size(); ++i) {
        if (state.parts.at(i))
            parts[i] = neutralPart(property, i);
    }
    return valueOfParts(property, parts);
}

} // namespace

SelectionDelegate::SelectionDelegate(QUndoStack *stack, QObject *parent)
    : QObject(parent)
    , m_stack(stack)
    , m_list(std::make_shared<PropertyList>())
{
    // Signal spies and queued connections look the parameter of the signals up by this name.
    qRegisterMetaType<Property *>("Tessark::PropertyUI::Property*");
    m_refreshTimer.setSingleShot(true);
    connect(&m_refreshTimer, &QTimer::timeout, this, &SelectionDelegate::refresh);
}

SelectionDelegate::~SelectionDelegate() = default;

QUndoStack *SelectionDelegate::undoStack() const
{
    return m_stack;
}

PartialRows SelectionDelegate::partialRows() const
{
    return m_partialRows;
}

void SelectionDelegate::setPartialRows(PartialRows partialRows)
{
    if (std::exchange(m_partialRows, partialRows) != partialRows)
        rebuild();
}

void SelectionDelegate::setMembers(const QVector<SelectionMember> &members)
{
    m_members = members;
    rebuild();
}

QVector<SelectionMember> SelectionDelegate::members() const
{
    QVector<SelectionMember> result;
    for (const SelectionMember &member : m_members) {
        if (member.delegate())
            result.append(member);
    }
    return result;
}

const PropertyList &SelectionDelegate::list() const
{
    return *m_list;
}

QVector<Property *> SelectionDelegate::properties() const
{
    return m_list->properties();
}

void SelectionDelegate::attach(PropertyEditorPanel *panel)
{
    m_marks.reset();
    m_panel = panel;
    if (!panel)
        return;
    m_marks = std::make_unique<SelectionMarks>(panel, properties());
    connect(m_marks.get(), &SelectionMarks::menuOpens, this, [this] { offerDefaults(true); });
    connect(m_marks.get(), &SelectionMarks::menuClosed, this, [this] { offerDefaults(false); });
    for (const Row &row : m_rows) {
        if (!row.isCommon)
            m_marks->setUsable(row.shown, false);
    }
    watchMenu();
    refresh();
}

bool SelectionDelegate::isMixed(const Property *property) const
{
    const Row *const row = find(property);
    return row && row->state.isMixed;
}

int SelectionDelegate::mixedCount() const
{
    return static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(),
                                          [](const Row &row) { return row.state.isMixed; }));
}

bool SelectionDelegate::isCommon(const Property *property) const
{
    const Row *const row = find(property);
    return row && row->isCommon;
}

void SelectionDelegate::setValue(Property *property, const QVariant &value, ChangeFlags flags)
{
    if (m_marks)
        m_marks->noteEdit(property, value);
    const Targets targets = commonTargets(property);
    if (targets.empty())
        return;
    if (!carriesValue(property->type)) {
        for (const Target &target : targets)
            target.setValue(value, flags);
        return;
    }
    const Row &edited = *find(property);
    if (m_marks && m_marks->takeDefault(property)
        && (edited.hasOwnDefaults || edited.state.isMixed)) {
        setToDefault(property);
        return;
    }
    const ValueKind kind = typeTraits(property->type).kind;
    const bool mayBeInvalid = kind == ValueKind::Picture || kind == ValueKind::Any;
    if ((!value.isValid() && !mayBeInvalid) || isPassedThrough(*find(property), value))
        return;

    const bool wasMixed = isMixed(property) || (m_marks && m_marks->isLate(property));
    const auto before = read(targets);
    const Row *const row = before ? find(property) : nullptr;
    if (!row || !write(property, targets, *before, writtenValues(*row, value, *before), flags)
        || !readRow(property))
        return;
    if (m_marks && (wasMixed || isMixed(property)))
        m_marks->mark(property);
}

QVariant SelectionDelegate::value(Property *property)
{
    if (!readRow(property))
        return {};
    const Row *const row = find(property);
    if (!row)
        return {};
    if (m_marks && row->state.isMixed)
        m_marks->markLater(property);
    return row->value;
}

bool SelectionDelegate::assign(Property *property, const QVariant &value)
{
    const Targets targets = commonTargets(property);
    if (targets.empty() || !carriesValue(property->type))
        return false;
    const auto before = read(targets);
    return before
           && writeByCode(property, targets, *before, QVector<QVariant>(before->size(), value));
}

std::optional<Problem> SelectionDelegate::applyRelative(Property *property,
                                                        RelativeOperation operation,
                                                        const QVariant &operand)
{
    Problem problem;
    const Targets targets = commonTargets(property);
    if (targets.empty()) {
        problem.message = Messages::tr("not a row that all selected objects have");
        return problem;
    }
    problem.row = m_rowOf.value(property);
    problem.name = property->name;
    const auto before = read(targets);
    if (!before)
        return std::nullopt;
    QVector<QVariant> after(before->size());
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (!targets[i].isAlive()) // went while it, or another, was asked
            continue;
        const auto at = static_cast<int>(i);
        const auto result = applyRelativeEdit(*targets[i].property, before->at(at),
                                              {operation, operand}, problem.message);
        if (!result)
            return problem;
        after[at] = *result;
    }
    writeByCode(property, targets, *before, after);
    return std::nullopt;
}

bool SelectionDelegate::hasDefault(const Property *property) const
{
    const Targets targets = commonTargets(property);
    return std::any_of(targets.cbegin(), targets.cend(), [](const Target &target) {
        return !target.property->defaultValue.isNull();
    });
}

bool SelectionDelegate::differsFromDefault(const Property *property) const
{
    const Row *const row = find(property);
    return row && row->isCommon && row->differsFromDefault;
}

bool SelectionDelegate::setToDefault(Property *property)
{
    if (!hasDefault(property) || !carriesValue(property->type))
        return false;
    Targets targets = commonTargets(property);
    const auto hasNone = [](const Target &target) {
        return target.property->defaultValue.isNull();
    };
    targets.erase(std::remove_if(targets.begin(), targets.end(), hasNone), targets.end());
    QVector<QVariant> defaults;
    for (const Target &target : targets)
        defaults.append(target.property->defaultValue);
    const auto before = read(targets);
    return before && writeByCode(property, targets, *before, defaults);
}

void SelectionDelegate::refresh()
{
    const QPointer<SelectionDelegate> self(this);
    const std::shared_ptr<PropertyList> list = m_list; // callbacks may replace it
    const QVector<Property *> properties = list->properties();
    for (Property *const property : properties) {
        if (!readRow(property))
            return;
    }
    if (m_panel && m_marks)
        m_panel->updateUI();
    if (self && m_marks)
        m_marks->markAll();
}

SelectionDelegate::Row *SelectionDelegate::find(const Property *property)
{
    const auto index = m_rowOf.constFind(property);
    return index == m_rowOf.constEnd() ? nullptr : &m_rows[static_cast<std::size_t>(*index)];
}

const SelectionDelegate::Row *SelectionDelegate::find(const Property *property) const
{
    const auto index = m_rowOf.constFind(property);
    return index == m_rowOf.constEnd() ? nullptr : &m_rows[static_cast<std::size_t>(*index)];
}

/// Where an edit of the row goes; nowhere unless every object has it.
SelectionDelegate::Targets SelectionDelegate::commonTargets(const Property *property) const
{
    const Row *const row = find(property);
    Targets result;
    if (row && row->isCommon) {
        std::copy_if(row->targets.cbegin(), row->targets.cend(), std::back_inserter(result),
                     [](const Target &target) { return target.isAlive(); });
    }
    return result;
}

void SelectionDelegate::rebuild()
{
    ++m_run; // what goes on is a change of other objects from now on
    m_members = members();
    watchMembers();
    QVector<QVector<Property *>> objects;
    for (const SelectionMember &member : std::as_const(m_members))
        objects.append(member.properties());

    const std::vector<JoinedRow> joined = joinedRows(objects, m_partialRows);
    const auto isKept = [this](const JoinedRow &made, const Row &row) {
        const bool showsRange = m_marks || isSameRange(rangeOf(made.shown), rangeOf(row.declared));
        return made.isCommon == row.isCommon && isSameRow(made.shown, row.declared) && showsRange;
    };
    const bool areKept = joined.size() == m_rows.size()
                         && std::equal(joined.cbegin(), joined.cend(), m_rows.cbegin(), isKept);
    if (areKept)
        updateRows(joined);
    else
        replaceRows(joined);
}

void SelectionDelegate::watchMembers()
{
    for (const QMetaObject::Connection &watch : std::as_const(m_watches))
        disconnect(watch);
    m_watches.clear();
    for (const SelectionMember &member : std::as_const(m_members)) {
        if (auto *const object = dynamic_cast<QObject *>(member.delegate())) {
            m_watches.append(connect(object, &QObject::destroyed, &m_refreshTimer,
                                     [this] { m_refreshTimer.start(0); }));
        }
    }
}

/// The rows are the same ones, of other objects or with other ranges and defaults.
void SelectionDelegate::updateRows(const std::vector<JoinedRow> &joined)
{
    QVector<Property *> changedRanges;
    for (std::size_t i = 0; i < joined.size(); ++i) {
        const Range range = rangeOf(joined[i].shown);
        Property *const shown = m_rows[i].shown;
        if (!isSameRange(range, rangeOf(m_rows[i].declared))) {
            setRange(*shown, range);
            changedRanges.append(shown);
        }
        shown->setDefaultValue(joined[i].shown.defaultValue);
        Row row = madeRow(joined[i], shown);
        row.state = m_rows[i].state; // the difference is told when the values are read
        m_rows[i] = std::move(row);
    }
    watchMenu();
    const QPointer<SelectionDelegate> self(this);
    for (Property *const property : std::as_const(changedRanges)) {
        if (m_marks && find(property))
            m_marks->showRange(property);
        if (!self)
            return;
    }
    refresh();
}

void SelectionDelegate::replaceRows(const std::vector<JoinedRow> &joined)
{
    m_marks.reset();
    const auto isUnused = [](const Retired &retired) { return !retired.panel; };
    m_retired.erase(std::remove_if(m_retired.begin(), m_retired.end(), isUnused), m_retired.end());
    m_retired.push_back(
        {std::exchange(m_list, std::make_shared<PropertyList>()), std::exchange(m_panel, nullptr)});
    m_rows.clear();
    m_rowOf.clear();
    for (const JoinedRow &row : joined) {
        Property &shown = m_list->append(row.shown);
        m_rowOf.insert(&shown, static_cast<int>(m_rows.size()));
        m_rows.push_back(madeRow(row, &shown));
    }
    const QPointer<SelectionDelegate> self(this);
    const std::shared_ptr<PropertyList> list = m_list;
    const QVector<Property *> properties = list->properties();
    for (Property *const property : properties) {
        readState(property);
        if (!self)
            return;
    }
    if (m_list == list)
        Q_EMIT listChanged();
}

SelectionDelegate::Row SelectionDelegate::madeRow(const JoinedRow &joined, Property *shown) const
{
    Targets targets;
    for (const RowSource &source : joined.sources)
        targets.push_back({m_members.at(source.object), source.property});
    return {shown, joined.shown, targets, joined.isCommon, joined.hasOwnDefaults, {}, {}};
}

/// The panel's menu is of interest where it cannot do right by itself: defaults may differ, and fields
/// that are blank hold numbers which a default may be no edit of.
void SelectionDelegate::watchMenu()
{
    const auto isOfInterest = [](const Row &row) {
        const bool mayBeMixed = row.isCommon && row.targets.size() > 1;
        return row.hasOwnDefaults || (mayBeMixed && !row.shown->defaultValue.isNull());
    };
    if (m_marks)
        m_marks->setWatchesMenu(std::any_of(m_rows.cbegin(), m_rows.cend(), isOfInterest));
}

/// Where defaults differ, the panel's menu has "Set to Default" only when there is one to show.
void SelectionDelegate::offerDefaults(bool offer)
{
    for (const Row &row : m_rows) {
        if (!row.isCommon || !row.hasOwnDefaults)
            continue;
        row.shown->setDefaultValue(QVariant());
        for (const Target &target : row.targets) {
            if (offer && target.isAlive() && !target.property->defaultValue.isNull())
                row.shown->setDefaultValue(target.property->defaultValue);
        }
    }
}

/// Whether an edit is that of a field which the user went through and left without a text or number.
bool SelectionDelegate::isPassedThrough(const Row &row, const QVariant &value) const
{
    if (m_marks && m_marks->isHalfTyped(row.shown))
        return true;
    if (typeTraits(row.shown->type).kind != ValueKind::Text || !row.state.isMixed)
        return false;
    return value.toString().isEmpty() && (!m_marks || m_marks->isUntouchedText(row.shown));
}

/// What each object gets of an edit.
QVector<QVariant> SelectionDelegate::writtenValues(const Row &row, const QVariant &value,
                                                   const QVector<QVariant> &before) const
{
    QVector<QVariant> values(before.size(), value);
    const QVector<double> parts = partsOf(*row.shown, value);
    const bool isLate = m_marks && m_marks->isLate(row.shown);
    if (parts.isEmpty() || !(row.state.isMixed || isLate))
        return values;
    const QVector<bool> edited = editedParts(row, parts);
    if (!edited.contains(false))
        return values;
    for (int i = 0; i < before.size(); ++i) {
        QVector<double> own = partsOf(*row.shown, before.at(i));
        if (own.size() != parts.size())
            continue;
        for (int part = 0; part < parts.size(); ++part)
            own[part] = edited.at(part) ? parts.at(part) : own.at(part);
        const QVariant merged = valueOfParts(*row.shown, own);
        if (merged.isValid())
            values[i] = merged;
    }
    return values;
}

/// Which parts of a mixed row an edit is about: those that all share, and of the others those whose
/// fields do not say any more what they said.
QVector<bool> SelectionDelegate::editedParts(const Row &row, const QVector<double> &parts) const
{
    const auto count = static_cast<int>(parts.size());
    QVector<bool> edited =
        m_marks ? m_marks->partsAtHand(row.shown, count) : QVector<bool>(count, false);
    if (!showsCommonParts(typeTraits(row.shown->type).kind))
        return edited.contains(true) ? edited : QVector<bool>(count, true);
    const QVariant shownValue = m_marks ? m_marks->shownValue(row.shown) : QVariant();
    const QVector<double> shown =
        partsOf(*row.shown, shownValue.isValid() ? shownValue : row.value);
    for (int part = 0; part < count; ++part) {
        const double before = shown.value(part, neutralPart(*row.shown, part));
        if (!row.state.isPartMixed(part) || !isSamePart(parts.at(part), before))
            edited[part] = true;
    }
    return edited;
}

/// The values of the objects, or nothing when this object is gone.
std::optional<QVector<QVariant>> SelectionDelegate::read(const Targets &targets)
{
    const QPointer<SelectionDelegate> self(this);
    QVector<QVariant> values;
    for (const Target &target : targets) {
        values.append(target.value());
        if (!self)
            return std::nullopt;
    }
    return values;
}

/// Writes each object's value and makes an undo step of what they took over. False when this object is
/// gone; the edit reaches the objects all the same.
bool SelectionDelegate::write(Property *property, const Targets &targets,
                              const QVector<QVariant> &before, const QVector<QVariant> &after,
                              ChangeFlags flags)
{
    const QPointer<SelectionDelegate> self(this);
    const std::shared_ptr<PropertyList> list = m_list; // callbacks may replace it
    if (!(flags & ContinuedChange))
        ++m_run;
    const quint64 run = m_run;
    for (std::size_t i = 0; i < targets.size(); ++i)
        targets[i].setValue(after.at(static_cast<int>(i)), flags);
    if (!self)
        return false;
    const auto taken = read(targets);
    if (!taken)
        return false;
    std::vector<Step::Change> changes;
    for (std::size_t i = 0; i < targets.size(); ++i) {
        const auto at = static_cast<int>(i);
        if (targets[i].isAlive() && !isSameValue(*property, before.at(at), taken->at(at)))
            changes.push_back({targets[i], before.at(at), taken->at(at)});
    }
    if (m_stack && !changes.empty())
        m_stack->push(new Step(this, property, run, std::move(changes)));
    return !self.isNull();
}

bool SelectionDelegate::writeByCode(Property *property, const Targets &targets,
                                    const QVector<QVariant> &before, const QVector<QVariant> &after)
{
    if (!find(property))
        return false;
    if (write(property, targets, before, after, NewChange))
        showWritten(property);
    return true;
}

/// Shows the rows of what a step wrote, as far as they are in the list.
void SelectionDelegate::restored(const Targets &targets)
{
    QVector<Property *> properties;
    for (const Row &row : m_rows) {
        const auto isWritten = [&targets](const Target &own) {
            return std::any_of(targets.cbegin(), targets.cend(),
                               [&own](const Target &written) { return own.isSame(written); });
        };
        if (std::any_of(row.targets.cbegin(), row.targets.cend(), isWritten))
            properties.append(row.shown);
    }
    for (Property *const property : std::as_const(properties)) {
        if (!showWritten(property))
            return;
    }
}

/// False when this object is gone.
bool SelectionDelegate::showWritten(Property *property)
{
    const QPointer<SelectionDelegate> self(this);
    if (!readRow(property))
        return false;
    if (m_marks && find(property))
        m_marks->show(property);
    if (self && find(property))
        Q_EMIT valueWritten(property);
    return !self.isNull();
}

/// Takes in what the objects have, and tells whether the row is mixed now when it was not, or the
/// other way round.
bool SelectionDelegate::readState(Property *property)
{
    Targets targets;
    if (const Row *const row = find(property))
        targets = row->targets;
    const auto isGone = [](const Target &target) { return !target.isAlive(); };
    targets.erase(std::remove_if(targets.begin(), targets.end(), isGone), targets.end());
    const auto values = read(targets);
    Row *const row = values ? find(property) : nullptr;
    if (!row)
        return false;
    const MixedState state = stateOf(*property, *values);
    const auto isDefault = [](const Target &target, const QVariant &value) {
        // An object may have gone, with its property, when another one was asked.
        return !target.isAlive() || !PropertyHost::differsFromDefault(*target.property, value);
    };
    row->differsFromDefault =
        !std::equal(targets.cbegin(), targets.cend(), values->cbegin(), isDefault);
    row->value = values->isEmpty() ? QVariant()
                 : state.isMixed   ? neutralValue(*property, state, values->first())
                                   : values->first();
    if (m_marks)
        m_marks->setState(property, state);
    return std::exchange(row->state, state).isMixed != state.isMixed;
}

/// The same, with a signal. False when this object is gone.
bool SelectionDelegate::readRow(Property *property)
{
    const QPointer<SelectionDelegate> self(this);
    if (readState(property))
        Q_EMIT mixedChanged(property, isMixed(property));
    return !self.isNull();
}

} // namespace Tessark::PropertyHost
