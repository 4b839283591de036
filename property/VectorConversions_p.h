#pragma once

#include <QVariant>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

namespace Tessark::PropertyUI {

// What the vector editors make of a variant. A text is read by the codec of the size asked for, a
// float (not a double) fills every component, a longer vector drops its last components, a shorter
// one is filled with 0, a colour gives its fractions; anything else is the variant's own conversion
// or a zero vector.

QVector2D toVector2D(const QVariant &value);
QVector3D toVector3D(const QVariant &value);
QVector4D toVector4D(const QVariant &value);

/// As toVector4D(), but a text is read by the codec that its number of parts asks for, so that
/// bounds of two and three components work too.
QVector4D toRangeVector(const QVariant &value);

} // namespace Tessark::PropertyUI
