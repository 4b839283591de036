#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QJsonDocument>
#include <QTextStream>

using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyUI::PropertyEditorPanel;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    PropertyList list;
    list.setTitle("Mixer");
    list.choice("mode", "Mode").choice("auto", "Automatic").choice("manual", "Manual");
    list.group("Sound", [&] {
        list.number("gain", "Gain").range(0, 10).suffix(" dB").decimals(1).defaultValue(1);
        list.boolean("mute", "Mute").defaultValue(false);
    });
    list.tabs([&] {
        list.tab("Colour", [&] { list.color("tint", "Tint"); });
        list.tab("Size", [&] { list.size("frame", "Frame").aspectRatio({16, 9}); });
    });

    // A mistake is told with its place: this list has one, a suffix on a row without number.
    list.string("title", "Title").suffix(" %");
    for (const auto &problem : list.validate())
        out << problem.toString("mixer") << '\n';

    // Written as JSON and read again, it is the same list.
    const QByteArray json = QJsonDocument(list.toJson()).toJson();
    const auto again = Tessark::PropertyHost::readPropertyList(json);
    out << again.list.properties().size() << " rows, " << again.problems.size() << " problems\n";

    PropertyStore store;
    store.reset(list); // all defaults
    PropertyEditorPanel panel(list.properties(), &store, nullptr);
    panel.updateUI();
    panel.show();
    return 0; // app.exec() in a program that goes on
}
