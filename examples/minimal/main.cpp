#include <property/PropertyUI.h>

#include <QApplication>
#include <QDebug>

using namespace Tessark::PropertyUI;

// Holds the values; the panel asks for them and hands back every edit.
struct Store : IPropertyEditorDelegate
{
    void setValue(Property *property, const QVariant &value, ChangeFlags) override
    {
        values[property->name] = value;
        qInfo() << property->name << "is now" << value;
    }
    QVariant value(Property *property) override { return values.value(property->name); }
    QMap<QString, QVariant> values{{"title", "Untitled"}, {"loop", true}, {"notes", "Draft"}};
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Property title("title", "Title", kPropertyTypeString);
    Property loop("loop", "Play in a loop", kPropertyTypeBoolean);
    Property notes("notes", "Notes", kPropertyTypeString);
    title.setDefaultValue("Untitled"); // a right click on the row offers "Set to Default"
    Store store;
    PropertyEditorPanel panel({&title, &loop, &notes}, &store, nullptr);
    panel.updateUI(); // shows the store's values
    panel.show();
    return QApplication::exec();
}
