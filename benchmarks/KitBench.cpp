// Measures widgets of the kit beside the Qt widgets that they stand next to, in one run, in
// processor time.
//
//   bench-kit [REPETITIONS]

#include "Measure.h"

#include <core/DisclosureButton.h>
#include <core/LogSlider.h>
#include <core/Slider.h>

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
constexpr QSize kSliderSize(200, 24);

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

template <typename RealSlider>
void compareSliders(const char *title, int repetitions, QWidget *window)
{
    auto *const ours = new RealSlider(Qt::Horizontal, window);
    auto *const theirs = new QSlider(Qt::Horizontal, window);
    theirs->setRange(0, 1000);
    for (QSlider *slider : {static_cast<QSlider *>(ours), theirs}) {
        slider->resize(kSliderSize);
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

/// A gradient that stays is in Qt's cache of colour tables, a new one is not.
enum class Gradients { Same, New };

void compareSliderPaints(const char *title, int repetitions, bool enabled, Gradients gradients)
{
    Slider ours(Qt::Horizontal);
    QSlider theirs(Qt::Horizontal);
    theirs.setRange(0, 1000);
    QImage image(kSliderSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    for (QSlider *slider : {static_cast<QSlider *>(&ours), &theirs}) {
        slider->setFixedSize(kSliderSize);
        slider->setValue(300);
        slider->setEnabled(enabled);
        slider->render(&image);
    }
    const auto paintOurs = [&](int i) {
        const int green = gradients == Gradients::Same ? 103 : i % 256;
        const int blue = gradients == Gradients::Same ? 169 : i / 256 % 256;
        ours.setGradient(QColor(0, green, blue), QColor(255, green, blue));
        ours.render(&image);
    };
    compare(
        title, repetitions, kPaintCalls, paintOurs, [&](int) { theirs.render(&image); }, 2.0);
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
    compareSliders<LogSlider>("blocked LogSlider : QSlider, hidden", repetitions, &hidden);
    compareSliders<LogSlider>("blocked LogSlider : QSlider, shown", repetitions, &shown);
    compareSliders<Slider>("blocked Slider : QSlider, hidden", repetitions, &hidden);
    compareSliders<Slider>("blocked Slider : QSlider, shown", repetitions, &shown);
    compareSliderPaints("paint slider with gradient : QSlider", repetitions, true, Gradients::Same);
    compareSliderPaints("the same disabled", repetitions, false, Gradients::Same);
    compareSliderPaints("paint slider with new gradient : QSlider", repetitions, true,
                        Gradients::New);
    const QString sheet = QStringLiteral("* { color: red; background: white; }");
    compareButtons("paint flat button : empty tool button", repetitions, true, QString());
    compareButtons("paint button with plate : empty tool button", repetitions, false, QString());
    compareButtons("the same under a style sheet", repetitions, false, sheet);
    return 0;
}
