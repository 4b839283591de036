// Measures making a file-name field beside making a line edit and a tool button in a layout by hand,
// in one run, in processor time; and setting a field to the name that it shows already.
//
//   bench-filename-field [REPETITIONS]

#include <core/FilenameField.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

using Tessark::UI::FilenameField;

namespace {

constexpr int kFields = 1000;
constexpr int kSets = 1000000;

double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

QWidget *makeField()
{
    return new FilenameField(nullptr, QFileDialog::Directory, false);
}

QWidget *makeByHand()
{
    auto *const widget = new QWidget;
    auto *const row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLineEdit, 1);
    auto *const button = new QToolButton;
    button->setText(QStringLiteral("..."));
    row->addWidget(button);
    return widget;
}

/// Processor time for one of kFields widgets; deleting them is not counted.
double secondsPerWidget(const std::function<QWidget *()> &make)
{
    std::vector<std::unique_ptr<QWidget>> widgets;
    widgets.reserve(kFields);
    const double begin = processorSeconds();
    for (int i = 0; i < kFields; ++i)
        widgets.emplace_back(make());
    return (processorSeconds() - begin) / kFields;
}

double secondsPerSet()
{
    FilenameField field(nullptr, QFileDialog::Directory, false);
    const QString name = QStringLiteral("/a/folder/with/an/ordinary/name");
    field.setFilename(name);
    const double begin = processorSeconds();
    for (int i = 0; i < kSets; ++i)
        field.setFilename(name);
    return (processorSeconds() - begin) / kSets;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int repetitions = std::max(1, argc > 1 ? std::atoi(argv[1]) : 9);

    secondsPerWidget(makeField);
    secondsPerWidget(makeByHand);
    std::vector<double> field;
    std::vector<double> byHand;
    std::vector<double> set;
    for (int i = 0; i < repetitions; ++i) {
        field.push_back(secondsPerWidget(makeField));
        byHand.push_back(secondsPerWidget(makeByHand));
        set.push_back(secondsPerSet());
    }
    std::printf("field                    %8.2f us each\n", median(field) * 1e6);
    std::printf("line edit and button     %8.2f us each\n", median(byHand) * 1e6);
    std::printf("ratio                    %8.2f\n", median(field) / median(byHand));
    std::printf("setting the same name    %8.3f us\n", median(set) * 1e6);
    return 0;
}
