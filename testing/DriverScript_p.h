#pragma once

#include <QString>

namespace Tessark::PropertyTest {

class PanelDriver;

/// Does what a line of a script says with the driver. An empty text, or why that was not possible.
QString performLine(PanelDriver &driver, const QString &text);

} // namespace Tessark::PropertyTest
