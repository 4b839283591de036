#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

// Drags over a widget made of the events that Qt makes of them, for platforms without drags.

inline constexpr Qt::DropActions kAllDropActions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;

/// What a drag offers, and the keys that are held down with it.
struct DragOffer
{
    const QMimeData &mime;
    Qt::DropActions actions = kAllDropActions;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

/// What a widget answered to one event of a drag; Qt::IgnoreAction means that it refused.
template <typename Event>
Qt::DropAction sendDragEvent(QWidget *widget, const QPoint &position, const DragOffer &offer)
{
    Event event(position, offer.actions, &offer.mime, Qt::LeftButton, offer.modifiers);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
}

inline void sendDragLeave(QWidget *widget)
{
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(widget, &leave);
}
