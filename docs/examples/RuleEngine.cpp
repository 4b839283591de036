#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <host/RuleEngine.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QTextStream>

using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyHost::RuleEngine;
using Tessark::PropertyUI::PropertyEditorPanel;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    PropertyList list;
    list.boolean("manual", "Manual");
    list.integer("limit", "Limit").range(0, 100).defaultValue(80).enabledWhen("manual");
    list.group("Levels",
               [&] {
                   list.integer("low", "Low").range(0, 100).defaultValue(20).maximumFollows("high");
                   list.integer("high", "High")
                       .range(0, 100)
                       .defaultValue(60)
                       .minimumFollows("low")
                       .maximumFollows("limit - 10");
               })
        .visibleWhen("manual and limit > 10");

    PropertyStore store;
    store.reset(list);

    // The engine stands between panel and store.
    RuleEngine rules(list, &store);
    for (const auto &problem : rules.problems())
        out << problem.toString("levels") << '\n';
    PropertyEditorPanel panel(list.properties(), rules.delegate(), nullptr);
    rules.attach(&panel);
    panel.updateUI();
    panel.show();

    const auto properties = list.properties();
    const auto *const group = properties.at(2);
    const auto *const high = properties.at(4);
    out << "group shown: " << rules.isVisible(group) << '\n';

    // What the user does in the panel, or undo, or a refresh as here, brings the rows up to date.
    store.setValue(properties.at(0), true, PropertyStore::NewChange);
    panel.updateUI();
    out << "group shown: " << rules.isVisible(group) << ", high from " << high->minValue.toInt()
        << " to " << high->maxValue.toInt() << '\n';
    return 0; // app.exec() in a program that goes on
}
