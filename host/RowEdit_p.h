#pragma once

#include "host/DelegateChain_p.h"
#include "host/PanelRows_p.h"
#include "host/Problem.h"
#include "host/RelativeEdit.h"

#include <QVariant>

#include <functional>
#include <optional>

namespace Tessark::PropertyHost {

/// Changes rows of a view's panel as if the user had done it in their fields: an edit of its own each, which a
/// run that is under way does not swallow. Host code runs in every function but the constructor, and may
/// delete anything.
class RowEdit
{
public:
    /// delegates are those of the panel.
    explicit RowEdit(const DelegateChain &delegates);

    /// What "Set to Default" in the panel's menu does, to the last digit; of a selection, each object
    /// gets its own.
    void setToDefault(const PanelRow &row) const;

    /// Makes the editor show the value, which it may bring into its range, and announce that.
    void set(const PanelRow &row, const QVariant &value) const;

    /// Changes each object of the selection by its own value.
    std::optional<Problem> change(const PanelRow &row, const RelativeEdit &edit) const;

    /// Makes one step, called so, of all that is done. Without undo stack it is just done.
    void asOneStep(const QString &name, const std::function<void()> &edits) const;

private:
    static void setToOwnDefault(const PanelRow &row);
    void show(const PanelRow &row) const;

    DelegateChain m_delegates;
};

} // namespace Tessark::PropertyHost
