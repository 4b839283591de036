// Measures widgets of the kit beside the Qt widgets that they stand next to, in one run, in
// processor time.
//
//   bench-kit [REPETITIONS]

#include "Measure.h"

#include <core/DisclosureButton.h>
#include <core/LogSlider.h>

#include <QApplication>
#include <QImage>
#include <QToolButton>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Tessark::UI;

namespace {

constexpr int kSetCalls = 100000;
constexpr int kPaintCalls = 5000;
constexpr QSize kButtonSize(16, 16);

/// Nanoseconds of one call, over so many.
double nanosecondsOf(int calls, const std::function<void(int)> &call)
{
    const double seconds = secondsOf([&] {
        for (int i = 0; i < calls; ++i)
            call(i);
    });
    return seconds * 1e9 / calls;
}

/// Measures ours and Qt's by turns; prints the medians and the median of the ratios.
void compare(const char *title, int repetitions, int calls, const std::function<void(int)> &ours,
             const std::function<void(int)> &theirs, double target)
{
    std::vector<double> oursTimes, theirsTimes, ratios;
    for (int i = 0; i < repetitions; ++i) {
        oursTimes.push_back(nanosecondsOf(calls, ours));
        theirsTimes.push_back(nanosecondsOf(calls, theirs));
        ratios.push_back(oursTimes.back() / theirsTimes.back());
    }
    std::printf("%-44s %9.0f %9.0f %7.2f %7.2f\n", title, median(oursTimes), median(theirsTimes),
                median(ratios), target);
}

void compareSliders(const char *title, int repetitions, QWidget *window)
{
    auto *const ours = new LogSlider(Qt::Horizontal, window);
    auto *const theirs = new QSlider(Qt::Horizontal, window);
    theirs->setRange(0, 1000);
    for (QSlider *slider : {static_cast<QSlider *>(ours), theirs}) {
        slider->resize(200, 24);
        slider->setVisible(window->isVisible());
        slider->blockSignals(true);
    }
    // Every call moves the handle: 617 steps around a circle of 1001 positions.
    std::vector<double> values;
    for (int i = 0; i < 1001; ++i)
        values.push_back(ours->realValueAt(i * 617 % 1001));
    compare(
        title, repetitions, kSetCalls,
        [&](int i) { ours->setRealValue(values[std::size_t(i % 1001)]); },
        [&](int i) { theirs->setValue(i % 1001 * 617 % 1001); }, 2.0);
    delete ours;
    delete theirs;
}

void compareButtons(const char *title, int repetitions, bool flat, const QString &styleSheet)
{
    DisclosureButton ours(nullptr, flat);
    QToolButton theirs;
    QImage image(kButtonSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    for (QWidget *button : {static_cast<QWidget *>(&ours), static_cast<QWidget *>(&theirs)}) {
        button->setFixedSize(kButtonSize);
        button->setStyleSheet(styleSheet);
        button->render(&image);
    }
    compare(
        title, repetitions, kPaintCalls, [&](int) { ours.render(&image); },
        [&](int) { theirs.render(&image); }, 1.5);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(std::atoi(argv[1]), 1) : 11;

    QWidget hidden;
    QWidget shown;
    shown.resize(240, 60);
    shown.show();
    QCoreApplication::processEvents();

    std::printf("Qt %s, median of %d, nanoseconds of processor time a call\n", qVersion(),
                repetitions);
    std::printf("%-44s %9s %9s %7s %7s\n", "", "kit", "Qt", "ratio", "target");
    compareSliders("blocked setRealValue : setValue, hidden", repetitions, &hidden);
    compareSliders("blocked setRealValue : setValue, shown", repetitions, &shown);
    const QString sheet = QStringLiteral("* { color: red; background: white; }");
    compareButtons("paint flat button : empty tool button", repetitions, true, QString());
    compareButtons("paint button with plate : empty tool button", repetitions, false, QString());
    compareButtons("the same under a style sheet", repetitions, false, sheet);
    return 0;
}
