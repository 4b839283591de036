#include "property/SpokenNumber_p.h"

#include <QAccessible>
#include <QVariant>
#include <QWidget>

namespace Tessark::PropertyUI {

void tellNumber(QWidget *control, const QVariant &number)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(control, number);
    QAccessible::updateAccessibility(&event);
}

} // namespace Tessark::PropertyUI
