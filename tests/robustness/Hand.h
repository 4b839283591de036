#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

class QAbstractSlider;

/// What a user does, as events. A widget that is gone gets none: the user's next movement then meets
/// nothing, while hidden and disabled ones hear of the rest of a gesture that began on them.
namespace Hand {

using Target = QPointer<QWidget>;

void press(const Target &widget, const QPoint &at);
void move(const Target &widget, const QPoint &at);
void release(const Target &widget, const QPoint &at);
void click(const Target &widget, const QPoint &at);
void click(const Target &widget); // in the middle

void keyDown(const Target &widget, int key, const QString &text = QString());
void keyUp(const Target &widget, int key, const QString &text = QString());
void key(const Target &widget, int key, const QString &text = QString());
void type(const Target &widget, const QString &text);

void wheel(const Target &widget); // one notch up over the middle
void focus(const Target &widget);
void leave(const Target &widget); // the focus goes to nobody

/// A drag of a file over the widget and its drop there.
void drop(const Target &widget, const QString &path);

/// The time of every timer of the widget comes.
void wait(const Target &widget);

/// The right button on a place of the panel, and the menu's first entry.
void pickFromMenu(const Target &panel, const QPoint &place);

} // namespace Hand
