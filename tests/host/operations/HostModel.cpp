#include "HostModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Operations {

namespace {

const QStringList &valueRows()
{
    static const QStringList s_rows{kGain, kLimit, kCount, kOn, kTitle, kMode, kPlace};
    return s_rows;
}

/// The name of the group is that of no row.
const QString kGroup = QStringLiteral("Sound");

QVector2D merged(const QVector2D &own, const QVector2D &edited, const QBitArray &parts)
{
    return {parts.testBit(0) ? edited.x() : own.x(), parts.testBit(1) ? edited.y() : own.y()};
}

QString labelOf(const QString &row)
{
    return row.left(1).toUpper() + row.mid(1);
}

bool isInGroup(const QString &row)
{
    return row == kCount || row == kOn;
}

} // namespace

HostModel::HostModel(const QVector<ObjectFacts> &objects)
{
    for (const ObjectFacts &facts : objects) {
        Object object;
        object.facts = facts;
        object.values = facts.initial;
        m_objects.append(object);
    }
}

void HostModel::renew(int object)
{
    m_objects[object].values = m_objects[object].facts.initial;
    ++m_objects[object].life;
    m_selected.removeAll(object);
}

void HostModel::hostSets(int object, const QString &row, const QVariant &value)
{
    m_objects[object].values[row] = value;
}

void HostModel::select(const QVector<int> &objects)
{
    m_selected = objects;
    ++m_run;
}

void HostModel::showSelection()
{
    m_shownObject.reset();
}

void HostModel::showObject(int object)
{
    m_shownObject = object;
}

void HostModel::setRules(int object, const QString &placeVisible, const QString &titleEnabled,
                         bool gainFollows)
{
    m_objects[object].placeVisible = placeVisible;
    m_objects[object].titleEnabled = titleEnabled;
    m_objects[object].gainFollows = gainFollows;
}

void HostModel::replaceSelectionDelegate()
{
    ++m_selectionDelegate;
}

void HostModel::replaceUndoDelegate(int object)
{
    ++m_objects[object].undoDelegate;
}

void HostModel::clearStack()
{
    m_steps.clear();
    m_index = 0;
}

void HostModel::setHasStack(bool hasStack)
{
    m_hasStack = hasStack;
    clearStack();
}

void HostModel::edited(const Edit &edit)
{
    if (m_pending && m_pending->row != edit.row)
        passed();
    Edit next = edit;
    if (m_pending) {
        next.isContinued = m_pending->isContinued && edit.isContinued;
        // One of the whole, and then of a part, is still one of the whole.
        next.parts = m_pending->parts.isEmpty() || edit.parts.isEmpty()
                         ? QBitArray()
                         : m_pending->parts | edit.parts;
    }
    m_pending = next;
}

void HostModel::passed()
{
    const Edit edit = *std::exchange(m_pending, std::nullopt);
    deliver(edit);
}

bool HostModel::assign(const QString &row, const QVariant &value)
{
    if (!isCommonIn(m_selected, row))
        return false;
    write(m_selected, row, QVector<QVariant>(m_selected.size(), value), false, std::nullopt);
    return true;
}

bool HostModel::add(const QString &row, double operand)
{
    if (!isCommonIn(m_selected, row))
        return false;
    QVector<QVariant> values;
    for (const int object : std::as_const(m_selected)) {
        const int sum = kept(object, row).toInt() + int(operand);
        values.append(std::clamp(sum, 0, kHighestCount));
    }
    write(m_selected, row, values, false, std::nullopt);
    return true;
}

bool HostModel::setToDefault(const QString &row)
{
    QVector<int> objects;
    QVector<QVariant> values;
    for (const int object : std::as_const(m_selected)) {
        if (!m_objects[object].facts.defaults.contains(row))
            continue;
        objects.append(object);
        values.append(m_objects[object].facts.defaults[row]);
    }
    if (!isCommonIn(m_selected, row) || objects.isEmpty())
        return false;
    write(objects, row, values, false, std::nullopt);
    return true;
}

void HostModel::undo()
{
    if (m_index > 0)
        restore(m_steps[--m_index], &Change::before);
}

void HostModel::redo()
{
    if (m_index < m_steps.size())
        restore(m_steps[m_index++], &Change::after);
}

