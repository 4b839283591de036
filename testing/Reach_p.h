#pragma once

#include <QPoint>
#include <QString>

class QWidget;

namespace Tessark::PropertyTest {

/// Lets the user's hand get at a point of control: its scroll areas show it, and its window becomes the
/// active one if the platform is willing. An empty text, or what is in the way.
QString reach(QWidget *control, const QPoint &at);

/// The same for a click in the middle of it.
QString reach(QWidget *control);

} // namespace Tessark::PropertyTest
