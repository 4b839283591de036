#pragma once

#include "host/PropertyHostExport.h"

#include <QPalette>

namespace Tessark::PropertyHost {

/// How a panel looks.
enum class PanelLook {
    System, // as the system has it
    Light,
    Dark,
    HighContrast, // black on white, or white on black where the system's palette is dark
};

/**
 * The palette of a look, made from another one, which is that of the application if none is given.
 *
 * PanelLook::Light and PanelLook::Dark keep the colours of a palette that is so already, and turn
 * the brightness of another one round; the highlight keeps its colour in both. Then every text is
 * moved away from what it stands on until it can be read: the contrast is at least 4.5 to 1, and at
 * least 3 to 1 in disabled widgets and of QPalette::Mid, the colour of outlines, to the window.
 *
 * PanelLook::HighContrast has black and white alone, but for what is disabled and for placeholders;
 * the contrast is at least 7 to 1, and 3 to 1 in disabled widgets.
 *
 * These three set every role in every group. PanelLook::System gives the palette as it is.
 */
TESSARK_PROPERTYHOST_EXPORT QPalette panelPalette(PanelLook look,
                                                  const QPalette &system = QPalette());

/// Gives the whole application a PanelStyle and the palette of the look, made from the system's, and
/// takes back the palette that was set before. Styles that draw with colours of their own cannot be
/// given others, so all looks but PanelLook::System come with the Fusion style. Needs a QApplication.
TESSARK_PROPERTYHOST_EXPORT void applyPanelLook(PanelLook look);

} // namespace Tessark::PropertyHost
