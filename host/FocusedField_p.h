#pragma once

#include <QVariant>

class QAbstractSpinBox;

namespace Tessark::PropertyUI {
class PropertyEditor;
}

namespace Tessark::PropertyHost {

/// A "float" row leaves its field alone while that has the focus, for what the user types. This shows
/// the value there all the same, silently; without it, what the field still shows would be the next
/// edit. Nothing happens for other rows.
void showInFocusedField(PropertyUI::PropertyEditor &editor, const QVariant &value);

/// The field of numbers of the editor that has the focus, and so an interactive run; or null.
QAbstractSpinBox *focusedFieldOf(PropertyUI::PropertyEditor &editor);

} // namespace Tessark::PropertyHost
