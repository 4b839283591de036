#pragma once

#include <QString>

namespace Tessark::PropertyTest {

class PanelDriver;

/// Does a line of a script with the driver. An empty text, or why that was not possible.
QString performLine(PanelDriver &driver, const QString &line);

} // namespace Tessark::PropertyTest
