#include "Workloads.h"

#include "BareSubject.h"
#include "PanelSubject.h"
#include "benchmarks/Measure.h"

#include <QAbstractSlider>

#include <malloc.h>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

constexpr int kWarmUpRows = 40;
constexpr int kResizes = 20;

/// How often to repeat so that about so many rows are handled.
int repetitions(int rows, int rowsInAll, int atLeast, int atMost)
{
    return std::clamp(rowsInAll / std::max(rows, 1), atLeast, atMost);
}

std::unique_ptr<Subject> make(const QString &subject, int rows)
{
    if (subject == QLatin1String("panel"))
        return std::make_unique<PanelSubject>(rows);
    return std::make_unique<BareSubject>(rows);
}

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/// Fonts, styles and everything else that a process makes once.
void warmUp(const QString &subject)
{
    const std::unique_ptr<Subject> small = make(subject, kWarmUpRows);
    small->window().show();
    settle();
    small->refresh(1);
    settle();
}

void measureLife(const QString &subject, int rows, Costs &costs)
{
    std::vector<double> build, buildShow, destroy;
    const int times = repetitions(rows, 2000, 1, 20);
    for (int i = 0; i < times; ++i) {
        std::unique_ptr<Subject> hidden;
        build.push_back(secondsOf([&] { hidden = make(subject, rows); }));
        hidden.reset();
        settle();

        std::unique_ptr<Subject> shown;
        buildShow.push_back(secondsOf([&] {
            shown = make(subject, rows);
            shown->window().show();
            settle();
        }));
        destroy.push_back(secondsOf([&] {
            shown.reset();
            settle();
        }));
    }
    costs[QStringLiteral("build")] = median(build);
    costs[QStringLiteral("build_show")] = median(buildShow);
    costs[QStringLiteral("destroy")] = median(destroy);
}

double medianOf(int times, const std::function<void(int)> &operation)
{
    std::vector<double> seconds;
    for (int i = 0; i < times; ++i) {
        seconds.push_back(secondsOf([&] {
            operation(i);
            settle();
        }));
    }
    return median(seconds);
}

double dragStep(Subject &subject, int steps, Echo echo)
{
    QAbstractSlider *const slider = subject.slider();
    subject.setEcho(echo);
    slider->setValue(0);
    slider->setSliderDown(true);
    settle();
    const double cost =
        medianOf(steps, [slider](int step) { slider->setSliderPosition(step + 1); });
    slider->setSliderDown(false);
    subject.setEcho(Echo::None);
    settle();
    return cost;
}

void measureUse(Subject &subject, int rows, Costs &costs)
{
    const int refreshes = repetitions(rows, 20000, 3, 50);
    costs[QStringLiteral("refresh")] =
        medianOf(refreshes, [&](int i) { subject.refresh(i % 2 + 1); });
    subject.refresh(1);
    settle();
    costs[QStringLiteral("refresh_same")] = medianOf(refreshes, [&](int) { subject.refresh(1); });

    const int steps = repetitions(rows, 100000, 20, 200);
    costs[QStringLiteral("edit")] = dragStep(subject, steps, Echo::None);
    costs[QStringLiteral("edit_echo_one")] = dragStep(subject, steps, Echo::One);
    costs[QStringLiteral("edit_echo_all")] =
        dragStep(subject, repetitions(rows, 20000, 5, 200), Echo::All);

    costs[QStringLiteral("resize20")] = medianOf(repetitions(rows, 1000, 1, 10), [&](int) {
        for (int i = 0; i < kResizes; ++i) {
            subject.window().resize(i % 2 ? 420 : 500 + 2 * i, 800);
            settle();
        }
    });

    std::vector<double> collapse, expand;
    for (int i = 0; i < repetitions(rows, 5000, 1, 20); ++i) {
        collapse.push_back(medianOf(1, [&](int) { subject.setExpanded(false); }));
        expand.push_back(medianOf(1, [&](int) { subject.setExpanded(true); }));
    }
    costs[QStringLiteral("collapse")] = median(collapse);
    costs[QStringLiteral("expand")] = median(expand);
}

void measureUpdate(Subject &subject, int rows, Costs &costs)
{
    if (!subject.updateRow(rows / 2))
        return;
    constexpr int kCalls = 1000;
    costs[QStringLiteral("update_property")] = secondsOf([&] {
                                                   for (int call = 0; call < kCalls; ++call)
                                                       subject.updateRow(rows / 2);
                                               })
                                               / kCalls;
}

} // namespace

QStringList workloads()
{
    return {QStringLiteral("build"),         QStringLiteral("build_show"),
            QStringLiteral("refresh"),       QStringLiteral("refresh_same"),
            QStringLiteral("edit"),          QStringLiteral("edit_echo_one"),
            QStringLiteral("edit_echo_all"), QStringLiteral("resize20"),
            QStringLiteral("collapse"),      QStringLiteral("expand"),
            QStringLiteral("destroy"),       QStringLiteral("update_property"),
            QStringLiteral("memory")};
}

Costs measure(const QString &subject, int rows)
{
    Costs costs;
    warmUp(subject);
    settle();
    const double heapBefore = heapInUse();
    std::unique_ptr<Subject> live = make(subject, rows);
    live->window().show();
    settle();
    costs[QStringLiteral("memory")] = (heapInUse() - heapBefore) / rows;
    measureUse(*live, rows, costs);
    measureUpdate(*live, rows, costs);
    live.reset();
    measureLife(subject, rows, costs);
    return costs;
}

bool repeat(const QString &subject, int rows, const QString &workload, int times)
{
    warmUp(subject);
    if (workload == QLatin1String("build")) {
        for (int i = 0; i < times; ++i)
            make(subject, rows);
        return true;
    }
    const std::unique_ptr<Subject> live = make(subject, rows);
    live->window().show();
    settle();
    const auto drag = [&](Echo echo) {
        dragStep(*live, times, echo);
        return true;
    };
    if (workload == QLatin1String("edit"))
        return drag(Echo::None);
    if (workload == QLatin1String("edit_echo_one"))
        return drag(Echo::One);
    if (workload == QLatin1String("edit_echo_all"))
        return drag(Echo::All);
    std::function<void(int)> operation;
    if (workload == QLatin1String("refresh"))
        operation = [&](int i) { live->refresh(i % 2 + 1); };
    else if (workload == QLatin1String("refresh_same"))
        operation = [&](int) { live->refresh(0); };
    else if (workload == QLatin1String("expand"))
        operation = [&](int i) { live->setExpanded(i % 2 == 1); };
    else
        return false;
    medianOf(times, operation);
    return true;
}
