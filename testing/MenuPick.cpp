#include "testing/Choosing_p.h"
#include "testing/Hand_p.h"
#include "testing/Reach_p.h"
#include "testing/Spelling_p.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <algorithm>

namespace Tessark::PropertyTest {

namespace {

struct Place
{
    QPointer<QWidget> widget;
    QPoint at;
};

/// Waits for a menu, which runs an event loop of its own, and clicks the entry in it or closes it.
class MenuUser
{
public:
    explicit MenuUser(const QString &entry)
        : m_entry(entry)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(0);
    }

    bool hasPicked() const { return m_hasPicked; }
    QStringList entries() const { return m_entries; }

private:
    void look()
    {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu || m_isBusy)
            return;
        m_isBusy = true; // what the entry does may run an event loop, too
        m_entries.clear();
        QAction *wanted = nullptr;
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            m_entries.append(action->text());
            if (action->text() == m_entry && action->isEnabled())
                wanted = action;
        }
        m_hasPicked = wanted != nullptr;
        const QPointer<QMenu> alive(menu);
        if (wanted)
            click(menu, menu->actionGeometry(wanted).center());
        if (alive)
            alive->close();
        m_isBusy = false;
    }

    const QString m_entry;
    QTimer m_timer;
    QStringList m_entries;
    bool m_hasPicked = false;
    bool m_isBusy = false;
};

/// Fields that are written into have a menu of their own.
bool hasMenu(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget)
           || qobject_cast<const QAbstractSpinBox *>(widget)
           || widget->objectName() == QLatin1String("qt_scrollarea_viewport");
}

/// A place on each part of the field that the pointer can be over, fields with menus of their own last.
QVector<Place> placesOn(QWidget *field)
{
    constexpr int kStep = 4; // pixels
    QVector<Place> places;
    for (int y = field->height() / 2; y < field->height(); y += kStep) {
        for (int x = 1; x < field->width(); x += kStep) {
            QWidget *const child = field->childAt(x, y);
            QWidget *const hit = child ? child : field;
            const bool isKnown =
                std::any_of(places.begin(), places.end(),
                            [hit](const Place &place) { return place.widget == hit; });
            if (!isKnown)
                places.append({hit, hit->mapFrom(field, QPoint(x, y))});
        }
    }
    std::stable_partition(places.begin(), places.end(),
                          [](const Place &place) { return !hasMenu(place.widget); });
    return places;
}

} // namespace

QString pickFromMenu(QWidget *field, const QString &entry)
{
    QStringList others;
    QString obstacle;
    const auto places = placesOn(field);
    for (const Place &place : places) {
        if (!place.widget)
            return QStringLiteral("It was deleted meanwhile");
        obstacle = reach(place.widget, place.at);
        if (!obstacle.isEmpty())
            continue;
        MenuUser user(entry);
        click(place.widget, place.at, Qt::RightButton);
        if (user.hasPicked())
            return QString();
        others += user.entries();
    }
    if (others.isEmpty() && !obstacle.isEmpty())
        return obstacle;
    if (others.isEmpty())
        return QStringLiteral("A right click opens no menu");
    return QStringLiteral("A right click offers no %1").arg(quoted(entry))
           + possibilities(entry, others);
}

} // namespace Tessark::PropertyTest
