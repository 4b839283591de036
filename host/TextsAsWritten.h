#pragma once

#include "host/PropertyHostExport.h"

namespace Tessark::PropertyUI {
class PropertyEditorPanel;
}

namespace Tessark::PropertyHost {

/**
 * Makes the labels and static texts of a panel show their texts as they are written, now and later.
 *
 * On its own a label takes a text that looks like markup for markup, which may load pictures from
 * any file. Call this for each panel of a list, or of values, from a stranger, right after the panel
 * is made.
 */
TESSARK_PROPERTYHOST_EXPORT void showTextsAsWritten(PropertyUI::PropertyEditorPanel &panel);

} // namespace Tessark::PropertyHost
