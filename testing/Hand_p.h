#pragma once

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWindow>

class QAbstractButton;
class QWidget;

namespace Tessark::PropertyTest {

// What the hands of a user do, as events of the window, which Qt hands on to what lies under the
// pointer or has the focus. What they cause may delete anything, the window included.

/// A pointer over a window, whatever becomes of the widgets in it.
class Pointer
{
public:
    /// Above a point of widget, which is shown.
    Pointer(const QWidget *widget, const QPoint &at);

    void press(Qt::MouseButton button = Qt::LeftButton);
    void moveTo(const QPoint &inWindow);
    void release(Qt::MouseButton button = Qt::LeftButton);

    QPoint position() const { return m_position; }

private:
    QPointer<QWindow> m_window;
    QPoint m_position;
};

void click(const QWidget *widget, const QPoint &at, Qt::MouseButton button = Qt::LeftButton);

/// Where a click works: a box reacts at its mark and text only.
QPoint clickPoint(const QAbstractButton *button);

/// One notch up, or down, over a point of the widget.
void turnWheel(QWidget *widget, const QPoint &at, bool isUp);

/// Presses and releases a key in a window.
void pressKey(const QPointer<QWindow> &window, int key, const QString &text = QString());

void selectAllByKey(const QPointer<QWindow> &window);

/// One key for each character; line breaks are Return.
void typeText(const QPointer<QWindow> &window, const QString &text);

/// What an idle program does before a user goes on: layouts, deferred deletions.
void settle();

} // namespace Tessark::PropertyTest
