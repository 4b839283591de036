#pragma once

class QWidget;

namespace Tessark::PropertyUI {

#ifdef QT_NO_DEBUG
inline QWidget *noParentInGuiThread()
{
    return nullptr;
}
#else
/// The parent of a widget without parent. Ends the program with a message that says why when no
/// widget can be made here: in another thread than the QApplication, or without one.
QWidget *noParentInGuiThread();
#endif

} // namespace Tessark::PropertyUI
