#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>

#include <QApplication>
#include <QSettings>
#include <QTextStream>

using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyPanelView;
using Tessark::PropertyHost::PropertyStore;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    PropertyList list;
    list.boolean("limited", "Limited").help("Keeps the level below the ceiling.");
    list.group("Levels", [&] {
        list.number("level", "Level").range(0, 10).defaultValue(4).help("In decibels.");
        list.number("ceiling", "Ceiling").range(0, 10).visibleWhen("limited");
    });
    const auto *levels = list.properties().at(1);
    PropertyStore store;
    store.reset(list);

    QSettings settings("panel-view.ini", QSettings::IniFormat);
    {
        PropertyPanelView view;
        view.setProperties(list, &store);
        view.setSplitterMovable(true);
        view.setDescriptionVisible(true);
        view.resize(360, 240);
        view.show();

        // As the user does it. What is arranged is written when the view goes.
        view.setGroupOpen(levels, false);
        view.setLabelWidth(90);
        settings.setValue("panel", view.saveState());
    }

    // The next run of the program.
    PropertyPanelView view;
    view.restoreState(settings.value("panel").toByteArray());
    view.setProperties(list, &store);
    view.show();
    out << "levels open: " << view.isGroupOpen(levels) << ", labels: " << view.labelWidth() << '\n';
    view.expandAll();
    out << "levels open: " << view.isGroupOpen(levels) << '\n';
    return 0; // app.exec() in a program that goes on
}