QStringList HostModel::steps() const
{
    QStringList texts;
    for (const Step &step : m_steps)
        texts.append(labelOf(step.row));
    return texts;
}

bool HostModel::isLastStepOfPanel() const
{
    if (m_index == 0)
        return false;
    const Step &step = m_steps[m_index - 1];
    return step.shownObject == m_shownObject && isInPanel(step.row)
           && step.owner
                  == (m_shownObject ? m_objects[*m_shownObject].undoDelegate : m_selectionDelegate);
}

bool HostModel::isInPanel(const QString &row) const
{
    const QVector<int> objects = targets();
    const QVector<int> with = owners(objects, row);
    return !with.isEmpty() && (m_showsPartialRows || with.size() == objects.size());
}

bool HostModel::isCommon(const QString &row) const
{
    return isCommonIn(targets(), row);
}

bool HostModel::isMixed(const QString &row) const
{
    return isMixedIn(owners(targets(), row), row);
}

bool HostModel::isPartMixed(const QString &row, int part) const
{
    const QVector<int> objects = owners(targets(), row);
    return std::any_of(objects.cbegin(), objects.cend(), [&](int object) {
        return kept(object, row).value<QVector2D>()[part]
               != kept(objects.first(), row).value<QVector2D>()[part];
    });
}

int HostModel::mixedInSelection() const
{
    int count = 0;
    for (const QString &row : valueRows()) {
        const QVector<int> with = owners(m_selected, row);
        if ((m_showsPartialRows || with.size() == m_selected.size()) && isMixedIn(with, row))
            ++count;
    }
    return count;
}

QVariant HostModel::shown(const QString &row) const
{
    if (isPending(row))
        return m_pending->value;
    const QVector<int> objects = owners(targets(), row);
    return objects.isEmpty() || isMixedIn(objects, row) ? QVariant() : kept(objects.first(), row);
}

QVariant HostModel::inEditor(const QString &row) const
{
    const QVariant value = shown(row);
    return row == kGain && value.isValid() ? std::min(value.toDouble(), highestGain()) : value;
}

double HostModel::highestGain() const
{
    const QVector<int> objects = targets();
    const bool follows = std::all_of(objects.cbegin(), objects.cend(),
                                     [this](int object) { return m_objects[object].gainFollows; });
    const QVariant limit = follows && isInPanel(kLimit) ? shown(kLimit) : QVariant();
    return limit.isValid() ? std::max(limit.toDouble(), 0.0) : kHighestGain;
}

bool HostModel::isVisible(const QString &row) const
{
    if (!isInPanel(row) || (isInGroup(row) && hasGroup() && !m_isGroupOpen))
        return false;
    return row != kPlace || holds(commonRule(&Object::placeVisible));
}

bool HostModel::isEnabled(const QString &row) const
{
    return isCommon(row) && (row != kTitle || holds(commonRule(&Object::titleEnabled)));
}

/// That of the first object, with the rows in it.
bool HostModel::hasGroup() const
{
    const QVector<int> objects = targets();
    return !objects.isEmpty() && m_objects[objects.first()].facts.hasGroup;
}

bool HostModel::hasDefault(const QString &row) const
{
    const QVector<int> objects = targets();
    return std::any_of(objects.cbegin(), objects.cend(),
                       [&](int object) { return m_objects[object].facts.defaults.contains(row); });
}

/// The objects that the panel shows.
QVector<int> HostModel::targets() const
{
    return m_shownObject ? QVector<int>{*m_shownObject} : m_selected;
}

QVector<int> HostModel::owners(const QVector<int> &objects, const QString &row) const
{
    QVector<int> result;
    std::copy_if(objects.cbegin(), objects.cend(), std::back_inserter(result), [&](int object) {
        return has(object, row) || (row == kReset && m_objects[object].facts.hasAction);
    });
    return result;
}

bool HostModel::isMixedIn(const QVector<int> &objects, const QString &row) const
{
    return std::any_of(objects.cbegin(), objects.cend(),
                       [&](int object) { return kept(object, row) != kept(objects.first(), row); });
}

bool HostModel::isCommonIn(const QVector<int> &objects, const QString &row) const
{
    return !objects.isEmpty() && owners(objects, row).size() == objects.size();
}

