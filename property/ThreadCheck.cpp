#include "property/ThreadCheck_p.h"

#ifndef QT_NO_DEBUG

#include <QApplication>
#include <QThread>

namespace Tessark::PropertyUI {

QWidget *noParentInGuiThread()
{
    const auto *const application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application)
        qFatal("PropertyEditorPanel: a panel needs a QApplication; make one first.");
    if (application->thread() != QThread::currentThread())
        qFatal(
            "PropertyEditorPanel: a panel is built and used in the GUI thread only, which is that "
            "of the QApplication; this is another one.");
    return nullptr;
}

} // namespace Tessark::PropertyUI

#endif
