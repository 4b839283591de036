#include "host/ObjectBinding.h"

#include "host/ObjectDelegate_p.h"

#include <property/PropertyEditorPanel.h>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

ObjectBinding::ObjectBinding(QObject *parent)
    : QObject(parent)
    , m_delegate(std::make_shared<ObjectDelegate>())
{
    connect(m_delegate.get(), &StructDelegate::valueChanged, this, &ObjectBinding::valueChanged);
}

ObjectBinding::~ObjectBinding()
{
    const auto delegate = m_delegate; // what is told may delete panels
    delegate->disconnect(this);
    delegate->forgetAll();
}

void ObjectBinding::add(QObject *object, const ObjectBindingOptions &options)
{
    if (object)
        m_delegate->addObject(object, options);
}

void ObjectBinding::add(void *gadget, const QMetaObject &meta, const ObjectBindingOptions &options)
{
    if (gadget)
        m_delegate->addGadget(gadget, meta, options);
}

void ObjectBinding::forget(const void *objectOrGadget)
{
    const auto delegate = m_delegate;
    delegate->forget(objectOrGadget);
}

PropertyList &ObjectBinding::list()
{
    return m_delegate->list();
}

const PropertyList &ObjectBinding::list() const
{
    return m_delegate->list();
}

QVector<Property *> ObjectBinding::properties() const
{
    return m_delegate->properties();
}

Property *ObjectBinding::find(const QString &name) const
{
    return m_delegate->find(name);
}

IPropertyEditorDelegate *ObjectBinding::delegate() const
{
    return m_delegate.get();
}

void ObjectBinding::watch(PropertyEditorPanel *panel)
{
    if (!panel)
        return;
    // The connection keeps the panel's delegate and properties alive until the panel is gone.
    connect(panel, &QObject::destroyed, panel, [delegate = m_delegate] {});
    m_delegate->watch(panel);
}

QVector<Problem> ObjectBinding::validate() const
{
    return m_delegate->validate();
}

void ObjectBinding::refresh()
{
    const auto delegate = m_delegate;
    delegate->refresh();
}

} // namespace Tessark::PropertyHost
