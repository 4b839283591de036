// Shows a panel with all types in a view, walks through what shows texts, and prints each text that is
// cut off and how many were looked at: panel-texts LOOK [squeezed] [-reverse]

#include <host/PanelLook.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <property/PropertyEditorPanel.h>

#include <support/EveryTypeRows.h>
#include <support/TextInspection.h>

#include <QApplication>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>

#include <algorithm>

using namespace Tessark::PropertyHost;
using TestSupport::EveryTypeRows;
using TestSupport::TextInspection;

namespace {

QString text(const char *some)
{
    return QString::fromUtf8(some);
}

/// Makes the view as large as it must be for its panel to need no scroll bars.
void fitToPanel(PropertyPanelView &view)
{
    for (int i = 0; i < 3; ++i) {
        const QSize missing = view.panel()->minimumSizeHint().expandedTo(view.panel()->sizeHint())
                              - view.panel()->parentWidget()->size();
        view.resize(view.size() + missing);
        QCoreApplication::processEvents();
    }
}

PanelLook lookNamed(const QString &name)
{
    const QStringList names = {text("system"), text("light"), text("dark"), text("high-contrast")};
    return static_cast<PanelLook>(std::max(int(names.indexOf(name)), 0));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    applyPanelLook(lookNamed(arguments.value(1)));
    QTextStream out(stdout);

    const PropertyList list = EveryTypeRows::list();
    if (!EveryTypeRows::hasAll(list)) {
        out << "there are types without row\n";
        return 1;
    }
    PropertyStore store;
    store.reset(list);
    PropertyPanelView view;
    view.setProperties(list, &store);
    EveryTypeRows::setTextures(*view.panel());
    view.setDescriptionVisible(true);
    if (arguments.contains(text("squeezed")))
        view.findChild<QPushButton *>()->setFixedWidth(30);
    view.show();
    QCoreApplication::processEvents();

    int count = 0;
    auto *const tabs = view.findChild<QTabWidget *>();
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        QCoreApplication::processEvents();
        fitToPanel(view);
        const TextInspection inspection(view);
        count += inspection.count();
        const QStringList clipped = inspection.clipped();
        for (const QString &line : clipped)
            out << "clipped: " << line << '\n';
    }
    out << count << " texts at " << view.devicePixelRatioF()
        << (QApplication::isRightToLeft() ? " from right to left\n" : " from left to right\n");
    if (arguments.size() > 2 && arguments.at(2).endsWith(text(".png")))
        view.grab().save(arguments.at(2));
    return 0;
}
