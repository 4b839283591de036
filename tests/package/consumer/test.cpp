// A host's test that drives a panel.

#include <property/PropertyUI.h>
#include <testing/EditRecorder.h>
#include <testing/PanelDriver.h>

#include <QApplication>
#include <QDebug>

using namespace Tessark::PropertyUI;
using Tessark::PropertyTest::EditRecorder;
using Tessark::PropertyTest::PanelDriver;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Property title(QStringLiteral("title"), QStringLiteral("Title"), kPropertyTypeString);
    EditRecorder recorder(nullptr);
    PropertyEditorPanel panel({&title}, &recorder, nullptr);
    panel.show();

    PanelDriver driver(&panel);
    driver.setRecorder(&recorder);
    const bool isDone = driver.run(QStringLiteral("type Dawn in title\n"
                                                  "expect edits of title = Dawn\n"
                                                  "expect flags 0"));
    if (!isDone)
        qWarning() << driver.error();
    return isDone ? 0 : 1;
}
