#include <host/PanelLook.h>
#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>

#include <QApplication>
#include <QTextStream>
#include <QVector3D>

using Tessark::PropertyHost::applyPanelLook;
using Tessark::PropertyHost::PanelLook;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyPanelView;
using Tessark::PropertyHost::PropertyStore;

PanelLook lookNamed(const QString &name)
{
    if (name == "light")
        return PanelLook::Light;
    if (name == "dark")
        return PanelLook::Dark;
    return name == "high-contrast" ? PanelLook::HighContrast : PanelLook::System;
}

// PanelStyle [LOOK [PICTURE]]
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    applyPanelLook(lookNamed(arguments.value(1)));

    PropertyList list;
    list.group("Lamp", [&] {
        list.string("title", "Title").defaultValue("Reading corner");
        list.boolean("on", "Switched on").hideLabel().defaultValue(true);
        list.number("level", "Level").range(0, 10).suffix(" lm").defaultValue(4);
        list.choice("mode", "Mode").choices({"Steady", "Fading"}).defaultValue(1);
        list.vec3("aim", "Aim")
            .range(QVector3D(-1, -1, -1), QVector3D(1, 1, 1))
            .showSliders()
            .showMultipleCheck();
    });
    list.group("While it is off",
               [&] {
                   list.boolean("spare", "Spare in stock").hideLabel().defaultValue(true);
                   list.integer("hours", "Hours").range(0, 100).defaultValue(25);
                   list.choice("who", "Ask").choices({"Ada", "Ben"}).radioButtons();
                   list.filename("manual", "Manual").defaultValue("lamp.pdf");
                   list.action("order", "Order a Bulb").fullWidth();
               })
        .enabledWhen("not on");
    list.group("Room", [&] { list.string("room", "Room"); });

    PropertyStore store;
    store.reset(list);
    PropertyPanelView view;
    view.setProperties(list, &store);
    view.setGroupOpen(list.properties().at(list.properties().size() - 3), false);
    view.resize(400, 370);
    view.show();

    const QPalette palette = view.palette();
    QTextStream(stdout) << palette.color(QPalette::WindowText).name() << " on "
                        << palette.color(QPalette::Window).name() << '\n';
    app.processEvents();
    if (arguments.size() > 2)
        view.grab().save(arguments.at(2));
    return 0; // app.exec() in a program that goes on
}
