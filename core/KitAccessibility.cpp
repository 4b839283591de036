#include "core/KitAccessibility_p.h"

#include "core/ColorWheel.h"
#include "core/ColorWheelInterface_p.h"
#include "core/LogSlider.h"
#include "core/RealSliderInterface.h"
#include "core/Slider.h"

#include <QAccessible>

namespace Tessark::UI {

namespace {

/// Null unless the object is of just this class of ours.
template <typename Widget, typename Interface>
QAccessibleInterface *interfaceFor(const QString &className, QObject *object)
{
    if (className != QLatin1String(Widget::staticMetaObject.className()))
        return nullptr;
    auto *const widget = qobject_cast<Widget *>(object);
    return widget ? new Interface(widget) : nullptr;
}

/// Qt asks for the class and then for each of its bases, so a host's subclass with an interface of
/// its own comes first.
QAccessibleInterface *kitInterface(const QString &className, QObject *object)
{
    using LogSliderInterface = RealSliderInterface<LogSlider>;
    using SliderInterface = RealSliderInterface<Slider>;
    if (auto *const found = interfaceFor<LogSlider, LogSliderInterface>(className, object))
        return found;
    if (auto *const found = interfaceFor<Slider, SliderInterface>(className, object))
        return found;
    return interfaceFor<ColorWheel, ColorWheelInterface>(className, object);
}

} // namespace

void installKitAccessibility()
{
    static const bool installed = (QAccessible::installFactory(kitInterface), true);
    Q_UNUSED(installed);
}

} // namespace Tessark::UI
