#pragma once

#include "property/Property.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QSize>

#include <functional>
#include <initializer_list>
#include <utility>

class QAbstractSlider;
class QAbstractSpinBox;
class QButtonGroup;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QString;
class QWidget;

namespace Tessark::UI {
class DisclosureButton;
}

namespace Tessark::PropertyUI {

class PropertyEditor;

/// Sliders that mirror a fractional number hold it in thousandths.
inline constexpr int kSliderUnitsPerUnit = 1000;

/// The hint as T, or fallback when the property does not carry it.
template <typename T>
T hintOr(const Property &property, const QString &key, const T &fallback)
{
    const QVariant hint = property.hint(key);
    return hint.isValid() ? hint.value<T>() : fallback;
}

/// Calls a setter of the control with the control's signals blocked, then restores blocking. Does
/// nothing without control: an editor may be given a value before it has any.
template <typename Control, typename Setter, typename... Args>
void setQuietly(Control *control, Setter setter, Args &&...args)
{
    if (!control)
        return;
    const QSignalBlocker blocker(control);
    std::invoke(setter, control, std::forward<Args>(args)...);
}

template <typename Control, typename Setter, typename... Args>
void setQuietly(const QPointer<Control> &control, Setter setter, Args &&...args)
{
    setQuietly(control.data(), setter, std::forward<Args>(args)...);
}

// The same for the controls that a set costs most, since they format and paint anew even where nothing
// changes: one that already shows exactly this, half-typed text included, is left alone.
void showQuietly(QSpinBox *spinBox, int value);
void showQuietly(QDoubleSpinBox *spinBox, double value);

/// The same, but leaves alone a field that has the focus: what the user is typing stays, and the field's
/// own value comes back only as an echo.
void showUnlessTyping(QDoubleSpinBox *spinBox, double value);

/// Sets the text; one that a set would leave exactly as it is, cursor and undo steps included, is
/// left alone.
void showText(QLineEdit *lineEdit, const QString &text);

/// Runs action, which may emit, with the owner's flag set, and clears the flag afterwards unless
/// the owner was deleted meanwhile.
template <typename Action>
void whileFlagged(QObject *owner, bool &flag, Action action)
{
    const QPointer<QObject> alive(owner);
    flag = true;
    action();
    if (alive)
        flag = false;
}

/// The number truncated toward zero, as a whole number. What lies beyond a thousand million
/// saturates there, so that the span of a slider made of two such positions fits an int; NaN gives
/// 0.
int sliderPosition(double number);

/// The variant as int. Numbers beyond int saturate and NaN gives 0; all else is QVariant::toInt().
int toSaturatedInt(const QVariant &value);

/// The variant as a size, its fractions rounded and saturated as above; what is no size gives an
/// invalid one.
QSize toSaturatedSize(const QVariant &value);

/// The number as an entry field can take it: NaN gives 0, an infinity the largest finite number.
double finite(double number);

/// A hundredth of the range from minimum to maximum, truncated toward zero.
int hundredthOf(int minimum, int maximum);

/// A parentless row without margins, for fillRow(). Make it before its controls: with each paint of a
/// widget Qt looks at all its siblings, the fields and labels of the panel, and that takes a sixth
/// less time where they lie close together in memory and not between their controls.
QWidget *makeRow();

/// Puts the controls into the row, from left to right; it owns them.
void fillRow(QWidget *row, std::initializer_list<QWidget *> controls);

/// Makes Tab visit control right before next, which has the same window.
void visitBefore(QWidget *control, QWidget *next);

/// Aligns the label as the "alignment" hint says (int, a set of Qt::Alignment bits), if there is one.
void applyAlignmentHint(QLabel *label, const Property &property);

/// Makes a drag of slider one interactive run of editor.
void announceDrags(QAbstractSlider *slider, PropertyEditor *editor);

/// The same, and lets editor filter the slider's events.
void watchSlider(QAbstractSlider *slider, PropertyEditor *editor);

/// A round button, unchecked and without parent, that unfolds part of an editor.
UI::DisclosureButton *makeRoundButton();

/// Checks the button of that id without a signal of the group, as a host's value does; an id that
/// no button has changes nothing.
void checkButton(QButtonGroup &group, int id);

/// Fixes the entry field at the width that goes beside a slider, and at its own height.
void setCompactSize(QAbstractSpinBox *spinBox);

} // namespace Tessark::PropertyUI
