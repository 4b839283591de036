#pragma once

#include "EditedObject.h"

#include <QBitArray>
#include <QVector>

#include <optional>

namespace Operations {

/// An edit as the panel tells it.
struct Edit
{
    QString row;
    QVariant value;
    bool isContinued = false;
    QBitArray parts;        // of a vector, those that are edited; empty for the whole
    bool isDefault = false; // by "Set to Default"
    bool isPassing = false; // of a field that the user went through and did not touch
};

/**
 * What every value, row and step of undo has to be, by the words of the manual alone: no code of the
 * host side runs here.
 *
 * The panel shows either a selection of objects or one object behind a delegate for undo; all have
 * one undo stack.
 */
class HostModel
{
public:
    explicit HostModel(const QVector<ObjectFacts> &objects);

    // What the host does.
    void renew(int object);
    void hostSets(int object, const QString &row, const QVariant &value);
    void select(const QVector<int> &objects);
    void showSelection();
    void showObject(int object);
    void setRules(int object, const QString &placeVisible, const QString &titleEnabled,
                  bool gainFollows);
    void setPartialRowsShown(bool shown) { m_showsPartialRows = shown; }
    void replaceSelectionDelegate();
    void replaceUndoDelegate(int object);
    void clearStack();
    void setHasStack(bool hasStack);

    // What the panel tells. While an edit waits, delegate and objects have not seen it.
    void edited(const Edit &edit);
    void passed(); // what waited
    bool isPending() const { return m_pending.has_value(); }
    bool isPending(const QString &row) const { return m_pending && m_pending->row == row; }

    // Functions of the selection, which its panel need not show.
    bool assign(const QString &row, const QVariant &value);
    bool add(const QString &row, double operand);
    bool setToDefault(const QString &row);

    void undo();
    void redo();

    // What there has to be.
    QVariant kept(int object, const QString &row) const { return m_objects[object].values[row]; }
    bool has(int object, const QString &row) const
    {
        return m_objects[object].values.contains(row);
    }
    int triggers(int object) const { return m_objects[object].triggers; }
    QStringList steps() const;
    int stepIndex() const { return m_index; }
    bool isLastStepOfPanel() const; // whether what undo brings back was done by what is shown

    QVector<int> selected() const { return m_selected; }
    std::optional<int> shownObject() const { return m_shownObject; }
    bool isInPanel(const QString &row) const;
    bool isCommon(const QString &row) const; // and so can be edited
    bool isMixed(const QString &row) const;
    bool isPartMixed(const QString &row, int part) const;
    int mixedInSelection() const;
    QVariant shown(const QString &row) const; // what the panel is given; invalid when mixed
    QVariant inEditor(const QString &row) const;
    double highestGain() const;
    bool isVisible(const QString &row) const;
    bool isEnabled(const QString &row) const;
    bool hasGroup() const;
    bool isGroupOpen() const { return m_isGroupOpen; }
    void openGroup() { m_isGroupOpen = true; } // of a view that is new
    bool hasDefault(const QString &row) const;

private:
    struct Object
    {
        ObjectFacts facts;
        QHash<QString, QVariant> values;
        int triggers = 0;
        int life = 0; // counts what stands in its place
        int undoDelegate = 0;
        QString placeVisible;
        QString titleEnabled;
        bool gainFollows = false;
    };

    struct Change
    {
        int object;
        int life;
        QVariant before;
        QVariant after;
    };

    struct Step
    {
        std::optional<int> shownObject; // that it was done to; else the selection
        int owner;                      // the delegate that made it
        QString row;
        quint64 run;
        QVector<Change> changes;
    };

    QVector<int> targets() const;
    QVector<int> owners(const QVector<int> &objects, const QString &row) const;
    bool isMixedIn(const QVector<int> &objects, const QString &row) const;
    bool isCommonIn(const QVector<int> &objects, const QString &row) const;
    QVariant written(int object, const Edit &edit) const;
    void deliver(const Edit &edit);
    void write(const QVector<int> &objects, const QString &row, const QVector<QVariant> &values,
               bool isContinued, std::optional<int> shownObject);
    void push(const Step &step);
    void restore(const Step &step, QVariant Change::*side);
    bool holds(const QString &condition) const;
    QString commonRule(QString Object::*rule) const;

    QVector<Object> m_objects;
    QVector<int> m_selected;
    std::optional<int> m_shownObject;
    bool m_showsPartialRows = false;
    bool m_hasStack = true;
    bool m_isGroupOpen = true;
    int m_selectionDelegate = 0;
    quint64 m_run = 0;
    QVector<Step> m_steps;
    int m_index = 0;
    std::optional<Edit> m_pending;
};

} // namespace Operations
