#include <host/LabelScrubber.h>
#include <host/NumberEntry.h>
#include <host/NumberExpression.h>
#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QTextStream>

using Tessark::PropertyHost::LabelScrubber;
using Tessark::PropertyHost::NumberEntry;
using Tessark::PropertyHost::NumberExpression;
using Tessark::PropertyHost::NumberScope;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyUI::PropertyEditorPanel;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    PropertyList list;
    list.number("width", "Width").range(0, 500).suffix(" mm").defaultValue(120);
    list.integer("columns", "Columns").range(1, 24).defaultValue(6);
    PropertyStore store;
    store.reset(list);

    PropertyEditorPanel panel(list.properties(), &store, nullptr);
    NumberEntry entry(&panel);      // "=width/3", "+=10", "50%" in its number fields
    LabelScrubber scrubber(&panel); // a drag on "Width:" changes the number
    panel.updateUI();
    panel.show();

    // The same arithmetic for a field of the host's own.
    NumberScope scope;
    scope.current = 120;
    scope.unit = "mm";
    for (const char *text : {"(50 mm + 1.5) * 2", "+=10%", "120 / width"}) {
        const NumberExpression expression(text, scope);
        if (expression.isValid())
            out << text << " = " << expression.value() << '\n';
        else
            out << text << ": " << expression.errorText() << '\n';
    }
    return 0; // app.exec() in a program that goes on
}
