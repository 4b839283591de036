#include <host/PropertyList.h>
#include <property/PropertyUI.h>

#include <QApplication>

using namespace Tessark;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    PropertyHost::PropertyList list;
    list.append({QStringLiteral("title"), QStringLiteral("Title"),
                 PropertyUI::kPropertyTypeString});
    PropertyUI::PropertyEditorPanel panel(list.properties(), nullptr, nullptr);
    panel.show();
    return QApplication::exec();
}
