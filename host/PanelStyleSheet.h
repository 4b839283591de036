#pragma once

#include "host/PropertyHostExport.h"

class QPalette;
class QString;

namespace Tessark::PropertyHost {

/**
 * A style sheet that draws what PanelStyle draws, in the colours of the palette: for one panel of a
 * program, or for a program that cannot have a style of its own.
 *
 *     view.setStyleSheet(panelStyleSheet(panelPalette(PanelLook::Dark)));
 *
 * Check boxes with the dynamic property "disclosure" become triangles with a bold text, and buttons
 * with the dynamic property "group" of the value "round" are round. Disabled buttons, line edits, texts
 * and lists have a dashed outline; a border would take the arrows of other fields, and the marks of
 * boxes, away. Placeholders are as the style sheets of Qt make them, half as strong as texts.
 *
 * Sizes are those of the application's style and font at the time of the call. Needs a QApplication.
 */
TESSARK_PROPERTYHOST_EXPORT QString panelStyleSheet(const QPalette &palette);

} // namespace Tessark::PropertyHost
