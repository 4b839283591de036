#pragma once

#include "ExitStatus.h"
#include "Platform.h"

#include <QStringList>

namespace Tessark::PropertyPanel {

/// Does what the arguments ask for; needs a QApplication. The first argument is the program's name.
ExitStatus runProgram(const QStringList &arguments, Display display);

} // namespace Tessark::PropertyPanel
