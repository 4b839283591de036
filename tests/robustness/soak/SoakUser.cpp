#include "SoakUser.h"

#include "support/FileDialogs.h"
#include "support/Wheel.h"

#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QWindow>

using namespace Tessark::PropertyUI;

namespace Soak {

namespace {

/// More turns than any event needs that does not wait for the user.
constexpr int kTurnsOfALoop = 20;

/// To find an editor that is in sight.
constexpr int kAttempts = 5;

struct Key
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

constexpr Key kKeys[] = {
    {Qt::Key_Tab},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Return},
    {Qt::Key_Enter, Qt::KeypadModifier},
    {Qt::Key_Escape},
    {Qt::Key_Space},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Up, Qt::ShiftModifier},
    {Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Y, Qt::ControlModifier},
};

constexpr char kCharacters[] = "0123456789.,-+eE %/abcWX";

constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                        Qt::RightButton, Qt::MiddleButton};

QWindow *windowOf(const QWidget *widget)
{
    return widget->window()->windowHandle();
}

QPoint inWindow(const QWidget *widget, const QPoint &place)
{
    return widget->mapTo(widget->window(), place);
}

QString nameOf(const QObject *object)
{
    return object ? QString::fromLatin1(object->metaObject()->className())
                  : QStringLiteral("nothing");
}

QWindow *windowOfKeys()
{
    const QWidget *focus = QApplication::focusWidget();
    const QWidget *popup = QApplication::activePopupWidget();
    if (popup)
        return windowOf(popup);
    return focus ? windowOf(focus) : nullptr;
}

QVector<QWidget *> visibleWidgetsIn(QWidget *top)
{
    QVector<QWidget *> result;
    if (top->isVisible())
        result.append(top);
    const auto children = top->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->isVisible() && !child->isWindow())
            result.append(child);
    }
    return result;
}

/// A click on a key of a window that may be gone when the key comes up.
void clickKey(const QWidget *popup, Qt::Key key)
{
    const QPointer<QWindow> window(popup->windowHandle());
    QTest::keyPress(window, key);
    if (window)
        QTest::keyRelease(window, key);
}

} // namespace

SoakUser::SoakUser(SoakHost *host, QWidget *window, QScrollArea *scrollArea, Random &random)
    : m_host(host)
    , m_window(window)
    , m_scrollArea(scrollArea)
    , m_random(random)
{
    m_otherWindow.resize(100, 100);
    m_otherWindow.show();
    connect(&m_loopTimer, &QTimer::timeout, this, &SoakUser::lookIntoLoops);
    m_loopTimer.start(0);
}

QString SoakUser::act()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return usePopup(popup);
    if (QWidget *dialog = QApplication::activeModalWidget())
        return useDialog(dialog);
    keepWindowActive();
    const int choice = below(m_random, 1000);
    if (m_pressedIn && choice < 700)
        return happens(m_random, 75) ? drag() : release();
    if (choice < 350)
        return press();
    if (choice < 700)
        return type();
    if (choice < 850)
        return turnWheel();
    if (choice < 950)
        return drag();
    if (choice < 980)
        return moveFocus();
    return choice < 990 ? resizeWindow() : changeWindow();
}

QString SoakUser::press()
{
    if (m_pressedIn)
        return release();
    QWidget *const widget = anyWidget();
    // Making a file dialog costs as much as a hundred other events.
    if (qobject_cast<QToolButton *>(widget) && happens(m_random, 99))
        return type();
    const QPoint place = inWindow(widget, anyPlaceIn(widget));
    const Qt::MouseButton button = kButtons[below(m_random, int(std::size(kButtons)))];
    const bool isDouble = happens(m_random, 5);
    const QString words = QStringLiteral("press %1 in %2").arg(button).arg(nameOf(widget));
    m_pressedIn = windowOf(widget);
    m_pressedButton = button;
    send([this, button, place, isDouble] {
        QTest::mousePress(m_pressedIn.data(), button, Qt::NoModifier, place);
        if (isDouble && m_pressedIn)
            QTest::mouseDClick(m_pressedIn.data(), button, Qt::NoModifier, place);
    });
    if (isDouble)
        m_pressedIn.clear(); // a double click ends with a release
    return words;
}

QString SoakUser::drag()
{
    QWindow *const window = m_pressedIn ? m_pressedIn.data() : windowOf(m_window);
    const QPoint place(below(m_random, window->width()), below(m_random, window->height()));
    send([window, place] { QTest::mouseMove(window, place); });
    return QStringLiteral("move to %1 %2").arg(place.x()).arg(place.y());
}

QString SoakUser::release()
{
    QWindow *const window = m_pressedIn;
    m_pressedIn.clear();
    const QPoint place = window->mapFromGlobal(QCursor::pos());
    const QPoint bounded(qBound(0, place.x(), window->width() - 1),
                         qBound(0, place.y(), window->height() - 1));
    send([this, window, bounded] {
        QTest::mouseRelease(window, m_pressedButton, Qt::NoModifier, bounded);
    });
    return QStringLiteral("release");
}

QString SoakUser::type()
{
    QWindow *const window = windowOfKeys();
    if (!window)
        return moveFocus();
    const QString words = QStringLiteral(" in %1").arg(nameOf(QApplication::focusWidget()));
    if (happens(m_random, 50)) {
        const char character = kCharacters[below(m_random, int(std::size(kCharacters)) - 1)];
        send([window, character] { QTest::keyClick(window, character); });
        return QStringLiteral("type %1").arg(QLatin1Char(character)) + words;
    }
    const Key key = kKeys[below(m_random, int(std::size(kKeys)))];
    const bool browses =
        qobject_cast<QToolButton *>(QApplication::focusWidget()) && key.key == Qt::Key_Space;
    if (browses && happens(m_random, 95))
        return moveFocus();
    send([window, key] { QTest::keyClick(window, key.key, key.modifiers); });
    return QStringLiteral("key %1").arg(key.key, 0, 16) + words;
}

