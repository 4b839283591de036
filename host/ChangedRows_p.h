#pragma once

#include "host/DelegateChain_p.h"
#include "host/PanelRows_p.h"

#include <QVariant>

namespace Tessark::PropertyHost {

/// Whether the value is another one than the property's default. Numbers of another type and texts that
/// are read as the same value are the same; an invalid value is what the row starts with. False without
/// default, and for rows that have no value or that nobody edits: static texts and rows that their
/// property disables.
bool differsFromDefault(const PropertyUI::Property &property, const QVariant &value);

/// Which rows of a panel differ from their defaults: of a selection, those of which an object differs
/// from its own.
class ChangedRows
{
public:
    /// delegates are those of the panel.
    explicit ChangedRows(const DelegateChain &delegates);

    /// Whether the row could be changed at all, so that its value matters.
    bool hasDefault(const PropertyUI::Property &property) const;

    /// Asks the panel, and so the host, for the value.
    bool isChanged(const PanelRow &row) const;

    /// The same for a value that is known.
    bool isChanged(const PanelRow &row, const QVariant &value) const;

private:
    DelegateChain m_delegates;
};

} // namespace Tessark::PropertyHost
