// Measures one rule that shows and hides very many rows of a PropertyPanelView beside doing the same by
// hand in a plain panel in a scroll area, under a disabled layout: in one run and in turn, in processor
// time, events that are left included. The mouse is in the window of each. What Qt does for many widgets
// that come at once grows with their square in both.
//
//   bench-rules [ROWS [REPETITIONS]]

#include "benchmarks/Measure.h"

#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QLayout>
#include <QScrollArea>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr int kRows = 5000;
constexpr QSize kWindowSize(420, 800);

void addRows(PropertyList &list, int rows)
{
    const QString rule = QStringLiteral("on");
    list.boolean(rule, QStringLiteral("On")).defaultValue(true);
    for (int i = 0; i < rows; ++i) {
        const QString name = QStringLiteral("row%1").arg(i);
        if (i % 2 == 0)
            list.integer(name, name).range(0, 100).visibleWhen(rule);
        else
            list.string(name, name).visibleWhen(rule);
    }
}

QVector<QWidget *> ruledWidgets(const PropertyEditorPanel &panel)
{
    QVector<QWidget *> widgets;
    for (int i = 0; i < panel.layout()->count(); ++i)
        widgets.append(panel.layout()->itemAt(i)->widget());
    const auto isRuled = [](const QWidget *widget) {
        return !qobject_cast<const QCheckBox *>(widget);
    };
    widgets.erase(std::stable_partition(widgets.begin(), widgets.end(), isRuled), widgets.end());
    return widgets;
}

void point(const QWidget &window)
{
    QCursor::setPos(window.mapToGlobal(window.rect().center()));
    settle();
}

double showByHand(PropertyEditorPanel &panel, const QVector<QWidget *> &widgets, bool shown)
{
    return secondsOf([&] {
        panel.layout()->setEnabled(false);
        for (QWidget *widget : widgets)
            widget->setVisible(shown);
        panel.layout()->setEnabled(true);
        panel.layout()->invalidate();
        settle();
    });
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int rows = arguments.size() > 1 ? std::max(arguments.at(1).toInt(), 1) : kRows;
    const int repetitions = arguments.size() > 2 ? std::max(arguments.at(2).toInt(), 1) : 5;

    PropertyList list;
    addRows(list, rows);
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
    settle();
    const QVector<QWidget *> widgets = ruledWidgets(*panel);
    auto *const box = view.panel()->findChild<QCheckBox *>();

    std::vector<double> ratios[2];
    std::printf("Qt %s, %d rows, milliseconds of processor time\n", qVersion(), rows);
    for (int i = 0; i < 2 * repetitions; ++i) {
        const bool shown = i % 2 != 0; // they are shown at first
        point(view);
        const double byRule = secondsOf([box] {
            box->click();
            settle();
        });
        point(plain);
        const double byHand = showByHand(*panel, widgets, shown);
        ratios[shown ? 1 : 0].push_back(byRule / byHand);
        std::printf("  %s   by rule %9.2f   by hand %9.2f\n", shown ? "show" : "hide", byRule * 1e3,
                    byHand * 1e3);
    }
    std::printf("median ratio   show %.3f   hide %.3f\n", median(ratios[1]), median(ratios[0]));
    delete plain.takeWidget();
    return 0;
}