QString SoakUser::turnWheel()
{
    QWidget *const widget = anyWidget();
    const QPoint place = anyPlaceIn(widget);
    const int delta = 60 * (below(m_random, 9) - 4);
    send([widget, place, delta] { turnWheelAt(widget, place, delta); });
    return QStringLiteral("wheel %1 over %2").arg(delta).arg(nameOf(widget));
}

QString SoakUser::moveFocus()
{
    QWidget *widget = anyWidget();
    if (widget->focusPolicy() == Qt::NoFocus) // a label would make a text document for it
        widget = m_scrollArea;
    send([widget] { widget->setFocus(Qt::OtherFocusReason); });
    return QStringLiteral("focus %1").arg(nameOf(widget));
}

QString SoakUser::resizeWindow()
{
    const QSize size(250 + below(m_random, 700), 150 + below(m_random, 700));
    send([this, size] {
        m_window->resize(size);
        QCoreApplication::processEvents();
    });
    return QStringLiteral("resize to %1 x %2").arg(size.width()).arg(size.height());
}

QString SoakUser::changeWindow()
{
    send([this] {
        m_otherWindow.activateWindow();
        QCoreApplication::processEvents();
        if (happens(m_random, 30))
            m_host->setSomeValue();
        m_window->activateWindow();
        QCoreApplication::processEvents();
    });
    return QStringLiteral("go to another window and back");
}

QString SoakUser::useDialog(QWidget *dialog)
{
    auto *const files = qobject_cast<QFileDialog *>(dialog);
    const bool accepts = files && happens(m_random, 30);
    send([this, dialog, files, accepts] {
        if (accepts)
            QTest::mouseClick(acceptButtonOf(files), Qt::LeftButton);
        else
            QTest::keyClick(dialog, Qt::Key_Escape);
        m_pressedIn.clear();
    });
    return accepts ? QStringLiteral("accept dialog") : QStringLiteral("escape from dialog");
}

QString SoakUser::usePopup(QWidget *popup)
{
    const QString words = QStringLiteral(" in popup %1").arg(nameOf(popup));
    const int choice = below(m_random, 100);
    if (choice < 30) {
        send([popup] { clickKey(popup, Qt::Key_Escape); });
        return QStringLiteral("escape") + words;
    }
    if (choice < 70) {
        const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return};
        const Qt::Key key = keys[below(m_random, 3)];
        send([popup, key] { clickKey(popup, key); });
        return QStringLiteral("key %1").arg(key, 0, 16) + words;
    }
    const QPoint place(below(m_random, popup->width()), below(m_random, popup->height()));
    const QPointer<QWindow> window(popup->windowHandle());
    m_pressedIn.clear();
    send([window, place] {
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
        if (window)
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place);
    });
    return QStringLiteral("click") + words;
}

void SoakUser::letGo()
{
    for (int i = 0; i < kTurnsOfALoop && QApplication::activePopupWidget(); ++i)
        QApplication::activePopupWidget()->close();
    for (int i = 0; i < kTurnsOfALoop && QApplication::activeModalWidget(); ++i)
        QApplication::activeModalWidget()->close();
    if (m_pressedIn)
        release();
    if (QWidget *focus = m_window->focusWidget())
        focus->clearFocus();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// As a window system does when a popup goes and when the window is clicked into. Where it does not,
/// the program stays without an active window, and none of its widgets gets the focus.
void SoakUser::keepWindowActive()
{
    if (QApplication::activeWindow() == m_window)
        return;
    m_window->activateWindow();
    QCoreApplication::processEvents();
}

bool SoakUser::hasPopup()
{
    return QApplication::activePopupWidget();
}

/// A widget within the window, mostly one of an editor, brought into sight as by scrolling.
QWidget *SoakUser::anyWidget()
{
    const auto editors = m_host->editors();
    QWidget *top = nullptr;
    for (int i = 0; i < kAttempts && (!top || !top->isVisible()); ++i)
        top = editors.at(below(m_random, int(editors.size())))->widget(nullptr);
    if (!top || happens(m_random, 3))
        return m_scrollArea;
    QWidget *widget = top;
    if (const auto *tabs = qobject_cast<QTabWidget *>(top)) {
        widget = tabs->tabBar();
    } else {
        const QVector<QWidget *> all = visibleWidgetsIn(top);
        if (all.isEmpty())
            return m_scrollArea;
        widget = all.at(below(m_random, int(all.size())));
    }
    m_scrollArea->ensureWidgetVisible(widget, 0, 0);
    return widget;
}

/// A place in the widget that lies in its window too.
QPoint SoakUser::anyPlaceIn(const QWidget *widget)
{
    const QRect seen = widget->visibleRegion().boundingRect();
    if (seen.isEmpty())
        return widget->mapFrom(widget->window(), QPoint(0, 0));
    return seen.topLeft() + QPoint(below(m_random, seen.width()), below(m_random, seen.height()));
}

void SoakUser::send(const std::function<void()> &event)
{
    const QScopedValueRollback<bool> sending(m_isSending, true);
    m_turns = 0;
    event();
}

/// A menu or a drag may wait for the user in a loop of its own.
void SoakUser::lookIntoLoops()
{
    if (!m_isSending || ++m_turns < kTurnsOfALoop)
        return;
    if (QWidget *popup = QApplication::activePopupWidget())
        usePopup(popup);
    else
        letGo();
}

} // namespace Soak
