#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <host/UndoDelegate.h>
#include <host/UndoKeys.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QCheckBox>
#include <QTextStream>
#include <QUndoStack>

using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyHost::UndoDelegate;
using Tessark::PropertyHost::UndoKeys;
using Tessark::PropertyUI::PropertyEditorPanel;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    PropertyList list;
    list.number("gain", "Gain").range(0, 10).defaultValue(1);
    list.group("Room", [&] { list.boolean("echo", "Echo"); });
    PropertyStore store;
    store.reset(list);

    // The delegate for undo stands between panel and store.
    QUndoStack stack;
    UndoDelegate undo(&store, &stack);
    PropertyEditorPanel panel(list.properties(), &undo, nullptr);
    undo.attach(&panel);           // undo and redo show what they restore
    UndoKeys keys(&stack, &panel); // Ctrl+Z and Ctrl+Shift+Z, in a field too
    panel.updateUI();
    panel.show();

    // What a drag of the slider tells, and then a click that folds the group.
    auto *const gain = list.properties().first();
    panel.setValue(gain, 2.0, UndoDelegate::NewChange);
    panel.setValue(gain, 2.5, UndoDelegate::ContinuedChange);
    panel.setValue(gain, 3.0, UndoDelegate::ContinuedChange);
    auto *const room = panel.findChild<QCheckBox *>();
    room->click();
    for (int i = 0; i < stack.count(); ++i)
        out << "step " << i + 1 << ": " << stack.text(i) << '\n';

    stack.undo();
    out << "the group is " << (room->isChecked() ? "open" : "folded") << '\n';
    stack.undo();
    out << "gain " << store.value(gain).toDouble() << '\n';
    return 0; // app.exec() in a program that goes on
}
