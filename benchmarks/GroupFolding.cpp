// Measures opening and closing a group in a PropertyPanelView beside the same in a plain panel that
// lies in a scroll area, in one run and in turn, in processor time, events that are left included.
//
//   bench-group-folding [ROWS [REPETITIONS]]

#include "benchmarks/Measure.h"

#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr int kRows = 5000;
constexpr int kRepetitions = 9;
constexpr QSize kWindowSize(420, 800);

void addRows(PropertyList &list, int rows)
{
    for (int row = 0; row < rows; ++row) {
        const QString name = QStringLiteral("row%1").arg(row);
        const QString label = QStringLiteral("Row %1").arg(row);
        if (row % 4 == 0)
            list.number(name, label).range(0, 10);
        else if (row % 4 == 1)
            list.integer(name, label).range(0, 100);
        else if (row % 4 == 2)
            list.string(name, label);
        else
            list.boolean(name, label);
    }
}

double toggle(QCheckBox *group)
{
    return secondsOf([group] {
        group->click();
        settle();
    });
}

struct Costs
{
    std::vector<double> plain, view, ratios;

    void add(QCheckBox *plainGroup, QCheckBox *viewGroup)
    {
        plain.push_back(toggle(plainGroup));
        view.push_back(toggle(viewGroup));
        ratios.push_back(view.back() / plain.back());
    }

    void print(const char *title) const
    {
        std::printf("%-8s plain %9.2f ms   view %9.2f ms   ratio %.3f\n", title,
                    median(plain) * 1e3, median(view) * 1e3, median(ratios));
    }
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int rows = arguments.size() > 1 ? std::max(arguments.at(1).toInt(), 1) : kRows;
    const int repetitions =
        arguments.size() > 2 ? std::max(arguments.at(2).toInt(), 1) : kRepetitions;

    PropertyList list;
    list.group(QStringLiteral("Group"), [&] { addRows(list, rows); });
    PropertyStore store;
    store.reset(list);

    QScrollArea plain;
    plain.setWidgetResizable(true);
    auto *const panel = new PropertyEditorPanel(list.properties(), &store, nullptr);
    panel->updateUI();
    plain.setWidget(panel);
    PropertyPanelView view;
    view.setProperties(list, &store);
    for (QWidget *window : {static_cast<QWidget *>(&plain), static_cast<QWidget *>(&view)}) {
        window->resize(kWindowSize);
        window->show();
    }
    // A widget that comes under the pointer makes Qt look for the one that is there now.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().topRight());
    settle();

    auto *const plainGroup = panel->findChild<QCheckBox *>();
    auto *const viewGroup = view.panel()->findChild<QCheckBox *>();
    Costs closing, opening;
    for (int i = 0; i < repetitions; ++i) {
        closing.add(plainGroup, viewGroup);
        opening.add(plainGroup, viewGroup);
    }
    std::printf("Qt %s, a group of %d rows\n", qVersion(), rows);
    closing.print("closing");
    opening.print("opening");
    delete plain.takeWidget();
    return 0;
}
