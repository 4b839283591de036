#include "Workloads.h"

#include "BareSubject.h"
#include "PanelSubject.h"
#include "benchmarks/Measure.h"

#include <QAbstractSlider>

#include <malloc.h>

#include <algorithm>
#include <functional>
#include <memory>

int g_operations = 0;

/// Every operation that is timed runs in here: instruction counters look for this name.
extern "C" __attribute__((noinline)) void timedOperation(const std::function<void()> &operation)
{
    ++g_operations;
    operation();
}

namespace {

const QString kBuild = QStringLiteral("build");
const QString kBuildShow = QStringLiteral("build_show");
const QString kRefresh = QStringLiteral("refresh");
const QString kRefreshSame = QStringLiteral("refresh_same");
const QString kEdit = QStringLiteral("edit");
const QString kEditEchoOne = QStringLiteral("edit_echo_one");
const QString kEditEchoAll = QStringLiteral("edit_echo_all");
const QString kResize20 = QStringLiteral("resize20");
const QString kCollapse = QStringLiteral("collapse");
const QString kExpand = QStringLiteral("expand");
const QString kDestroy = QStringLiteral("destroy");
const QString kUpdateProperty = QStringLiteral("update_property");
const QString kMemory = QStringLiteral("memory");

constexpr int kWarmUpRows = 40;
constexpr int kResizes = 20;

/// How often to repeat so that about so many rows are handled.
int repetitions(int rows, int rowsInAll, int atLeast, int atMost)
{
    return std::clamp(rowsInAll / std::max(rows, 1), atLeast, atMost);
}

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/// Keeps freed memory in the process, so that no operation pays for pages of its predecessor.
void keepFreedMemory()
{
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
}

double timed(const std::function<void()> &operation)
{
    return secondsOf([&operation] { timedOperation(operation); });
}

/// The median cost of an operation, which is told how often it ran before, and of what it posted.
double medianOf(int times, const std::function<void(int)> &operation)
{
    std::vector<double> seconds;
    for (int i = 0; i < times; ++i) {
        seconds.push_back(timed([&] {
            operation(i);
            settle();
        }));
    }
    return median(seconds);
}

/// Measures one subject and collects what is wanted.
class Meter
{
public:
    Meter(QString subject, int rows, QStringList wanted)
        : m_subject(std::move(subject))
        , m_rows(rows)
        , m_wanted(std::move(wanted))
    {
    }

    Measurement run()
    {
        keepFreedMemory();
        warmUp();
        const double heapBefore = heapInUse();
        m_live = shown();
        note(kMemory, [&] { return (heapInUse() - heapBefore) / m_rows; });
        measureValues();
        measureEdits();
        measureGeometry();
        measureUpdate();
        m_live.reset();
        settle();
        measureLife();
        m_result.operations = g_operations;
        return m_result;
    }

private:
    bool wants(const QString &workload) const { return m_wanted.contains(workload); }

    void note(const QString &workload, const std::function<double()> &cost)
    {
        if (wants(workload))
            m_result.costs[workload] = cost();
    }

    std::unique_ptr<Subject> make(int rows) const
    {
        if (m_subject == QLatin1String("panel"))
            return std::make_unique<PanelSubject>(rows);
        return std::make_unique<BareSubject>(rows);
    }

    std::unique_ptr<Subject> shown() const
    {
        std::unique_ptr<Subject> subject = make(m_rows);
        subject->window().show();
        settle();
        return subject;
    }

    /// Fonts, styles and everything else that a process makes once.
    void warmUp() const
    {
        const std::unique_ptr<Subject> small = make(kWarmUpRows);
        small->window().show();
        settle();
        small->refresh(1);
        settle();
    }

    void measureValues()
    {
        const int times = repetitions(m_rows, 20000, 3, 51);
        note(kRefresh, [&] { return medianOf(times, [&](int i) { m_live->refresh(i % 2 + 1); }); });
        m_live->refresh(1);
        settle();
        note(kRefreshSame, [&] { return medianOf(times, [&](int) { m_live->refresh(1); }); });
    }

    void measureEdits()
    {
        const int steps = repetitions(m_rows, 100000, 41, 201);
        note(kEdit, [&] { return dragStep(steps, Echo::None); });
        note(kEditEchoOne, [&] { return dragStep(steps, Echo::One); });
        note(kEditEchoAll, [&] { return dragStep(repetitions(m_rows, 20000, 5, 201), Echo::All); });
    }

    double dragStep(int steps, Echo echo)
    {
        QAbstractSlider *const slider = m_live->slider();
        m_live->setEcho(echo);
        slider->setValue(0);
        slider->setSliderDown(true);
        settle();
        const double cost =
            medianOf(steps, [slider](int step) { slider->setSliderPosition(step + 1); });
        slider->setSliderDown(false);
        m_live->setEcho(Echo::None);
        settle();
        return cost;
    }

    void measureGeometry()
    {
        note(kResize20, [&] {
            return medianOf(repetitions(m_rows, 1000, 3, 11), [&](int) { resizeOften(); });
        });
        if (!wants(kCollapse) && !wants(kExpand))
            return;
        std::vector<double> collapse, expand;
        for (int i = 0; i < repetitions(m_rows, 5000, 1, 21); ++i) {
            collapse.push_back(medianOf(1, [&](int) { m_live->setExpanded(false); }));
            expand.push_back(medianOf(1, [&](int) { m_live->setExpanded(true); }));
        }
        note(kCollapse, [&] { return median(collapse); });
        note(kExpand, [&] { return median(expand); });
    }

    void resizeOften()
    {
        for (int i = 0; i < kResizes; ++i) {
            m_live->window().resize(i % 2 ? 420 : 500 + 2 * i, 800);
            settle();
        }
    }

    void measureUpdate()
    {
        constexpr int kCalls = 1000;
        if (!wants(kUpdateProperty) || !m_live->updateRow(m_rows / 2))
            return;
        const auto calls = [&] {
            for (int call = 0; call < kCalls; ++call)
                m_live->updateRow(m_rows / 2);
        };
        m_result.costs[kUpdateProperty] = timed(calls) / kCalls;
    }

    void measureLife()
    {
        const int times = repetitions(m_rows, 4000, 3, 21);
        std::unique_ptr<Subject> subject;
        const auto repeated = [&](const std::function<double()> &once) {
            std::vector<double> seconds;
            for (int i = 0; i < times; ++i) {
                seconds.push_back(once());
                subject.reset();
                settle();
            }
            return median(seconds);
        };
        note(kBuild,
             [&] { return repeated([&] { return timed([&] { subject = make(m_rows); }); }); });
        note(kBuildShow,
             [&] { return repeated([&] { return timed([&] { subject = shown(); }); }); });
        note(kDestroy, [&] {
            return repeated([&] {
                subject = shown();
                return timed([&] {
                    subject.reset();
                    settle();
                });
            });
        });
    }

    QString m_subject;
    int m_rows;
    QStringList m_wanted;
    std::unique_ptr<Subject> m_live;
    Measurement m_result;
};

} // namespace

QStringList workloads()
{
    return {kBuild,       kBuildShow,      kRefresh,  kRefreshSame, kEdit,
            kEditEchoOne, kEditEchoAll,    kResize20, kCollapse,    kExpand,
            kDestroy,     kUpdateProperty, kMemory};
}

Measurement measure(const QString &subject, int rows, const QStringList &wanted)
{
    return Meter(subject, rows, wanted).run();
}
