// Measures the keys of a search in a PropertyPanelView beside hiding and showing the same rows by hand
// in a plain panel in a scroll area, under a disabled layout: in one run and in turn, in processor
// time, events that are left included.
//
//   bench-search [ROWS]

#include "benchmarks/Measure.h"

#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <string>
#include <vector>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr int kRows = 10000;
constexpr int kRowsInGroup = 50;
constexpr QSize kWindowSize(420, 800);

const char *const kNouns[] = {"Width",     "Height", "Depth",  "Gain",  "Rate",
                              "Threshold", "Offset", "Radius", "Angle", "Opacity"};
const char *const kAdjectives[] = {"Inner", "Outer", "Upper", "Lower", "Left", "Right", "Default"};
const char *const kThings[] = {"Lens", "Filter", "Shutter", "Mixer",  "Channel", "Stage",
                               "Grid", "Shadow", "Texture", "Camera", "Material"};

template <std::size_t Count>
QString pick(const char *const (&words)[Count], int number)
{
    return QString::fromLatin1(words[static_cast<std::size_t>(number) % Count]);
}

void addRow(PropertyList &list, int row)
{
    const QString name = QStringLiteral("row%1").arg(row);
    const QString label = pick(kAdjectives, row / 3) + QLatin1Char(' ')
                          + pick(kThings, row / kRowsInGroup) + QLatin1Char(' ')
                          + pick(kNouns, row);
    if (row % 4 == 0)
        list.number(name, label).range(0, 10).help(QStringLiteral("What it says"));
    else if (row % 4 == 1)
        list.integer(name, label).range(0, 100);
    else if (row % 4 == 2)
        list.string(name, label);
    else
        list.boolean(name, label);
}

void addRows(PropertyList &list, int rows)
{
    for (int group = 0; group * kRowsInGroup < rows; ++group) {
        list.group(QStringLiteral("Section %1").arg(group), [&] {
            for (int i = 0; i < kRowsInGroup && group * kRowsInGroup + i < rows; ++i)
                addRow(list, group * kRowsInGroup + i);
        });
    }
}

QVector<QWidget *> rowWidgets(const PropertyEditorPanel &panel)
{
    QVector<QWidget *> widgets;
    for (int i = 0; i < panel.layout()->count(); ++i)
        widgets.append(panel.layout()->itemAt(i)->widget());
    return widgets;
}

void press(QWidget *field, int key, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(field, &event);
    }
    settle();
}

/// Makes the rows of the plain panel those that the view shows.
void followByHand(PropertyEditorPanel &panel, const QVector<QWidget *> &widgets,
                  const QVector<bool> &shown)
{
    panel.layout()->setEnabled(false);
    for (int i = 0; i < widgets.size(); ++i) {
        if (widgets.at(i)->isHidden() == shown.at(i))
            widgets.at(i)->setVisible(shown.at(i));
    }
    panel.layout()->setEnabled(true);
    panel.layout()->invalidate();
    settle();
}

QVector<bool> shownOf(const QVector<QWidget *> &widgets)
{
    QVector<bool> shown;
    for (const QWidget *widget : widgets)
        shown.append(!widget->isHidden());
    return shown;
}

double sum(const std::vector<double> &values)
{
    return std::accumulate(values.cbegin(), values.cend(), 0.0);
}

struct Costs
{
    std::vector<double> view, hand, ratios;

    void add(const char *key, double viewSeconds, double handSeconds, qsizetype shown)
    {
        view.push_back(viewSeconds);
        hand.push_back(handSeconds);
        ratios.push_back(viewSeconds / handSeconds);
        std::printf("  %-12s %5d widgets   view %9.2f ms   by hand %9.2f ms\n", key, int(shown),
                    viewSeconds * 1e3, handSeconds * 1e3);
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
    // A widget that comes under the pointer makes Qt look for the one that is there now.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().topRight());
    settle();
    const QVector<QWidget *> plainWidgets = rowWidgets(*panel);
    const QVector<QWidget *> viewWidgets = rowWidgets(*view.panel());

    std::printf("Qt %s, %d rows\n", qVersion(), rows);
    const double opening = secondsOf([&view] {
        view.openSearch();
        settle();
    });
    auto *const field = qobject_cast<QLineEdit *>(view.focusWidget());
    Costs costs;
    const auto measure = [&](const char *name, int key, const QString &text) {
        const double viewSeconds = secondsOf([&] { press(field, key, text); });
        const QVector<bool> shown = shownOf(viewWidgets);
        const double handSeconds = secondsOf([&] { followByHand(*panel, plainWidgets, shown); });
        costs.add(name, viewSeconds, handSeconds, shown.count(true));
    };
    for (const char *text : {"outer lens rad", "gain 12"}) {
        for (const char *key = text; *key != 0; ++key)
            measure(std::string(text, key + 1).c_str(), 0, QString(QLatin1Char(*key)));
        for (const char *key = text; *key != 0; ++key)
            measure("Backspace", Qt::Key_Backspace, QString());
    }
    const double closing = secondsOf([&view] {
        view.closeSearch();
        settle();
    });
    std::printf("a key      median %9.2f ms   by hand %9.2f ms   ratio %.3f\n",
                median(costs.view) * 1e3, median(costs.hand) * 1e3, median(costs.ratios));
    std::printf("all keys   %9.2f ms   by hand %9.2f ms\n", sum(costs.view) * 1e3,
                sum(costs.hand) * 1e3);
    std::printf("opening %.2f ms   closing %.2f ms\n", opening * 1e3, closing * 1e3);
    delete plain.takeWidget();
    return 0;
}
