#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyUI::PropertyEditorPanel;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    PropertyList list;
    list.string("title", "Title").defaultValue("Untitled");
    list.number("gain", "Gain").range(0, 10).defaultValue(1).preferencesKey("Sound/Gain");
    list.size("frame", "Frame").defaultValue(QSize(640, 480));

    PropertyStore store;
    store.reset(list); // all defaults
    QObject::connect(&store, &PropertyStore::valueChanged, [&](auto *property, const auto &value) {
        out << property->name << " = " << value.toString() << '\n';
    });
    PropertyEditorPanel panel(list.properties(), &store, nullptr);

    // Values from a file: each one that does not fit is told, the others are taken.
    const QByteArray saved = R"({"title": "Draft", "gain": "loud", "zoom": 2})";
    for (const auto &problem : store.readValues(saved, list))
        out << problem.toString("values.json") << '\n';
    panel.updateUI(); // reading is silent
    panel.show();

    // An edit is told at once.
    panel.setValue(list.properties().first(), "Final", PropertyStore::NewChange);
    out << QJsonDocument(store.toJson(list)).toJson(QJsonDocument::Compact) << '\n';

    // The same values among the settings of a program.
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("program.ini"), QSettings::IniFormat);
    settings.setValue("Window/width", 800);
    store.writeSettings(settings, list);
    for (const QString &key : settings.allKeys())
        out << key << ": " << settings.value(key).toString() << '\n';

    PropertyStore next;
    next.reset(list);
    next.readSettings(settings, list);
    out << "next time: " << next.value(list.properties().first()).toString() << '\n';
    return 0; // app.exec() in a program that goes on
}
