#pragma once

namespace Tessark::UI {

/// Makes assistive technology see the kit's widgets with their real values. Called by the
/// constructors of those widgets; the first call does the work.
void installKitAccessibility();

} // namespace Tessark::UI
