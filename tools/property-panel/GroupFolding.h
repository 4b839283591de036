#pragma once

namespace Tessark::PropertyUI {
class PropertyEditorPanel;
}

namespace Tessark::PropertyPanel {

/// Makes the groups on tab pages fold. A panel by itself folds the groups of its own layout only.
void foldGroupsOnTabPages(PropertyUI::PropertyEditorPanel &panel);

} // namespace Tessark::PropertyPanel
