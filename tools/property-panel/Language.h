#pragma once

namespace Tessark::PropertyPanel {

/// Makes the texts of Qt, such as those of buttons, and the direction of layouts follow the user's
/// language, as far as Qt's translations are installed; ours are there anyway. Needs a QApplication.
void followUserLanguage();

} // namespace Tessark::PropertyPanel
