#include "benchmarks/panel/PanelSubject.h"
#include "support/AllocationCount.h"
#include "support/HintCountingEditor.h"

#include <property/PropertyEditorRegistry.h>

#include <QAbstractSlider>
#include <QApplication>
#include <QCheckBox>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

using namespace Tessark::PropertyUI;
using Tessark::Testing::HintCountingEditor;

namespace {

constexpr int kSmall = 100;
constexpr int kLarge = 1000;

// Bounds, about a quarter above what was counted; Qt 5's strings and variants take more.
constexpr bool kIsQt5 = QT_VERSION < QT_VERSION_CHECK(6, 0, 0);
constexpr int kAllocationsPerEqualValue = kIsQt5 ? 5 : 3;
constexpr int kAllocationsPerBuiltRow = kIsQt5 ? 450 : 360;

/// What an operation caused, the events that it left behind included.
struct Costs
{
    int delegateCalls = 0;
    int paints = 0;
    int layoutRequests = 0;
    qint64 allocations = 0;
};

class EventCounter final : public QObject
{
public:
    EventCounter() { qApp->installEventFilter(this); }

    int paints = 0;
    int layoutRequests = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        layoutRequests += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }
};

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Compares and tells both numbers.
#define VERIFY_AT_MOST(number, bound)                                                              \
    QVERIFY2((number) <= (bound),                                                                  \
             qPrintable(QStringLiteral("%1 is more than %2").arg(number).arg(bound)))

std::unique_ptr<PanelSubject> makeShown(int rows)
{
    auto subject = std::make_unique<PanelSubject>(rows);
    subject->window().show();
    settle();
    return subject;
}

Costs costsOf(const PanelSubject &subject, const std::function<void()> &operation)
{
    EventCounter events;
    const int callsBefore = subject.delegateCalls();
    const qint64 allocationsBefore = allocationCount();
    operation();
    settle();
    Costs costs;
    costs.allocations = allocationCount() - allocationsBefore;
    costs.delegateCalls = subject.delegateCalls() - callsBefore;
    costs.paints = events.paints;
    costs.layoutRequests = events.layoutRequests;
    return costs;
}

int hintCallsOf(const std::function<void()> &operation)
{
    HintCountingEditor::s_hintCalls = 0;
    operation();
    settle();
    return HintCountingEditor::s_hintCalls;
}

} // namespace

/// Counts what operations on a panel cost, where times would depend on the machine. A count that
/// grows faster than the list, or by another pass over it, fails here.
class tst_PanelCosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refreshOfEqualValues();
    void refreshOfOtherValues();
    void editWithEcho_data();
    void editWithEcho();
    void foldingAGroup();
    void updatingAProperty();
    void building();
    void sizeHints();
};

void tst_PanelCosts::refreshOfEqualValues()
{
    for (const int rows : {kSmall, kLarge}) {
        const auto subject = makeShown(rows);
        subject->refresh(1);
        settle();

        const Costs costs = costsOf(*subject, [&] { subject->refresh(1); });

        QCOMPARE(costs.delegateCalls,
                 rows + 2); // every value is asked for, and the group's markers
        QCOMPARE(costs.paints, 0);
        QCOMPARE(costs.layoutRequests, 0);
        VERIFY_AT_MOST(costs.allocations, kAllocationsPerEqualValue * rows);
    }
}

void tst_PanelCosts::refreshOfOtherValues()
{
    int paintsOfSmall = 0;
    for (const int rows : {kSmall, kLarge}) {
        const auto subject = makeShown(rows);

        const Costs costs = costsOf(*subject, [&] { subject->refresh(1); });

        QCOMPARE(costs.delegateCalls, rows + 2);
        QCOMPARE(costs.layoutRequests, 0);
        QVERIFY(costs.paints > 0);
        VERIFY_AT_MOST(costs.allocations, 60 * rows);
        if (rows == kSmall)
            paintsOfSmall = costs.paints;
        QVERIFY(costs.paints <= 1.2 * paintsOfSmall); // of what is in view
    }
}

void tst_PanelCosts::editWithEcho_data()
{
    QTest::addColumn<int>("echo");

    QTest::newRow("none") << int(Echo::None);
    QTest::newRow("one") << int(Echo::One);
    QTest::newRow("all") << int(Echo::All);
}

