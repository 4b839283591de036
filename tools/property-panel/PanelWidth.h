#pragma once

namespace Tessark::PropertyUI {
class PropertyEditorPanel;
}

namespace Tessark::PropertyPanel {

/// Keeps the panel and its tab pages from becoming too narrow for what is in them. The layout of a
/// panel does not count rows over the full width, indentation and spacing in the width it asks for,
/// so such rows would be cut off at the right. To be called when the panel shows its values.
void widenToContents(PropertyUI::PropertyEditorPanel &panel);

} // namespace Tessark::PropertyPanel
