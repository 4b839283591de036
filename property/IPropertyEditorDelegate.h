#pragma once

#include "property/PropertyExport.h"

#include <QFlags>
#include <QVariant>

namespace Tessark::PropertyUI {

class Property;

/**
 * The host's value store, as a panel sees it.
 *
 * The panel asks it for values when the host refreshes the panel and hands it every edit of the
 * user. It is owned by the host and must outlive the panels that use it.
 */
class TESSARK_PROPERTY_EXPORT IPropertyEditorDelegate
{
public:
    enum ChangeFlag {
        NewChange = 0,       // a change on its own, or the first one of an interactive run
        ContinuedChange = 1, // a further change of a run whose first change was already passed on
    };
    Q_DECLARE_FLAGS(ChangeFlags, ChangeFlag)

    virtual ~IPropertyEditorDelegate();

    /// Stores a new value of property. A host that keeps an undo stack merges a ContinuedChange
    /// into the step before it. It may do anything here, deleting the panel included.
    virtual void setValue(Property *property, const QVariant &value, ChangeFlags flags) = 0;

    /// The current value of property; an invalid variant shows the type's default.
    virtual QVariant value(Property *property) = 0;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(IPropertyEditorDelegate::ChangeFlags)

} // namespace Tessark::PropertyUI