QVariant HostModel::written(int object, const Edit &edit) const
{
    const QVariant before = kept(object, edit.row);
    if (edit.isPassing)
        return before;
    if (edit.isDefault)
        return m_objects[object].facts.defaults.value(edit.row, before);
    if (edit.parts.isEmpty())
        return edit.value;
    return merged(before.value<QVector2D>(), edit.value.value<QVector2D>(), edit.parts);
}

void HostModel::deliver(const Edit &edit)
{
    const QVector<int> objects = targets();
    if (edit.row == kGroup) {
        m_isGroupOpen = edit.value.toBool();
        if (m_shownObject) {
            push({m_shownObject,
                  m_objects[*m_shownObject].undoDelegate,
                  kGroup,
                  ++m_run,
                  {{*m_shownObject, 0, !m_isGroupOpen, m_isGroupOpen}}});
        }
        return;
    }
    if (!isCommon(edit.row))
        return;
    if (edit.row == kReset) {
        for (const int object : objects)
            ++m_objects[object].triggers;
        return;
    }
    QVector<QVariant> values;
    for (const int object : objects)
        values.append(written(object, edit));
    write(objects, edit.row, values, edit.isContinued, m_shownObject);
}

void HostModel::write(const QVector<int> &objects, const QString &row,
                      const QVector<QVariant> &values, bool isContinued,
                      std::optional<int> shownObject)
{
    if (!isContinued)
        ++m_run;
    Step step{shownObject,
              shownObject ? m_objects[*shownObject].undoDelegate : m_selectionDelegate,
              row,
              m_run,
              {}};
    for (int i = 0; i < objects.size(); ++i) {
        Object &object = m_objects[objects.at(i)];
        const QVariant before = std::exchange(object.values[row], values.at(i));
        if (before != values.at(i))
            step.changes.append({objects.at(i), object.life, before, values.at(i)});
    }
    if (!step.changes.isEmpty())
        push(step);
}

/// A run makes one step, and none when it ends where it began.
void HostModel::push(const Step &step)
{
    if (!m_hasStack)
        return;
    m_steps = m_steps.mid(0, m_index);
    if (m_index == 0 || m_steps.last().run != step.run) {
        m_steps.append(step);
        ++m_index;
        return;
    }
    QVector<Change> &changes = m_steps.last().changes;
    for (const Change &change : step.changes) {
        const auto same = std::find_if(changes.begin(), changes.end(), [&](const Change &own) {
            return own.object == change.object;
        });
        if (same == changes.end())
            changes.append(change);
        else
            same->after = change.after;
    }
    const bool isChange = std::any_of(changes.cbegin(), changes.cend(), [](const Change &change) {
        return change.before != change.after;
    });
    if (!isChange) {
        m_steps.removeLast();
        --m_index;
    }
}

/// A delegate for undo that is gone undoes nothing. The selection's steps outlive it, and reach the
/// objects that are still there.
void HostModel::restore(const Step &step, QVariant Change::*side)
{
    ++m_run;
    for (const Change &change : step.changes) {
        Object &object = m_objects[change.object];
        const bool isAlive =
            step.shownObject ? object.undoDelegate == step.owner : object.life == change.life;
        if (!isAlive)
            continue;
        if (step.row != kGroup)
            object.values[step.row] = change.*side;
        else if (m_shownObject == step.shownObject)
            m_isGroupOpen = (change.*side).toBool();
    }
}

bool HostModel::holds(const QString &condition) const
{
    if (condition.isEmpty())
        return true;
    const QString source = condition == kOn ? kOn : kMode;
    if (!isInPanel(source))
        return true; // a rule with a mistake
    const QVariant value = shown(source);
    return source == kOn ? value.toBool() : value.isValid() && value.toInt() == 1;
}

/// Rules that differ are dropped.
QString HostModel::commonRule(QString Object::*rule) const
{
    const QVector<int> objects = targets();
    const bool isCommon = std::all_of(objects.cbegin(), objects.cend(), [&](int object) {
        return m_objects[object].*rule == m_objects[objects.first()].*rule;
    });
    return isCommon && !objects.isEmpty() ? m_objects[objects.first()].*rule : QString();
}

} // namespace Operations
