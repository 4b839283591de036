// Lets a random user and a random host work on a panel of all types and says what went wrong.
//
//     soak --events 2000000 --seed 1
//
// Exit status: 0 when nothing did, 1 otherwise. The same seed does the same again.

#include "SoakUser.h"

#include "support/HeapUse.h"

#include <QApplication>
#include <QClipboard>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <vector>

using namespace Tessark::PropertyUI;

namespace Soak {

namespace {

constexpr int kRemembered = 30; // events that are told when something goes wrong
constexpr int kSamples = 40;    // of the memory

// Before that many events Qt is still filling its caches.
constexpr qint64 kEventsToLevel = 100000;

// What the second half of a run may add to the heap, in bytes: what Qt caches of fonts and paths varies
// by more than the sizes of a few allocations.
constexpr qint64 kGrowthBound = 256 * 1024;

QStringList &qtMessages()
{
    static QStringList messages;
    return messages;
}

/// Messages of a platform that has no real windows, about what it lacks.
bool isOfPlatform(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support"));
}

void keepMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || isOfPlatform(text))
        return;
    qtMessages().append(text);
}

/// Time passes by the events alone: what holds a button down long enough to repeat, or lets a
/// cursor blink, would depend on the speed of the machine.
class ClockStopper : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::Timer
               && (watched->inherits("QAbstractSpinBox") || watched->inherits("QAbstractSlider")
                   || watched->inherits("QAbstractButton"));
    }
};

/// Of samples that lie about a level a few are far off, and which ones is chance.
qint64 medianOf(std::vector<qint64> samples)
{
    const auto middle = samples.begin() + std::ptrdiff_t(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

class Run
{
public:
    Run(quint64 seed, qint64 events);

    /// Whether all went well.
    bool run();

private:
    void step();
    void hostStep();
    void remember(const QString &event);
    void sampleMemory();
    bool hasFaults();
    void tellFaults();
    bool tellMemory() const;

    const quint64 m_seed;
    const qint64 m_events;
    Random m_random;
    Rows m_rows;
    SoakHost m_host;
    QWidget m_window;
    QScrollArea *m_scrollArea;
    SoakPanel *m_panel;
    SoakUser m_user;

    qint64 m_done = 0;
    QStringList m_last;
    std::vector<qint64> m_heap;
};

Run::Run(quint64 seed, qint64 events)
    : m_seed(seed)
    , m_events(events)
    , m_random(seed)
    , m_host(m_rows, m_random)
    , m_scrollArea(new QScrollArea)
    , m_panel(new SoakPanel(m_rows, &m_host))
    , m_user(&m_host, &m_window, m_scrollArea, m_random)
{
    m_host.watch(m_panel);
    m_scrollArea->setWidget(m_panel);
    m_scrollArea->setWidgetResizable(true);
    auto *const layout = new QVBoxLayout(&m_window);
    layout->addWidget(m_scrollArea);
    m_window.resize(600, 700);
    m_window.show();
    m_window.activateWindow();
    m_host.reset();
    QCoreApplication::processEvents();
}

bool Run::run()
{
    QElapsedTimer timer;
    timer.start();
    const qint64 interval = std::max<qint64>(1, m_events / kSamples);
    while (m_done < m_events && !hasFaults()) {
        step();
        if (m_done % interval == 0 && !hasFaults())
            sampleMemory();
    }
    std::printf("seed %llu: %lld events, %lld changes told (%lld continued), %lld checks, %.0f s\n",
                static_cast<unsigned long long>(m_seed), static_cast<long long>(m_done),
                static_cast<long long>(m_host.changes()),
                static_cast<long long>(m_host.continuedChanges()),
                static_cast<long long>(m_host.checks()), double(timer.elapsed()) / 1000);
    if (hasFaults()) {
        tellFaults();
        return false;
    }
    return tellMemory();
}

void Run::step()
{
    const QString event = m_user.act();
    ++m_done;
    remember(event);
    const bool isUnattended = !SoakUser::hasPopup() && QApplication::activeWindow() == &m_window;
    m_host.check(isUnattended);
    if (happens(m_random, 5))
        hostStep();
}

void Run::hostStep()
{
    const int choice = below(m_random, 10);
    if (choice < 5)
        m_host.refresh();
    else if (choice < 9)
        m_host.setSomeValue();
    else
        m_host.describeSomethingAnew();
    remember(QStringLiteral("(host %1)").arg(choice));
    m_host.check(false);
}

void Run::remember(const QString &event)
{
    m_last.append(event);
    if (m_last.size() > kRemembered)
        m_last.removeFirst();
}

/// What is in use when all is as it was at the beginning.
void Run::sampleMemory()
{
    m_user.letGo();
    m_host.reset();
    m_window.resize(600, 700);
    QApplication::clipboard()->clear();
    QCoreApplication::processEvents();
    m_host.check(true);
    m_heap.push_back(heapInUse());
    std::printf("  %9lld events, %.0f KB of heap in use\n", static_cast<long long>(m_done),
                double(m_heap.back()) / 1024);
    std::fflush(stdout);
}

bool Run::hasFaults()
{
    const QStringList messages = std::exchange(qtMessages(), QStringList());
    for (const QString &message : messages)
        m_host.addFault(QStringLiteral("Qt says: ") + message);
    return !m_host.faults().isEmpty();
}

void Run::tellFaults()
{
    std::printf("FAILED at event %lld of seed %llu, after:\n", static_cast<long long>(m_done),
                static_cast<unsigned long long>(m_seed));
    for (const QString &event : std::as_const(m_last))
        std::printf("    %s\n", qPrintable(event));
    const QStringList faults = m_host.faults();
    for (const QString &fault : faults)
        std::printf("  %s\n", qPrintable(fault));
}

bool Run::tellMemory() const
{
    if (m_events < kEventsToLevel)
        return true; // too short to tell
    const auto middle = m_heap.cbegin() + kSamples / 2;
    const auto threeQuarters = middle + kSamples / 4;
    const qint64 before = medianOf({middle, threeQuarters});
    const qint64 after = medianOf({threeQuarters, m_heap.cend()});
    std::printf("heap: %.0f KB in the middle of the third quarter's samples, %.0f KB in the last\n",
                double(before) / 1024, double(after) / 1024);
    const bool isLevel = after - before <= kGrowthBound;
    if (!isLevel)
        std::printf("FAILED: the heap grows\n");
    return isLevel;
}

} // namespace

} // namespace Soak

int main(int argc, char *argv[])
{
    const QTemporaryDir settings; // where file dialogs keep what they remember
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qInstallMessageHandler(Soak::keepMessage);
    QApplication application(argc, argv);
    Soak::ClockStopper clockStopper;
    application.installEventFilter(&clockStopper);
    application.setCursorFlashTime(0);
    application.setQuitOnLastWindowClosed(false);
    // Off, since Qt keeps the name of every picture that its style ever cached, also when the cache
    // is cleared; and the style has a name for each size of each control.
    QPixmapCache::setCacheLimit(0);

    QCommandLineParser parser;
    const QCommandLineOption eventsOption(QStringLiteral("events"), QString(),
                                          QStringLiteral("count"), QStringLiteral("20000"));
    const QCommandLineOption seedOption(QStringLiteral("seed"), QString(), QStringLiteral("number"),
                                        QStringLiteral("1"));
    parser.addOptions({eventsOption, seedOption});
    parser.addHelpOption();
    parser.process(application);
    Soak::Run run(parser.value(seedOption).toULongLong(), parser.value(eventsOption).toLongLong());
    return run.run() ? 0 : 1;
}
