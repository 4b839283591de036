#pragma once

#include <QStringList>

namespace Tessark::PropertyPanel {

/// Who chose the platform that Qt runs on.
enum class PlatformChoice { Default, User, Program };

/// Whether there is a display to show windows on.
enum class Display { Missing, Present };

/// Chooses Qt's platform, before there is an application object, so that all but showing a window
/// works without a display. Leaves alone what the user chose, by variable or argument.
PlatformChoice choosePlatform(const QStringList &arguments);

/// Whether windows can be shown on the platform that the application object came up with.
Display currentDisplay(PlatformChoice choice);

} // namespace Tessark::PropertyPanel
