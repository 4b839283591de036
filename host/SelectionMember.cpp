#include "host/SelectionMember.h"

#include "host/PropertyList.h"

namespace Tessark::PropertyHost {

using namespace PropertyUI;

SelectionMember::SelectionMember(const QVector<Property *> &properties,
                                 IPropertyEditorDelegate *delegate)
    : m_properties(properties)
    , m_delegate(delegate)
{
}

SelectionMember::SelectionMember(const PropertyList &list, IPropertyEditorDelegate *delegate)
    : m_properties(list.properties())
    , m_delegate(delegate)
    , m_lifetime(list.lifetime())
{
}

QVector<Property *> SelectionMember::properties() const
{
    return delegate() ? m_properties : QVector<Property *>();
}

IPropertyEditorDelegate *SelectionMember::delegate() const
{
    return m_lifetime && m_lifetime->expired() ? nullptr : m_delegate.get();
}

} // namespace Tessark::PropertyHost
