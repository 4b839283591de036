#pragma once

#include <QFileDialog>
#include <QMouseEvent>

namespace Tessark::UI {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
/// Whether mode picks a directory. Qt 5 has a second enumerator for it, deprecated but in use;
/// Qt 6 dropped it.
inline bool picksDirectory(QFileDialog::FileMode mode)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return mode == QFileDialog::Directory || mode == QFileDialog::DirectoryOnly;
#else
    return mode == QFileDialog::Directory;
#endif
}
QT_WARNING_POP

/// Where the event is, in pixels of the widget that gets it.
inline QPointF positionOf(const QMouseEvent &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.localPos();
#else
    return event.position();
#endif
}

/// Whether the event was made of a finger's touch.
inline bool isFromFinger(const QMouseEvent &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.source() != Qt::MouseEventNotSynthesized;
#else
    return event.pointerType() == QPointingDevice::PointerType::Finger;
#endif
}

} // namespace Tessark::UI
