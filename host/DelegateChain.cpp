#include "host/DelegateChain_p.h"

#include "host/CommitPolicy.h"
#include "host/SelectionDelegate.h"
#include "host/UndoDelegate.h"

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// What the delegate passes on to; null at the end of the chain.
IPropertyEditorDelegate *innerOf(IPropertyEditorDelegate *delegate)
{
    if (const auto *const undo = dynamic_cast<UndoDelegate *>(delegate))
        return undo->delegate();
    if (const auto *const policy = dynamic_cast<CommitPolicy *>(delegate))
        return policy->delegate();
    return nullptr;
}

/// The first delegate of the class, or null.
template <typename Delegate>
Delegate *firstIn(IPropertyEditorDelegate *delegate)
{
    for (; delegate; delegate = innerOf(delegate)) {
        if (auto *const found = dynamic_cast<Delegate *>(delegate))
            return found;
    }
    return nullptr;
}

} // namespace

DelegateChain::DelegateChain(IPropertyEditorDelegate *delegate)
    : m_delegate(delegate)
{
}

SelectionDelegate *DelegateChain::selection() const
{
    return firstIn<SelectionDelegate>(m_delegate.get());
}

QUndoStack *DelegateChain::undoStack() const
{
    if (const auto *const undo = firstIn<UndoDelegate>(m_delegate.get()))
        return undo->undoStack();
    const SelectionDelegate *const found = selection();
    return found ? found->undoStack() : nullptr;
}

void DelegateChain::flush() const
{
    if (auto *const policy = firstIn<CommitPolicy>(m_delegate.get()))
        policy->flush();
}

} // namespace Tessark::PropertyHost
