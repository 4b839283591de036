#include "property/IPropertyEditorDelegate.h"

namespace Tessark::PropertyUI {

IPropertyEditorDelegate::~IPropertyEditorDelegate() = default;

} // namespace Tessark::PropertyUI
