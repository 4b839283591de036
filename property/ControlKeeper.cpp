#include "property/ControlKeeper_p.h"

#include <QCoreApplication>

#include <utility>

namespace Tessark::PropertyUI {

namespace {

/// Those that wait for the event loop. One that none comes back to goes with the application.
QVector<ControlKeeper *> s_waiting;

void deleteWaiting()
{
    qDeleteAll(std::exchange(s_waiting, {}));
}

QVector<QWidget *> controlsIn(const QObject &widget)
{
    QVector<QWidget *> controls;
    for (QObject *child : widget.children()) {
        auto *const control = qobject_cast<QWidget *>(child);
        if (control && !control->isWindow())
            controls.append(control);
    }
    return controls;
}

} // namespace

void ControlKeeper::watch(QWidget *panel, QWidget *widget)
{
    if (!widget || !widget->parentWidget())
        return;
    auto *const keeper = new ControlKeeper(panel);
    // A widget announces its end while its children are still there.
    connect(widget, &QObject::destroyed, keeper, [keeper](QObject *destroyed) {
        for (QWidget *control : controlsIn(*destroyed))
            keeper->keep(control);
    });
    connect(widget->parentWidget(), &QObject::destroyed, keeper,
            [keeper, kept = QPointer<QWidget>(widget)](QObject *destroyed) {
                if (kept && kept->parent() == destroyed)
                    keeper->keep(kept);
            });
    keeper->deleteLater();
}

// The panel owns it until it has something to keep.
ControlKeeper::ControlKeeper(QWidget *panel)
    : QObject(panel)
{
}

ControlKeeper::~ControlKeeper()
{
    s_waiting.removeOne(this);
    if (s_waiting.isEmpty())
        qRemovePostRoutine(deleteWaiting);
    for (const QPointer<QWidget> &control : std::as_const(m_kept)) {
        if (!control)
            continue;
        control->disconnect(this); // its end is meant now
        delete control;
    }
}

void ControlKeeper::keep(QWidget *control)
{
    if (m_kept.isEmpty()) {
        setParent(nullptr);
        if (s_waiting.isEmpty())
            qAddPostRoutine(deleteWaiting);
        s_waiting.append(this);
    }
    m_kept.append(control);
    control->setParent(nullptr);
}

} // namespace Tessark::PropertyUI
