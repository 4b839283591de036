// Measures what a notification of a bound property costs, from the signal until it returns, beside a
// direct setValue() on the editor of its row, with panels of 100 and of 10,000 rows. Both in one run,
// on the same rows with values that change each time, in turn and in either order; processor time. A
// notification follows its object's own store, whose time alone is taken off. Nothing is painted: that
// comes later, is the same for both, and would only make their ratio look better.
//
//   bench-object-binding [REPETITIONS]

#include "benchmarks/Measure.h"

#include <host/ObjectBinding.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QScrollArea>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr int kSmall = 100;
constexpr int kLarge = 10000;
constexpr int kKinds = 5;
constexpr int kSwitch = kKinds - 1;
constexpr int kOperations = 1000; // between two looks at the clock

// Qt looks through all siblings of a check box that is unchecked: on its own, with fewer operations,
// and not among the others, whose costs would vanish behind it.
constexpr int kSwitchOperations = 50;
constexpr QSize kWindowSize(420, 800);

const char *const kTitles[kKinds + 1] = {"float", "int", "string", "colour", "bool", "others"};

} // namespace

/// A host's object with a property of each kind.
class Subject : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("number.range", "0..1000")
    Q_CLASSINFO("integer.range", "0..100000")
    Q_PROPERTY(double number MEMBER m_number NOTIFY numberChanged)
    Q_PROPERTY(int integer MEMBER m_integer NOTIFY integerChanged)
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged)
    Q_PROPERTY(bool on MEMBER m_on NOTIFY onChanged)

public:
    void keep(int kind, const QVariant &value)
    {
        switch (kind) {
        case 0:
            m_number = value.toDouble();
            break;
        case 1:
            m_integer = value.toInt();
            break;
        case 2:
            m_text = value.toString();
            break;
        case 3:
            m_color = value.value<QColor>();
            break;
        default:
            m_on = value.toBool();
        }
    }

    void notify(int kind)
    {
        switch (kind) {
        case 0:
            Q_EMIT numberChanged();
            break;
        case 1:
            Q_EMIT integerChanged();
            break;
        case 2:
            Q_EMIT textChanged();
            break;
        case 3:
            Q_EMIT colorChanged();
            break;
        default:
            Q_EMIT onChanged();
        }
    }

Q_SIGNALS:
    void numberChanged();
    void integerChanged();
    void textChanged();
    void colorChanged();
    void onChanged();

private:
    double m_number = 0;
    int m_integer = 0;
    QString m_text;
    QColor m_color;
    bool m_on = false;
};

namespace {

QVariant valueOf(int kind, int row, int round)
{
    switch (kind) {
    case 0:
        return (row * 7 + round * 11) % 1000 + 0.25;
    case 1:
        return (row * 7 + round * 11) % 1000;
    case 2:
        return QStringLiteral("value %1 of row %2").arg(round).arg(row);
    case 3:
        return QColor((row + round * 11) % 256, (round * 5) % 256, row % 256);
    default:
        return round % 2 == 0;
    }
}

/// A shown panel of that many rows, of which every object has one of each kind.
class Bench
{
public:
    explicit Bench(int rows)
        : m_rows(rows)
    {
        for (int i = 0; i < rows / kKinds; ++i) {
            ObjectBindingOptions options;
            options.prefix = QStringLiteral("%1_").arg(i);
            m_objects.push_back(std::make_unique<Subject>());
            m_binding.add(m_objects.back().get(), options);
        }
        auto *const panel =
            new PropertyEditorPanel(m_binding.properties(), m_binding.delegate(), nullptr);
        m_binding.watch(panel);
        panel->getEditors(m_editors, QString());
        m_window.setWidgetResizable(true);
        m_window.setWidget(panel);
        m_window.resize(kWindowSize);
        m_window.show();
        settle();
        m_window.setUpdatesEnabled(false);
    }

