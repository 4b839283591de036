// A host program that uses the ready-made host side: its list owns the properties of a panel.

#include <host/PropertyList.h>
#include <property/PropertyUI.h>

#include <QApplication>

using namespace Tessark;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    PropertyHost::PropertyList list;
    list.setTitle(QStringLiteral("Clip"));
    list.append(
        {QStringLiteral("title"), QStringLiteral("Title"), PropertyUI::kPropertyTypeString});
    list.append({QStringLiteral("loop"), QStringLiteral("Loop"), PropertyUI::kPropertyTypeBoolean});

    const PropertyUI::PropertyEditorPanel panel(list.properties(), nullptr, nullptr);
    QVector<PropertyUI::PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    return editors.size() == 2 ? 0 : 1;
}
