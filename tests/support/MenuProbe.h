#pragma once

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

namespace TestSupport {

/// Waits for a menu that opens modally while the probe lives, notes what it is, lets use act on it
/// from inside its event loop and closes it if it is still open.
class MenuProbe
{
public:
    explicit MenuProbe(std::function<void(QMenu *)> use = {})
        : m_use(std::move(use))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(0);
    }

    MenuProbe(const MenuProbe &) = delete;
    MenuProbe &operator=(const MenuProbe &) = delete;

    int menus = 0;     // how many opened
    QStringList texts; // of the last one's entries
    bool hadParent = false;
    bool hadShortcut = false;
    QPoint position; // of its top left corner on the screen

private:
    void look()
    {
        const QPointer<QMenu> menu(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
        if (!menu || menu == m_last)
            return;
        m_last = menu;
        ++menus;
        texts.clear();
        const auto actions = menu->actions();
        for (const QAction *action : actions) {
            texts.append(action->text());
            hadShortcut = hadShortcut || !action->shortcut().isEmpty();
        }
        hadParent = menu->parent() != nullptr;
        position = menu->pos();
        if (m_use)
            m_use(menu);
        if (menu)
            menu->close();
    }

    std::function<void(QMenu *)> m_use;
    QTimer m_timer;
    QPointer<QMenu> m_last;
};

} // namespace TestSupport
