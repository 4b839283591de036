#include "property/ControlKeeper_p.h"

#include <QCoreApplication>
#include <QSet>

#include <utility>

namespace Tessark::PropertyUI {

namespace {

/// Those that wait for the event loop. One that none comes back to goes with the application.
QSet<ControlKeeper *> s_waiting;

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

void ControlKeeper::watch(QWidget *widget)
{
    if (!widget || !widget->parentWidget())
        return;
    auto *const keeper = new ControlKeeper(widget);
    keeper->deleteLater();
}

// No child of the panel: it outlives that, and finding a child again takes a look at all of them.
ControlKeeper::ControlKeeper(QWidget *widget)
{
    if (s_waiting.isEmpty())
        qAddPostRoutine(deleteWaiting);
    s_waiting.insert(this);
    // A widget announces its end while its children are still there.
    connect(widget, &QObject::destroyed, this, [this](QObject *destroyed) {
        for (QWidget *control : controlsIn(*destroyed))
            keep(control);
    });
    connect(widget->parentWidget(), &QObject::destroyed, this,
            [this, kept = QPointer<QWidget>(widget)](QObject *destroyed) {
                if (kept && kept->parent() == destroyed)
                    keep(kept);
            });
}

ControlKeeper::~ControlKeeper()
{
    s_waiting.remove(this);
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
    m_kept.append(control);
    control->setParent(nullptr);
}

} // namespace Tessark::PropertyUI
