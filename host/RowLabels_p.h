#pragma once

#include <QHash>

class QLabel;

namespace Tessark::PropertyUI {
class PropertyEditor;
class PropertyEditorPanel;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

/// The labels beside the rows of a panel. Rows that span both columns have none.
QHash<PropertyUI::PropertyEditor *, QLabel *>
rowLabels(const PropertyUI::PropertyEditorPanel &panel);

} // namespace Tessark::PropertyHost
