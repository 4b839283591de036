#pragma once

#include "testing/PropertyTestExport.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class QWidget;

namespace Tessark::PropertyTest {

class EditRecorder;
class PanelUser;

/**
 * Plays the user of a property panel in a test: finds rows by the names of their properties and drives
 * them with the events that a mouse and a keyboard send.
 *
 *     PanelDriver driver(&window);
 *     QVERIFY2(driver.type("size.height", "3"), qPrintable(driver.error()));
 *
 * A row is told by the name of its property, a part of it by the name of the part behind a dot:
 * "position.y", "size.height", "color.red". rows() and the messages say which there are. Of several
 * rows with the same name it is the first.
 *
 * Actions return whether they could be done; error() says why not. Nothing ends the program, and what
 * the host does when it is told of an edit may delete panel, window and delegate: an error then, since
 * the user would be left with nothing. What a user cannot do fails: rows that are hidden, disabled,
 * covered or outside of the window, or behind a dialog.
 *
 * The window has to be shown, on any platform, "offscreen" included. No window manager is needed: the
 * driver asks for its window to be the active one before it acts.
 *
 * An action first lets the program do what it has to do, deferred deletions included. Do not call one
 * from within a slot.
 */
class TESSARK_PROPERTYTEST_EXPORT PanelDriver
{
public:
    enum Ending {
        WithReturn,    // Return ends the edit
        WithoutReturn, // the field is left as if the user went on typing
    };

    /// Drives the panel that widget is or holds, looked for at each action: it may be built anew. Of
    /// several, the first that is shown. widget belongs to the caller and may be deleted.
    explicit PanelDriver(QWidget *widget);
    ~PanelDriver();

    /// Why the last call failed; empty when it did not.
    QString error() const { return m_error; }

    /// Whether rows in closed groups and on other tabs are brought into view first, by clicks on group
    /// and tab as a user has to (true at first). Without it an action on a hidden row fails. Scroll
    /// areas show what is needed in both cases.
    bool isRevealing() const;
    void setRevealing(bool revealing);

    /// In how many movements a drag goes its way; 3 at first, at least 1. As a rule there is an edit
    /// for each.
    int dragSteps() const;
    void setDragSteps(int steps);

    /// Where "expect flags" and "expect edits" of scripts look. Not owned; null at first.
    EditRecorder *recorder() const;
    void setRecorder(EditRecorder *recorder);

    /// The names of the rows and the parts of each: "gain", "size.width", "size.height". Empty without
    /// a panel.
    QStringList rows();

    /// Drags the handle of the row's slider until the row's value is number: in units of value(), which
    /// may differ from what the field shows. Fails before it touches the slider when no pixel of its
    /// way means that number.
    bool drag(const QString &row, double number);

    /// The same to the pixel nearest to number.
    bool dragNear(const QString &row, double number);

    /// Drags the marker on the row's colour wheel to a hue and a saturation, from 0 to 1 as ColorWheel
    /// counts them. Fails before it touches the wheel when no pixel means them, as the row's fields
    /// would show them.
    bool dragWheel(const QString &row, double hue, double saturation);

    /// The same to the pixel nearest to them.
    bool dragWheelNear(const QString &row, double hue, double saturation);

    /// Drags the marker on the ring around the row's colour wheel to a value (brightness) from 0 to 1,
    /// exactly or to the nearest pixel. It goes round in 3 movements at least.
    bool dragRing(const QString &row, double value);
    bool dragRingNear(const QString &row, double value);

    /// Clicks into the row's field, selects all and types text as the field shows it. A line break is
    /// Return. A field of several lines gets no Return at the end.
    bool type(const QString &row, const QString &text, Ending ending = WithReturn);

    /// Presses an arrow key so often in the row's control: up, or to the next choice, for a positive
    /// number, else down or to the one before.
    bool step(const QString &row, int steps);

    /// Turns the mouse wheel over the row's slider or, without one, its field by so many notches: up,
    /// away from the user, for a positive number. Whether anything changes is the row's business.
    bool wheel(const QString &row, int notches);

    /// Picks the choice with this text: in the list of a combo box, of radio buttons, in a list.
    bool choose(const QString &row, const QString &text);

    /// Clicks the row's box unless it is checked, or unchecked, already.
    bool check(const QString &row, bool checked);

    /// Clicks the row's button. Returns when what it starts does, a dialog included.
    bool press(const QString &row);

    /// Picks "Set to Default" in the menu of a right click on the row. Where the row has a field with a
    /// menu of its own, as all over a line of text, there is no such entry to pick.
    bool setToDefault(const QString &row);

    /// Opens or closes the group with this label, or name, by a click unless it is so already.
    bool open(const QString &group);
    bool close(const QString &group);

    /// Clicks the tab with this label, or name, unless its page is shown already.
    bool showTab(const QString &tab);

    /// What the user reads in the row: the text of its field, choice, label or button. Empty, with an
    /// error, when there is no such row.
    QString text(const QString &row);

    /// The row's value, as the delegate is told it, or a part of it: a number, or whether a box is
    /// checked. Invalid, with an error, when there is no such row.
    QVariant value(const QString &row);

    /// Whether the row is shown, and whether its control can be used; false, with an error, when there
    /// is no such row. Neither brings it into view.
    bool isVisible(const QString &row);
    bool isEnabled(const QString &row);

    /// Whether the group with this label, or name, is open; false, with an error, without one.
    bool isOpen(const QString &group);

    /// Does one line of a script; docs/testing.md tells its language. Blank lines and those that begin
    /// with "#" do nothing.
    bool perform(const QString &line);

    /// Does the lines of a script, up to the first that fails; error() begins with its number.
    bool run(const QString &script);

private:
    Q_DISABLE_COPY(PanelDriver)

    bool finish(const char *action, const QString &row, const QString &problem);

    std::unique_ptr<PanelUser> m_user; // who does it
    QPointer<QObject> m_recorder;      // an EditRecorder
    QString m_error;
};

} // namespace Tessark::PropertyTest
