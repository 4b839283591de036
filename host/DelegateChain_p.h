#pragma once

#include "host/DelegatePointer.h"

class QUndoStack;

namespace Tessark::PropertyHost {

class SelectionDelegate;

/// A panel's delegate and those that it passes on to, as far as they are of this library. They may go
/// at any time.
class DelegateChain
{
public:
    explicit DelegateChain(PropertyUI::IPropertyEditorDelegate *delegate = nullptr);

    /// The selection among them, or null.
    SelectionDelegate *selection() const;

    /// Where edits become steps, or null.
    QUndoStack *undoStack() const;

    /// Lets pass what waits in a CommitPolicy. Host code runs here.
    void flush() const;

private:
    DelegatePointer m_delegate;
};

} // namespace Tessark::PropertyHost
