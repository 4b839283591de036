// Measures panels of "string" rows beside the same line edits in a QFormLayout made by hand, in one
// run, in processor time: building and showing them, and a refresh in which every value changes.
//
//   bench-string-rows [REPETITIONS]

#include "benchmarks/Measure.h"

#include <property/PropertyUI.h>

#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QScrollArea>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kSmall = 1000;
constexpr int kLarge = 10000;
constexpr QSize kWindowSize(420, 800);

QString textOf(int row, int generation)
{
    return QStringLiteral("value %1 of row %2").arg(generation).arg(row);
}

/// One way to put N line edits into a scrolled window.
class Subject
{
public:
    virtual ~Subject() = default;

    void build()
    {
        m_window = std::make_unique<QScrollArea>();
        m_window->setWidgetResizable(true);
        m_window->setWidget(makeContent());
        m_window->resize(kWindowSize);
        m_window->show();
        settle();
    }

    void refresh(int generation)
    {
        showValues(generation);
        settle();
    }

    void clear() { m_window.reset(); }

protected:
    virtual QWidget *makeContent() = 0;
    virtual void showValues(int generation) = 0;

private:
    std::unique_ptr<QScrollArea> m_window;
};

class BareSubject final : public Subject
{
public:
    explicit BareSubject(int rows)
        : m_rows(rows)
    {
    }

protected:
    QWidget *makeContent() override
    {
        auto *const content = new QWidget;
        auto *const form = new QFormLayout(content);
        m_fields.clear();
        for (int row = 0; row < m_rows; ++row) {
            m_fields.push_back(new QLineEdit(textOf(row, 0)));
            form->addRow(QStringLiteral("Row %1:").arg(row), m_fields.back());
        }
        return content;
    }

    void showValues(int generation) override
    {
        int row = 0;
        for (QLineEdit *field : m_fields)
            field->setText(textOf(row++, generation));
    }

private:
    int m_rows;
    std::vector<QLineEdit *> m_fields;
};

class PanelSubject final : public Subject, private IPropertyEditorDelegate
{
public:
    explicit PanelSubject(int rows)
    {
        for (int row = 0; row < rows; ++row) {
            m_properties.push_back(std::make_unique<Property>(
                QString::number(row), QStringLiteral("Row %1").arg(row), kPropertyTypeString));
        }
    }

protected:
    QWidget *makeContent() override
    {
        QVector<Property *> list;
        for (const auto &property : m_properties)
            list.append(property.get());
        m_panel = new PropertyEditorPanel(list, this, nullptr);
        showValues(0);
        return m_panel;
    }

    void showValues(int generation) override
    {
        m_generation = generation;
        m_row = 0;
        m_panel->updateUI();
    }

private:
    void setValue(Property *, const QVariant &, ChangeFlags) override {}
    QVariant value(Property *) override { return textOf(m_row++, m_generation); }

    std::vector<std::unique_ptr<Property>> m_properties;
    PropertyEditorPanel *m_panel = nullptr;
    int m_generation = 0;
    int m_row = 0;
};

struct Costs
{
    double build = 0;   // seconds, to the first painted frame
    double refresh = 0; // seconds, to the painted frame after it
};

/// What one subject cost at one number of rows, repetition by repetition.
using Series = std::vector<Costs>;

Costs costsOf(Subject &&subject, int generation)
{
    Costs costs;
    costs.build = secondsOf([&] { subject.build(); });
    costs.refresh = secondsOf([&] { subject.refresh(generation); });
    subject.clear();
    return costs;
}

double medianPerRow(const Series &series, double Costs::*what, int rows)
{
    std::vector<double> values;
    for (const Costs &costs : series)
        values.push_back(costs.*what * 1e6 / rows);
    return median(values);
}

/// The median of the ratios of two costs that were measured one after the other.
double medianRatio(const Series &numerator, const Series &denominator, double Costs::*what)
{
    std::vector<double> values;
    for (std::size_t i = 0; i < numerator.size(); ++i)
        values.push_back(numerator[i].*what / (denominator[i].*what));
    return median(values);
}

void printRow(const char *title, const Series &small, const Series &large, double Costs::*what)
{
    std::printf("%-26s %10.2f %10.2f %10.2f\n", title, medianPerRow(small, what, kSmall),
                medianPerRow(large, what, kLarge),
                medianRatio(large, small, what) * kSmall / kLarge);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(std::atoi(argv[1]), 1) : 7;

    costsOf(BareSubject(kSmall), 1);
    costsOf(PanelSubject(kSmall), 1);
    Series bareSmall, panelSmall, bareLarge, panelLarge;
    for (int i = 1; i <= repetitions; ++i) {
        bareSmall.push_back(costsOf(BareSubject(kSmall), i));
        panelSmall.push_back(costsOf(PanelSubject(kSmall), i));
        bareLarge.push_back(costsOf(BareSubject(kLarge), i));
        panelLarge.push_back(costsOf(PanelSubject(kLarge), i));
    }

    std::printf("Qt %s, median of %d, microseconds of processor time a row\n", qVersion(),
                repetitions);
    std::printf("%-26s %10s %10s %10s\n", "", "1,000", "10,000", "growth");
    printRow("build and show, panel", panelSmall, panelLarge, &Costs::build);
    printRow("build and show, by hand", bareSmall, bareLarge, &Costs::build);
    printRow("refresh, panel", panelSmall, panelLarge, &Costs::refresh);
    printRow("refresh, by hand", bareSmall, bareLarge, &Costs::refresh);
    std::printf("%-26s %10.2f %10.2f\n", "refresh, panel : by hand",
                medianRatio(panelSmall, bareSmall, &Costs::refresh),
                medianRatio(panelLarge, bareLarge, &Costs::refresh));
    return 0;
}
