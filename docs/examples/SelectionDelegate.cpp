#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <host/SelectionDelegate.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QTextStream>
#include <QUndoStack>

using namespace Tessark::PropertyHost;
using Tessark::PropertyUI::Property;
using Tessark::PropertyUI::PropertyEditorPanel;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    app.setStyleSheet("*[mixed=\"true\"] QAbstractSpinBox { background: #fff4d6 }");
    QTextStream out(stdout);

    // Two lamps, of one kind here; their lists may differ.
    PropertyList lamp;
    lamp.string("name", "Name");
    lamp.number("power", "Power").range(0, 100).suffix(" W").defaultValue(40);
    lamp.boolean("on", "On").defaultValue(true);
    PropertyStore desk;
    PropertyStore ceiling;
    desk.reset(lamp);
    ceiling.reset(lamp);
    Property *const power = lamp.properties().at(1);
    ceiling.setValue(power, 60.0, PropertyStore::NewChange);

    QUndoStack undoStack;
    SelectionDelegate selection(&undoStack);
    selection.setMembers({{lamp, &desk}, {lamp, &ceiling}});

    PropertyEditorPanel panel(selection.properties(), &selection, nullptr);
    selection.attach(&panel); // shows the values, and which rows are mixed
    panel.show();

    Property *const shown = selection.properties().at(1);
    const auto tell = [&](const char *deed) {
        out << deed << ": " << desk.value(power).toDouble() << ", "
            << ceiling.value(power).toDouble() << (selection.isMixed(shown) ? ", mixed" : "")
            << '\n';
    };
    tell("at first");

    // What a user types goes to all; here the host says it.
    selection.setValue(shown, 25.0, SelectionDelegate::NewChange);
    tell("an edit");
    undoStack.undo();
    tell("undone");

    // To each from its own value.
    if (const auto edit = parseRelativeEdit("*=1.5", *shown))
        selection.applyRelative(shown, edit->operation, edit->operand);
    tell("*=1.5");
    const auto problem = selection.applyRelative(shown, RelativeOperation::Divide, 0);
    out << "/=0: " << problem->message << '\n';

    // Another selection: the panel stays as long as the rows are the same.
    QObject::connect(&selection, &SelectionDelegate::listChanged,
                     [&] { out << "make another panel\n"; });
    selection.setMembers({{lamp, &ceiling}});
    tell("one lamp");
    return 0; // app.exec() in a program that goes on
}
