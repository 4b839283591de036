#include <host/CommitPolicy.h>
#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QTextStream>

using Tessark::PropertyHost::CommitMode;
using Tessark::PropertyHost::CommitPolicy;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyUI::PropertyEditorPanel;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    PropertyList list;
    list.number("brightness", "Brightness").range(0, 1).defaultValue(0.5);
    list.integer("samples", "Samples").range(1, 4096).defaultValue(64);
    PropertyStore store;
    store.reset(list);
    QObject::connect(&store, &PropertyStore::valueChanged, [&](auto *property, const auto &value) {
        out << property->name << " = " << value.toDouble() << '\n';
    });

    // A picture is made anew for every edit: ten times a second will do, and what takes long only
    // when the slider is released.
    const auto properties = list.properties();
    CommitPolicy policy(&store);
    policy.setDefaultMode(CommitMode::atMost(10));
    policy.setMode(properties.at(1), CommitMode::atEndOfRun());

    PropertyEditorPanel panel(properties, &policy, nullptr);
    policy.watch(&panel);
    panel.updateUI();
    panel.show();

    // Edits in quick succession, as of a slider: the first passes at once, the last one in time.
    for (const double brightness : {0.6, 0.7, 0.8, 0.9})
        policy.setValue(properties.at(0), brightness, CommitPolicy::ContinuedChange);
    policy.flush(); // before saving, and before undo
    return 0;       // app.exec() in a program that goes on
}
