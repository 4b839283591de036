#pragma once

#include <QAccessibleWidget>

namespace Tessark::PropertyHost {

class SplitterHandle;

/// A splitter's handle to assistive technology: its value is the width of the labels in pixels.
/// Setting it moves the line, within its range.
class SplitterHandleInterface final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SplitterHandleInterface(SplitterHandle *handle);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text text) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    const SplitterHandle *m_handle; // the interface is deleted with it
};

/// Makes assistive technology see handles so. The first call does the work.
void installSplitterHandleAccessibility();

/// Tells assistive technology, if there is any, the width of the labels.
void tellWidth(SplitterHandle &handle, int width);

} // namespace Tessark::PropertyHost
