#include "testing/Reach_p.h"

#include "testing/Hand_p.h"
#include "testing/Spelling_p.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QScrollArea>
#include <QTest>
#include <QWidget>

namespace Tessark::PropertyTest {

namespace {

constexpr int kActivationTime = 1000; // milliseconds at most

/// What Qt lets nothing through to.
QString obstacleInFront(const QWidget *window)
{
    const QWidget *const modal = QApplication::activeModalWidget();
    if (modal && modal != window && !window->isAncestorOf(modal))
        return QStringLiteral("The dialog %1 is in front of it").arg(quoted(modal->windowTitle()));
    const QWidget *const popup = QApplication::activePopupWidget();
    if (popup && popup != window)
        return QStringLiteral("A menu or a list is open");
    return QString();
}

/// Without a window manager nobody else does it. A window that stays inactive still gets its keys, only
/// its controls do not know that they have the focus.
void activate(QWidget *window)
{
    static QPointer<QWidget> stubborn; // it is asked once
    if (window->isActiveWindow() || window == stubborn)
        return;
    window->activateWindow();
    const QPointer<QWidget> alive(window);
    const auto isDone = [&alive] { return !alive || alive->isActiveWindow(); };
    if (!QTest::qWaitFor(isDone, kActivationTime))
        stubborn = window;
}

void scrollTo(QWidget *control)
{
    for (QWidget *parent = control->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *const area = qobject_cast<QScrollArea *>(parent);
        if (area && area->widget() && area->widget()->isAncestorOf(control))
            area->ensureWidgetVisible(control);
    }
    settle();
}

QString obstacleAt(const QWidget *control, const QPoint &at)
{
    const QWidget *const window = control->window();
    const QPoint place = control->mapTo(window, at);
    if (!window->rect().contains(place))
        return QStringLiteral("It lies outside of its window");
    const QWidget *const hit = window->childAt(place);
    if (hit == control || control->isAncestorOf(hit))
        return QString();
    return QStringLiteral("It is covered by a %1")
        .arg(QString::fromLatin1(hit ? hit->metaObject()->className() : "gap"));
}

} // namespace

QString reach(QWidget *control, const QPoint &at)
{
    if (!control->window()->isVisible())
        return QStringLiteral("Its window is not shown");
    QString front = obstacleInFront(control->window());
    if (!front.isEmpty())
        return front;
    if (!control->isVisible())
        return QStringLiteral("It is hidden");
    if (!control->isEnabled())
        return QStringLiteral("It is disabled");
    const QPointer<QWidget> alive(control);
    activate(control->window());
    if (alive)
        scrollTo(control);
    return alive ? obstacleAt(control, at) : QStringLiteral("It was deleted meanwhile");
}

QString reach(QWidget *control)
{
    const auto *const button = qobject_cast<QAbstractButton *>(control);
    return reach(control, button ? clickPoint(button) : control->rect().center());
}

} // namespace Tessark::PropertyTest
