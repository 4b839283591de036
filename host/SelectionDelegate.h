#pragma once

#include "host/Problem.h"
#include "host/PropertyMetaType.h"
#include "host/RelativeEdit.h"
#include "host/SelectionMember.h"

#include <property/IPropertyEditorDelegate.h>

#include <QHash>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

class QUndoStack;

namespace Tessark::PropertyUI {
class PropertyEditorPanel;
}

namespace Tessark::PropertyHost {

class PropertyList;
class SelectionMarks;
struct JoinedRow;

/// What becomes of a row that not every selected object has.
enum class PartialRows {
    LeaveOut,
    Disable, // it is shown, but not edited; rows that the first object lacks stand at the end
};

/**
 * Several objects, each with its rows and delegate, edited as one: the list of the rows that they
 * share, and the delegate for a panel of that list.
 *
 *     SelectionDelegate selection(&undoStack);
 *     selection.setMembers({{list, &first}, {list, &second}});
 *     PropertyEditorPanel panel(selection.properties(), &selection, nullptr);
 *     selection.attach(&panel);
 *
 * Rows match by name and type. Order, labels, groups and hints are those of the first object; a
 * range is what all of them take. Where one value would not mean the same to all (ranges that do not
 * overlap, other choices, textures, suffixes, display scales, aspect ratios, full sizes, parts of a
 * transform), the row counts as one that not every object has. A row without name is shared by
 * nobody; a row that one object disables is disabled; rules that differ are dropped. A group or tab
 * is left out with the last of its rows.
 *
 * A row whose objects have different values is mixed. It shows none of them: value() gives what its
 * editor shows nothing for, as far as there is such a value, and for vectors, points, rectangles,
 * sizes and transforms the components that all share. attach() makes the panel show the rest.
 *
 * An edit in the panel goes to all objects, with its flags. In a mixed row only the fields that were
 * edited do: who sets the width of a mixed size leaves each object its height. Each edit is one step
 * of the undo stack, a whole interactive run too, and holds what each object had; no UndoDelegate
 * goes in front of this object or between it and the objects. Undo reaches objects that are not
 * selected any more, and those still there when others, or this object, are gone.
 *
 * Panel, objects and stack belong to the host and may be deleted in any order, in callbacks too; see
 * SelectionMember for objects that cannot be watched. So may this object, once its panels are gone.
 */
class TESSARK_PROPERTYHOST_EXPORT SelectionDelegate : public QObject,
                                                      public PropertyUI::IPropertyEditorDelegate
{
    Q_OBJECT

public:
    /// stack is not taken over; without one, edits cannot be undone.
    explicit SelectionDelegate(QUndoStack *stack = nullptr, QObject *parent = nullptr);
    ~SelectionDelegate() override;

    /// The stack that was given, or null when there is none or it was deleted.
    QUndoStack *undoStack() const;

    /// LeaveOut at first. A change rebuilds the rows as setMembers() does.
    PartialRows partialRows() const;
    void setPartialRows(PartialRows partialRows);

    /// The objects, none at first; those that are gone are passed over. When the rows stay the same,
    /// an attached panel shows the new values and ranges; otherwise there is a new list, the panel is
    /// detached and listChanged() emitted, as it is for new ranges without an attached panel.
    void setMembers(const QVector<SelectionMember> &members);

    /// The objects that are still there.
    QVector<SelectionMember> members() const;

    /// The rows, owned by this object. Those before a listChanged() stay until the next one, and
    /// while the panel that was attached lives.
    const PropertyList &list() const;
    QVector<PropertyUI::Property *> properties() const;

    /// Shows in a panel of properties() the values, and which rows are mixed: fields of numbers are
    /// blank, check boxes partially checked, nothing is chosen in lists, empty texts say why they
    /// are. The editor's widget has the dynamic property "mixed", true or false, for style sheets.
    /// The widget of a row that is not common is disabled. Null detaches, and takes the marks away.
    ///
    /// Without it, an empty text in a mixed row counts as a field that was only passed through, and
    /// changes nothing.
    void attach(PropertyUI::PropertyEditorPanel *panel);

    /// Whether the objects have different values. False for rows without value, and of another list.
    bool isMixed(const PropertyUI::Property *property) const;

    /// How many rows are mixed.
    int mixedCount() const;

    /// Whether every object had the row when the list was made; only such rows are edited.
    bool isCommon(const PropertyUI::Property *property) const;

    /// Takes an edit of the panel. An invalid value changes nothing, except for pictures and types of
    /// the host. A row of another list is ignored.
    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;

    /// The value that all objects have, or, when the row is mixed, one that shows none of theirs.
    QVariant value(PropertyUI::Property *property) override;

    /// Writes value to all objects, whole and as it is. False when the row is not common.
    bool assign(PropertyUI::Property *property, const QVariant &value);

    /// Changes the value of each object by the operand; see RelativeEdit. What applyRelativeEdit()
    /// refuses for one object is refused for all: the problem says why, and nothing is written.
    std::optional<Problem> applyRelative(PropertyUI::Property *property,
                                         RelativeOperation operation, const QVariant &operand);

    /// Whether an object has a default for the row.
    bool hasDefault(const PropertyUI::Property *property) const;

    /// Whether an object has another value than its own default, as the values were read last. False
    /// for rows without default, that not every object has, and of another list.
    bool differsFromDefault(const PropertyUI::Property *property) const;

    /// Gives each object its own default; one without default stays as it is. False when there is
    /// none or the row is not common. The menu of an attached panel does the same. Where the
    /// defaults differ, the row's own is null, so that an editor's revertToDefaultValue() does
    /// nothing.
    bool setToDefault(PropertyUI::Property *property);

public Q_SLOTS:
    /// Reads all values, after the host has changed some, and shows them in an attached panel.
    void refresh();

Q_SIGNALS:
    /// list() is another one, with other properties; a panel of the one before shows nothing any more.
    void listChanged();

    /// The row became mixed, or is no longer. Silent for the rows of a new list. property is of
    /// list().
    void mixedChanged(Tessark::PropertyUI::Property *property, bool mixed);

    /// Undo, redo or another function than setValue() wrote the row. An attached panel shows it
    /// already; for others connect it to what refreshes them.
    void valueWritten(Tessark::PropertyUI::Property *property);

private:
    class Step;
    struct Retired;
    struct Row;
    struct Target;
    using Targets = std::vector<Target>;

    Row *find(const PropertyUI::Property *property);
    const Row *find(const PropertyUI::Property *property) const;
    Targets commonTargets(const PropertyUI::Property *property) const;
    void rebuild();
    void watchMembers();
    void updateRows(const std::vector<JoinedRow> &joined);
    void replaceRows(const std::vector<JoinedRow> &joined);
    Row madeRow(const JoinedRow &joined, PropertyUI::Property *shown) const;
    void watchMenu();
    void offerDefaults(bool offer);
    bool isPassedThrough(const Row &row, const QVariant &value) const;
    QVector<QVariant> writtenValues(const Row &row, const QVariant &value,
                                    const QVector<QVariant> &before) const;
    QVector<bool> editedParts(const Row &row, const QVector<double> &parts) const;
    std::optional<QVector<QVariant>> read(const Targets &targets);
    bool write(PropertyUI::Property *property, const Targets &targets,
               const QVector<QVariant> &before, const QVector<QVariant> &after, ChangeFlags flags);
    bool writeByCode(PropertyUI::Property *property, const Targets &targets,
                     const QVector<QVariant> &before, const QVector<QVariant> &after);
    void restored(const Targets &targets);
    bool showWritten(PropertyUI::Property *property);
    bool readState(PropertyUI::Property *property);
    bool readRow(PropertyUI::Property *property);

    QPointer<QUndoStack> m_stack;
    PartialRows m_partialRows = PartialRows::LeaveOut;
    QVector<SelectionMember> m_members;
    QVector<QMetaObject::Connection> m_watches; // of members' ends
    std::shared_ptr<PropertyList> m_list;
    std::vector<Row> m_rows;
    QHash<const PropertyUI::Property *, int> m_rowOf;
    QPointer<PropertyUI::PropertyEditorPanel> m_panel;
    std::unique_ptr<SelectionMarks> m_marks; // while a panel is attached
    std::vector<Retired> m_retired;
    QTimer m_refreshTimer; // members may go while others do, and are read after that
    quint64 m_run = 0;     // counts interactive runs, so that steps merge only changes of their own
};

} // namespace Tessark::PropertyHost
