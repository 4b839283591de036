#pragma once

#include "host/DelegatePointer.h"
#include "host/PropertyHostExport.h"

#include <QVector>

#include <memory>
#include <optional>

namespace Tessark::PropertyUI {
class IPropertyEditorDelegate;
class Property;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyHost {

class PropertyList;

/**
 * One object of a selection: its rows, and the delegate that has its values. Nothing is taken over.
 *
 * It counts as gone once its delegate was deleted, or the list that it was made of. A delegate that
 * is no QObject, and rows that are in no PropertyList, must stay while a SelectionDelegate or a step
 * of its undo stack knows them. Several members may share one list.
 */
class TESSARK_PROPERTYHOST_EXPORT SelectionMember
{
public:
    SelectionMember() = default;
    SelectionMember(const QVector<PropertyUI::Property *> &properties,
                    PropertyUI::IPropertyEditorDelegate *delegate);
    SelectionMember(const PropertyList &list, PropertyUI::IPropertyEditorDelegate *delegate);

    /// The rows, or none when the member is gone.
    QVector<PropertyUI::Property *> properties() const;

    /// The delegate, or null when the member is gone.
    PropertyUI::IPropertyEditorDelegate *delegate() const;

private:
    QVector<PropertyUI::Property *> m_properties;
    DelegatePointer m_delegate;
    std::optional<std::weak_ptr<const void>> m_lifetime; // of the list, if there is one
};

} // namespace Tessark::PropertyHost
