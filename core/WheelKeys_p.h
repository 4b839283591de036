#pragma once

#include "core/ColorMath_p.h"

#include <QObject>

#include <optional>

namespace Tessark::UI {

/// What a key of the wheel makes of a colour; nothing for all other keys.
std::optional<Hsv> colorAfterKey(int key, Qt::KeyboardModifiers modifiers, const Hsv &now);

} // namespace Tessark::UI
