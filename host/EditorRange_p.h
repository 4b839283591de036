#pragma once

namespace Tessark::PropertyUI {
class PropertyEditor;
}

namespace Tessark::PropertyHost {

/// Gives the controls of an editor the range that its property has now. For editors of the library
/// that read the range only when they are built; others read it in propertyChanged(). Silent; what
/// the controls show may be cut to the range, so the value should be shown again.
void renewRange(PropertyUI::PropertyEditor &editor);

} // namespace Tessark::PropertyHost
