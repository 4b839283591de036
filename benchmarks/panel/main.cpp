// Measures a panel beside the same widgets put into a form by hand. Every subject and number of rows
// gets a process of its own, bare and panel in turn; costs are processor time, ratios are made pair
// by pair, and medians are reported.
//
//   bench-panel [--rows 100,1000] [--pairs 5] [--workloads build,edit] [--json]

#include "Workloads.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

const QString kBare = QStringLiteral("bare");
const QString kPanel = QStringLiteral("panel");

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

QJsonObject toJson(const Measurement &measurement)
{
    QJsonObject object;
    for (const auto &[name, cost] : measurement.costs)
        object.insert(name, cost);
    object.insert(QStringLiteral("operations"), measurement.operations);
    object.insert(QStringLiteral("qt"), QString::fromLatin1(qVersion()));
    return object;
}

/// The costs as a process of their own measured them; nothing when it failed.
std::optional<QJsonObject> measureApart(const QString &subject, int rows, const QStringList &wanted)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--measure"), subject, QStringLiteral("--rows"),
                   QString::number(rows), QStringLiteral("--workloads"),
                   wanted.join(QLatin1Char(','))});
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return std::nullopt;
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

/// Medians of one workload at one number of rows.
struct Line
{
    QString workload;
    int rows = 0;
    double bare = 0;
    double panel = 0;
    double ratio = 0; // 0: bare has nothing like it
};

std::optional<std::vector<Line>> measurePairs(int rows, int pairs, const QStringList &wanted)
{
    std::vector<QJsonObject> bare, panel;
    for (int pair = 0; pair < pairs; ++pair) {
        const auto bareCosts = measureApart(kBare, rows, wanted);
        const auto panelCosts = measureApart(kPanel, rows, wanted);
        if (!bareCosts || !panelCosts)
            return std::nullopt;
        bare.push_back(*bareCosts);
        panel.push_back(*panelCosts);
    }
    std::vector<Line> lines;
    for (const QString &workload : wanted) {
        std::vector<double> bareCosts, panelCosts, ratios;
        for (std::size_t pair = 0; pair < bare.size(); ++pair) {
            bareCosts.push_back(bare[pair].value(workload).toDouble());
            panelCosts.push_back(panel[pair].value(workload).toDouble());
            if (bareCosts.back() > 0)
                ratios.push_back(panelCosts.back() / bareCosts.back());
        }
        lines.push_back({workload, rows, median(bareCosts), median(panelCosts), median(ratios)});
    }
    return lines;
}

/// The exponent of growth between two numbers of rows.
double exponent(double small, double large, double factor)
{
    return small > 0 && large > 0 ? std::log(large / small) / std::log(factor) : 0;
}

const Line *find(const std::vector<Line> &lines, const QString &workload, int rows)
{
    for (const Line &line : lines) {
        if (line.workload == workload && line.rows == rows)
            return &line;
    }
    return nullptr;
}

void printTable(const std::vector<Line> &lines, const std::vector<int> &sizes,
                const QStringList &wanted)
{
    std::printf("Qt %s; microseconds (memory: bytes per row)\n", qVersion());
    std::printf("%-16s %8s %14s %14s %8s\n", "workload", "rows", "bare", "panel", "ratio");
    for (const QString &workload : wanted) {
        for (const int rows : sizes) {
            const Line *const line = find(lines, workload, rows);
            const double unit = workload == QLatin1String("memory") ? 1 : 1e6;
            std::printf("%-16s %8d %14.2f %14.2f %8.3f\n", qPrintable(workload), rows,
                        line->bare * unit, line->panel * unit, line->ratio);
        }
        const Line *const small = find(lines, workload, 1000);
        const Line *const large = find(lines, workload, 10000);
        if (small && large)
            std::printf("%-16s %8s %14.3f %14.3f\n", "", "exponent",
                        exponent(small->bare, large->bare, 10),
                        exponent(small->panel, large->panel, 10));
    }
}

void printJson(const std::vector<Line> &lines)
{
    QJsonArray array;
    for (const Line &line : lines) {
        array.append(QJsonObject{{QStringLiteral("workload"), line.workload},
                                 {QStringLiteral("rows"), line.rows},
                                 {QStringLiteral("bare"), line.bare},
                                 {QStringLiteral("panel"), line.panel},
                                 {QStringLiteral("ratio"), line.ratio}});
    }
    const QJsonObject report{{QStringLiteral("qt"), QString::fromLatin1(qVersion())},
                             {QStringLiteral("lines"), array}};
    std::printf("%s", QJsonDocument(report).toJson().constData());
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("rows"), QStringLiteral("Numbers of rows."), QStringLiteral("N,N"),
         QStringLiteral("10,100,1000,10000")},
        {QStringLiteral("pairs"), QStringLiteral("How often each pair is measured."),
         QStringLiteral("COUNT"), QStringLiteral("5")},
        {QStringLiteral("json"), QStringLiteral("Print JSON.")},
        {QStringLiteral("measure"), QStringLiteral("Measure one subject in this process."),
         QStringLiteral("bare|panel")},
        {QStringLiteral("workloads"), QStringLiteral("What to measure."),
         QStringLiteral("NAME,NAME"), workloads().join(QLatin1Char(','))},
    });
    parser.process(application);

    std::vector<int> sizes;
    for (const QString &size : parser.value(QStringLiteral("rows")).split(QLatin1Char(',')))
        sizes.push_back(std::max(size.toInt(), 2));
    const QStringList wanted = parser.value(QStringLiteral("workloads")).split(QLatin1Char(','));
    for (const QString &workload : wanted) {
        if (!workloads().contains(workload)) {
            std::fprintf(stderr, "bench-panel: no workload \"%s\"\n", qPrintable(workload));
            return 2;
        }
    }
    if (parser.isSet(QStringLiteral("measure"))) {
        const Measurement measurement =
            measure(parser.value(QStringLiteral("measure")), sizes.front(), wanted);
        std::printf("%s", QJsonDocument(toJson(measurement)).toJson().constData());
        return 0;
    }

    std::vector<Line> lines;
    for (const int rows : sizes) {
        const auto measured =
            measurePairs(rows, std::max(parser.value(QStringLiteral("pairs")).toInt(), 1), wanted);
        if (!measured) {
            std::fprintf(stderr, "bench-panel: a measuring process failed\n");
            return 1;
        }
        lines.insert(lines.end(), measured->begin(), measured->end());
    }
    if (parser.isSet(QStringLiteral("json")))
        printJson(lines);
    else
        printTable(lines, sizes, wanted);
    return 0;
}