    /// Seconds of an operation; kind is that of the rows, or kKinds for all but switches in turn.
    double direct(int kind)
    {
        return perOperation(kind, [this](const Step &step) {
            m_editors.at(step.object * kKinds + step.kind)->setValue(step.value);
        });
    }

    /// The object's own store, which comes before a notification.
    double kept(int kind)
    {
        return perOperation(kind,
                            [this](const Step &step) { at(step).keep(step.kind, step.value); });
    }

    double keptAndNotified(int kind)
    {
        return perOperation(kind, [this](const Step &step) {
            at(step).keep(step.kind, step.value);
            at(step).notify(step.kind);
        });
    }

private:
    struct Step
    {
        int kind;
        int object;
        QVariant value;
    };

    Subject &at(const Step &step) { return *m_objects[std::size_t(step.object)]; }

    template <typename Operation>
    double perOperation(int kind, Operation operation)
    {
        const int objects = m_rows / kKinds;
        const bool isSwitch = kind == kSwitch;
        const int operations = isSwitch ? kSwitchOperations : kOperations;
        // Rows spread over the panel, each once before any is taken again. A switch is taken back.
        const int rows = std::min(objects, isSwitch ? operations / 2 : operations);
        double seconds = 0;
        for (int pass = 0; pass < operations / rows; ++pass) {
            ++m_round;
            std::vector<Step> steps;
            for (int row = 0; row < rows; ++row) {
                const int object = int(qint64{row} * 7919 % objects);
                const int stepKind = kind == kKinds ? row % kSwitch : kind;
                const QVariant value = valueOf(stepKind, object, isSwitch ? pass : m_round);
                steps.push_back({stepKind, object, value});
            }
            seconds += secondsOf([&] { std::for_each(steps.begin(), steps.end(), operation); });
        }
        settle();
        return seconds / (operations / rows * rows);
    }

    int m_rows;
    int m_round = 0;
    std::vector<std::unique_ptr<Subject>> m_objects;
    ObjectBinding m_binding;
    QScrollArea m_window;
    QVector<PropertyEditor *> m_editors;
};

struct Series
{
    std::vector<double> direct, notified, ratios;
};

void measure(Bench &bench, int kind, bool directFirst, Series &series)
{
    double direct = directFirst ? bench.direct(kind) : 0;
    const double kept = bench.kept(kind);
    const double notified = bench.keptAndNotified(kind) - kept;
    if (!directFirst)
        direct = bench.direct(kind);
    series.direct.push_back(direct);
    series.notified.push_back(notified);
    series.ratios.push_back(notified / direct);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(std::atoi(argv[1]), 1) : 31;

    Bench small(kSmall);
    Bench large(kLarge);
    std::array<Series, kKinds + 1> smallSeries, largeSeries;
    for (int i = -1; i < repetitions; ++i) { // the first round warms up
        for (std::size_t kind = 0; kind <= kKinds; ++kind) {
            Series warmUp;
            measure(small, int(kind), i % 2 == 0, i < 0 ? warmUp : smallSeries[kind]);
            measure(large, int(kind), i % 2 == 0, i < 0 ? warmUp : largeSeries[kind]);
        }
    }

    std::printf("Qt %s, median of %d, microseconds of processor time\n", qVersion(), repetitions);
    std::printf("%-8s %8s %10s %10s %8s\n", "rows of", "rows", "setValue", "notified", "ratio");
    for (std::size_t kind = 0; kind <= kKinds; ++kind) {
        for (const int rows : {kSmall, kLarge}) {
            const Series &series = rows == kSmall ? smallSeries[kind] : largeSeries[kind];
            std::printf("%-8s %8d %10.3f %10.3f %8.3f\n", kTitles[kind], rows,
                        median(series.direct) * 1e6, median(series.notified) * 1e6,
                        median(series.ratios));
        }
    }
    return 0;
}

#include "ObjectBindingBench.moc"
