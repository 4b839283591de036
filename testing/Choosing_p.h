#pragma once

#include <QString>

class QWidget;

namespace Tessark::PropertyTest {

/// Picks the choice with this text in the combo box, radio buttons or list of a row. An empty text, or
/// what was in the way.
QString choose(QWidget *field, const QString &text);

/// Picks the entry of the context menu that a right click somewhere on the row's field opens. An empty
/// text, or what was in the way.
QString pickFromMenu(QWidget *field, const QString &entry);

} // namespace Tessark::PropertyTest
