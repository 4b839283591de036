#pragma once

#include "property/Property.h"

#include <QSignalBlocker>

#include <functional>
#include <utility>

namespace Tessark::PropertyUI {

/// The hint as T, or fallback when the property does not carry it.
template <typename T>
T hintOr(const Property &property, const QString &key, const T &fallback)
{
    const QVariant hint = property.hint(key);
    return hint.isValid() ? hint.value<T>() : fallback;
}

/// Calls a setter of the control with the control's signals blocked, then restores blocking.
template <typename Control, typename Setter, typename... Args>
void setQuietly(Control *control, Setter setter, Args &&...args)
{
    const QSignalBlocker blocker(control);
    std::invoke(setter, control, std::forward<Args>(args)...);
}

} // namespace Tessark::PropertyUI
