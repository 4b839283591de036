#include <host/StructBinding.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QTextStream>

using namespace Tessark::PropertyHost;
using Tessark::PropertyUI::PropertyEditorPanel;

enum class Quality { Draft, Final };

struct Blur
{
    double radius = 4;
    bool edges = true;
};

struct Settings
{
    QString title = "Untitled";
    double gain = 1;
    Quality quality = Quality::Final;
    Blur blur;
};

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    Settings settings;
    settings.gain = 2.5;

    auto list = bindStruct(&settings);
    list.bind(&Settings::title, "Title");
    list.bind(&Settings::gain, "Gain").range(0, 10).suffix(" dB");
    list.bind(&Settings::quality, "Quality",
              {{Quality::Draft, "Draft"}, {Quality::Final, "Final"}});
    list.group(&Settings::blur, "Blur", [](auto &rows) {
        rows.bind(&Blur::radius, "Radius").range(0, 100);
        rows.bind(&Blur::edges, "Keep edges");
    });

    PropertyEditorPanel panel(list.properties(), &list, nullptr);
    panel.updateUI();
    panel.show();

    QObject::connect(&list, &StructDelegate::valueChanged, [&](auto *property, bool continued) {
        out << property->name << (continued ? " goes on changing\n" : " changed\n");
    });

    // What a user does in the panel arrives in the struct; here the host does it.
    list.setValue(list.properties().at(1), 7.5, StructDelegate::NewChange);
    out << "gain " << settings.gain << ", by default "
        << list.properties().at(1)->defaultValue.toDouble() << '\n';

    // What the host changes is shown by the next refresh.
    settings.blur.radius = 12;
    panel.updateUI();
    return 0; // app.exec() in a program that goes on
}
