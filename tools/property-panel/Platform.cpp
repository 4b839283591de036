#include "Platform.h"

#include <QGuiApplication>

namespace Tessark::PropertyPanel {

namespace {

constexpr char kPlatformVariable[] = "QT_QPA_PLATFORM";

} // namespace

PlatformChoice choosePlatform(const QStringList &arguments)
{
    if (!qEnvironmentVariableIsEmpty(kPlatformVariable)
        || arguments.contains(QLatin1String("-platform"))
        || arguments.contains(QLatin1String("--platform")))
        return PlatformChoice::User;
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    // Qt has a second choice of its own where Wayland runs. On X11 it ends the process when the
    // display does not answer.
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY");
        qputenv(kPlatformVariable, hasDisplay ? "xcb;offscreen" : "offscreen");
        return PlatformChoice::Program;
    }
#endif
    return PlatformChoice::Default;
}

Display currentDisplay(PlatformChoice choice)
{
    const bool inMemory = QGuiApplication::platformName() == QLatin1String("offscreen");
    return choice == PlatformChoice::Program && inMemory ? Display::Missing : Display::Present;
}

} // namespace Tessark::PropertyPanel
