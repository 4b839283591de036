// Builds a panel in the way that the argument names, some of which must end the program.

#include <property/PropertyUI.h>

#include <QApplication>
#include <QThread>

#include <memory>

using namespace Tessark::PropertyUI;

namespace {

void buildPanel()
{
    Property property(QStringLiteral("a"), QStringLiteral("A"), kPropertyTypeBoolean);
    const PropertyEditorPanel panel({&property}, nullptr, nullptr);
}

void buildPanelInAnotherThread()
{
    const std::unique_ptr<QThread> thread(QThread::create(buildPanel));
    thread->start();
    thread->wait();
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray way(argc > 1 ? argv[1] : "");
    if (way == "no-application") {
        buildPanel();
    } else if (way == "core-application") {
        const QCoreApplication application(argc, argv);
        buildPanel();
    } else if (way == "gui-application") {
        const QGuiApplication application(argc, argv);
        buildPanel();
    } else if (way == "other-thread") {
        const QApplication application(argc, argv);
        buildPanelInAnotherThread();
    } else if (way == "gui-thread") {
        const QApplication application(argc, argv);
        buildPanel();
    } else {
        return 2;
    }
    return 0;
}
