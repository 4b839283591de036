#pragma once

#include "host/DelegatePointer.h"
#include "host/PanelRows_p.h"

namespace Tessark::PropertyHost {

/// Which rows of a panel show another value than their default.
class ChangedRows
{
public:
    /// The delegate of the host, which may be null, says what the default of a row is, if it knows
    /// better than the property: a SelectionDelegate.
    explicit ChangedRows(PropertyUI::IPropertyEditorDelegate *delegate);

    /// False for a row without default or value. Of a selection, whether an object differs from its
    /// own default.
    bool isChanged(const PanelRow &row) const;

private:
    DelegatePointer m_delegate;
};

} // namespace Tessark::PropertyHost
