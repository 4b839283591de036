#pragma once

#include <property/Property.h>
#include <property/PropertyEditor.h>
#include <property/PropertyEditorPanel.h>

#include <QAbstractSpinBox>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QVariant>
#include <QVector>

class QContextMenuEvent;

namespace Tessark::PropertyHost {

/// What of a row differs between the objects: all, or the parts that are true.
struct MixedState
{
    bool isMixed = false;
    QVector<bool> parts; // as partsOf() has them; empty for a value that is edited as a whole

    bool isPartMixed(int part) const { return isMixed && parts.value(part, true); }
};

/**
 * Shows in a panel which rows are mixed, in the controls that its editors consist of, and tells what
 * an edit was about. It changes controls silently.
 *
 * Fields of numbers are blank, check boxes partially checked, nothing is chosen in lists; empty
 * fields of text say why they are. The editor's widget has the dynamic property "mixed".
 *
 * A control does not announce an edit to the number that it holds behind a blank, nor does a partially
 * checked box when it is checked; this object has them do it.
 */
class SelectionMarks : public QObject
{
    Q_OBJECT

public:
    using Property = PropertyUI::Property;

    SelectionMarks(PropertyUI::PropertyEditorPanel *panel, const QVector<Property *> &properties);

    /// Takes the marks away.
    ~SelectionMarks() override;

    /// What the row is now; show(), mark() or markAll() make it seen.
    void setState(const Property *property, const MixedState &state);

    /// Has the editor show the panel's value, whatever the user was typing, and marks it.
    void show(Property *property);

    /// Marks the row after an edit in it. What the edit's editor keeps from being shown meanwhile is
    /// shown later.
    void mark(Property *property);
    void markAll();

    /// Marks the row later: the panel asks for its value, and shows it then.
    void markLater(const Property *property);

    /// Disables the row's widget, or not.
    void setUsable(const Property *property, bool usable);

    /// Whether takeDefault() and the signals about the menu are wanted; not at first. They come between
    /// the panel and what else filters its events.
    void setWatchesMenu(bool watches);

    /// The range of the property was changed.
    void showRange(Property *property);

    /// An edit of the row has arrived, perhaps later than its editor announced it.
    void noteEdit(const Property *property, const QVariant &value);

    /// The value that the editor showed for a mixed row; invalid while it is not known.
    QVariant shownValue(const Property *property) const;

    /// The parts whose fields the user is at: one, all that a single field stands for, or none when
    /// the edit comes from another control; and those of edits that were held back before it.
    QVector<bool> partsAtHand(const Property *property, int count) const;

    /// True while fields still show what a mixed row had, though the row is not.
    bool isLate(const Property *property) const;

    /// True when the user left no number in the field of a mixed row: Return makes it the one that it
    /// holds behind the blank, and announces that.
    bool isHalfTyped(const Property *property) const;

    /// True for a field of text that the user has not changed.
    bool isUntouchedText(const Property *property) const;

    /// Whether an edit of the row that arrives, at once or later, is that of "Set to Default" in the
    /// panel's own menu. Each is told once.
    bool takeDefault(const Property *property);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The panel's menu opens; what "Set to Default" is for is to be in the properties meanwhile.
    void menuOpens();
    void menuClosed();

private:
    struct Field
    {
        QPointer<QAbstractSpinBox> box;
        int part = 0;
        bool isTouched = false;   // typed in since the last end of an edit
        bool isHalfTyped = false; // what was typed is no number yet
    };

    struct Row
    {
        QPointer<PropertyUI::PropertyEditor> editor;
        MixedState state;
        QVariant shownValue;
        QVector<Field> fields;
        int fieldAtHand = -1;
        QSet<int> heldFields;    // of edits that have not arrived
        QSet<int> arrivedFields; // that were held until the edit that arrived last
        QVariant arrivedValue;
        bool awaitsEdit = false; // the user did something that the editor may not announce
        bool isLate = false;
        bool awaitsDefault =
            false;           // it was chosen, but what is in front of the objects holds it back
        QString placeholder; // what the host gave a field of text
    };

    Row *find(const Property *property);
    const Row *find(const Property *property) const;
    QWidget *widgetOf(const Row &row) const;
    bool openMenu(QObject *panel, QContextMenuEvent *event);
    const Property *propertyAt(const QPoint &position) const;
    void editAnnounced(const Property *property);
    void addRow(Property *property, PropertyUI::PropertyEditor *editor);
    void watchField(const Property *property, int field);
    void watchBoolean(const Property *property, QWidget &widget);
    void fieldFinished(const Property *property, int field);
    void showValue(Property *property);
    void applyMarks(const Property *property);
    void markBlankFields(Row &row);
    bool hasStrayBlank(const Row &row) const;
    void markPending();

    QPointer<PropertyUI::PropertyEditorPanel> m_panel;
    const QObject *m_panelObject; // to tell its events, which go on when it is half gone
    QHash<const Property *, Row> m_rows;
    QHash<const QObject *, QPair<const Property *, int>>
        m_fieldOf; // by what gets the field's events
    QSet<const Property *> m_pending;
    QTimer m_timer;
    bool m_watchesMenu = false;
    bool m_isInMenu = false;                  // or what was chosen in it is being done
    const Property *m_menuProperty = nullptr; // that the menu is about, until its default arrives
};

} // namespace Tessark::PropertyHost
