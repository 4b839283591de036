#pragma once

#include <QPalette>

namespace Tessark::PropertyPanel {

enum class Theme {
    System, // whatever the platform gives
    Light,
    Dark,
};

/// The palette of a theme, with every role in all three groups. For Theme::System an empty palette,
/// which leaves the platform's.
QPalette themePalette(Theme theme);

/// Gives the application the style and the palette of a theme. In every theme the check box that
/// folds a group is drawn as a triangle with a bold text.
void applyTheme(Theme theme);

} // namespace Tessark::PropertyPanel
