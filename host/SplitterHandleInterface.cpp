#include "host/SplitterHandleInterface_p.h"

#include "host/LabelSplitter_p.h"
#include "host/SplitterHandle_p.h"

namespace Tessark::PropertyHost {

namespace {

QAccessibleInterface *handleInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(SplitterHandle::staticMetaObject.className()))
        return nullptr;
    auto *const handle = qobject_cast<SplitterHandle *>(object);
    return handle ? new SplitterHandleInterface(handle) : nullptr;
}

} // namespace

SplitterHandleInterface::SplitterHandleInterface(SplitterHandle *handle)
    : QAccessibleWidget(handle, QAccessible::Splitter)
    , m_handle(handle)
{
}

void *SplitterHandleInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString SplitterHandleInterface::text(QAccessible::Text text) const
{
    if (text == QAccessible::Value)
        return QString::number(currentValue().toInt());
    return QAccessibleWidget::text(text);
}

QVariant SplitterHandleInterface::currentValue() const
{
    const LabelSplitter *const splitter = m_handle->splitter();
    return splitter ? splitter->shownWidth() : 0;
}

void SplitterHandleInterface::setCurrentValue(const QVariant &value)
{
    if (LabelSplitter *const splitter = m_handle->splitter())
        splitter->moveTo(value.toInt());
}

QVariant SplitterHandleInterface::maximumValue() const
{
    const LabelSplitter *const splitter = m_handle->splitter();
    return splitter ? splitter->widestWidth() : 0;
}

QVariant SplitterHandleInterface::minimumValue() const
{
    const LabelSplitter *const splitter = m_handle->splitter();
    return splitter ? splitter->smallestWidth() : 0;
}

QVariant SplitterHandleInterface::minimumStepSize() const
{
    return 1;
}

void installSplitterHandleAccessibility()
{
    static const bool installed = (QAccessible::installFactory(handleInterface), true);
    Q_UNUSED(installed);
}

void tellWidth(SplitterHandle &handle, int width)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(&handle, width);
    QAccessible::updateAccessibility(&event);
}

} // namespace Tessark::PropertyHost
