#pragma once

#include <property/IPropertyEditorDelegate.h>

#include <QObject>
#include <QPointer>

namespace Tessark::PropertyHost {

/// Points to a delegate of the host, and to none once that was deleted. Only one that is a QObject can
/// be watched; any other must outlive the pointer or be taken away.
class DelegatePointer
{
public:
    explicit DelegatePointer(PropertyUI::IPropertyEditorDelegate *delegate = nullptr)
        : m_delegate(delegate)
        , m_object(dynamic_cast<QObject *>(delegate))
        , m_isObject(!m_object.isNull())
    {
    }

    PropertyUI::IPropertyEditorDelegate *get() const
    {
        return m_isObject && !m_object ? nullptr : m_delegate;
    }

private:
    PropertyUI::IPropertyEditorDelegate *m_delegate;
    QPointer<QObject> m_object; // m_delegate as a QObject, if it is one
    bool m_isObject;
};

} // namespace Tessark::PropertyHost