void tst_PanelCosts::editWithEcho()
{
    QFETCH(int, echo);
    for (const int rows : {kSmall, kLarge}) {
        const auto subject = makeShown(rows);
        QAbstractSlider *const slider = subject->slider();
        subject->setEcho(Echo(echo));
        slider->setSliderDown(true);
        slider->setSliderPosition(100);
        settle();

        const Costs costs = costsOf(*subject, [&] { slider->setSliderPosition(101); });
        slider->setSliderDown(false);

        const bool asksAll = Echo(echo) == Echo::All;
        QCOMPARE(costs.delegateCalls, asksAll ? rows + 3 : 1);
        QCOMPARE(costs.layoutRequests, 0);
        QVERIFY(costs.paints <= 6); // slider, field, what they stand on
        VERIFY_AT_MOST(costs.allocations, 250 + (asksAll ? kAllocationsPerEqualValue * rows : 0));
    }
}

void tst_PanelCosts::foldingAGroup()
{
    for (const int rows : {kSmall, kLarge}) {
        const auto subject = makeShown(rows);
        for (const bool expanded : {false, true, false, true}) {
            const Costs costs = costsOf(*subject, [&] { subject->setExpanded(expanded); });

            QCOMPARE(costs.delegateCalls, 1);
            QVERIFY(costs.layoutRequests <= 3);
            VERIFY_AT_MOST(costs.allocations, 2000 + 60 * rows);
        }
    }
}

void tst_PanelCosts::updatingAProperty()
{
    for (const int rows : {kSmall, kLarge}) {
        const auto subject = makeShown(rows);

        const Costs costs = costsOf(*subject, [&] { subject->updateRow(rows / 2); });

        QCOMPARE(costs.delegateCalls, 0);
        QCOMPARE(costs.paints, 0);
        VERIFY_AT_MOST(costs.allocations, 5);
    }
}

void tst_PanelCosts::building()
{
    makeShown(kSmall); // what a process makes once
    for (const int rows : {kSmall, kLarge}) {
        std::unique_ptr<PanelSubject> subject;
        const qint64 before = allocationCount();
        subject = std::make_unique<PanelSubject>(rows);
        const qint64 allocations = allocationCount() - before;

        QCOMPARE(subject->delegateCalls(), rows + 2);
        VERIFY_AT_MOST(allocations, kAllocationsPerBuiltRow * rows);
        QVERIFY(!canCountAllocations() || allocations > 50 * rows);
    }
}

void tst_PanelCosts::sizeHints()
{
    const QString type = QStringLiteral("counting");
    PropertyEditorRegistry::Instance()->registerPropertyEditor(type, HintCountingEditor::Factory);
    for (const int rows : {kSmall, kLarge}) {
        std::vector<Property> properties;
        properties.emplace_back(QStringLiteral("begin"), QStringLiteral("Group"),
                                kPropertyTypeBeginGroup);
        for (int row = 0; row < rows; ++row)
            properties.emplace_back(QString::number(row), QStringLiteral("Row"), type);
        properties.emplace_back(QStringLiteral("end"), QString(), kPropertyTypeEndGroup);
        QVector<Property *> list;
        for (Property &property : properties)
            list.append(&property);
        QScrollArea window;
        window.setWidgetResizable(true);
        auto *const panel = new PropertyEditorPanel(list, nullptr, nullptr);
        window.setWidget(panel);
        window.resize(420, 800);
        auto *const header = panel->findChild<QCheckBox *>();
        const auto toggle = [header] { header->click(); };
        if (!header->isChecked())
            header->click();

        const int shown = hintCallsOf([&] { window.show(); });
        const int resized = hintCallsOf([&] { window.resize(500, 800); });
        const int collapsed = hintCallsOf(toggle);
        const int expanded = hintCallsOf(toggle);

        // A pass of the layout asks each widget once, and hidden ones not at all.
        QCOMPARE(shown, rows);
        QCOMPARE(resized, rows);
        QCOMPARE(collapsed, 0);
        QCOMPARE(expanded, rows);
    }
}

QTEST_MAIN(tst_PanelCosts)
#include "tst_PanelCosts.moc"
