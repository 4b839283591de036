#include "support/EveryTypePanel.h"

#include <core/ColorWheel.h>
#include <testing/PanelDriver.h>

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Tessark::PropertyTest;
using Tessark::UI::ColorWheel;
using TestSupport::EveryTypePanel;

#define VERIFY_DONE(action) QVERIFY2((action), qPrintable(m_driver->error()))
#define VERIFY_FAILED(action, text)                                                                \
    QVERIFY(!(action));                                                                            \
    QCOMPARE(m_driver->error(), QStringLiteral(text))

/// A driver's hand on the wheel of a colour row, whose colour is dark cyan.
class tst_DriverWheel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dragsToTheNearestPixel_data();
    void dragsToTheNearestPixel();
    void dragsToWhatAPixelMeans();
    void dragsFromRightToLeft();
    void dragIsOneRun();
    void dragToWhereTheMarkerIsMakesNoEdit();
    void ringGoesRound_data();
    void ringGoesRound();
    void blackBecomesBright();
    void scripts();
    void failsWhereNoPixelMeansIt();
    void failsWhereThereIsNone();
    void failsOutsideOfTheWheel();
    void failsWhereAUserCannotAct();
    void tellsWhatComesBack();
    void mistakesInScripts_data();
    void mistakesInScripts();
    void survivesWhatIsDeletedMeanwhile();

private:
    QColor color() const { return m_driver->value(QStringLiteral("tint")).value<QColor>(); }

    std::unique_ptr<EveryTypePanel> m_rows;
    std::unique_ptr<PanelDriver> m_driver;
};

namespace {

const QString kTint = QStringLiteral("tint");

/// How far two hues are from one another, in turns.
double turnBetween(double one, double other)
{
    const double turn = std::fabs(one - other);
    return std::min(turn, 1 - turn);
}

} // namespace

void tst_DriverWheel::init()
{
    m_rows = std::make_unique<EveryTypePanel>();
    m_rows->window()->resize(500, m_rows->window()->sizeHint().height());
    m_rows->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_rows->window()));
    m_driver = std::make_unique<PanelDriver>(m_rows->window());
    VERIFY_DONE(m_driver->showTab(QStringLiteral("Colors")));
    m_rows->delegate().changes.clear();
}

void tst_DriverWheel::cleanup()
{
    m_driver.reset();
    m_rows.reset();
}

void tst_DriverWheel::dragsToTheNearestPixel_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<double>("saturation");

    QTest::newRow("orange") << 0.1 << 0.9;
    QTest::newRow("a pale green") << 0.35 << 0.4;
    QTest::newRow("blue, to the edge") << 0.66 << 1.0;
    QTest::newRow("where hues begin") << 0.0 << 0.7;
    QTest::newRow("where they end") << 0.999 << 0.7;
}

void tst_DriverWheel::dragsToTheNearestPixel()
{
    QFETCH(double, hue);
    QFETCH(double, saturation);

    VERIFY_DONE(m_driver->dragWheelNear(kTint, hue, saturation));

    QVERIFY(turnBetween(color().hsvHueF(), hue) < 0.01);
    QVERIFY(qAbs(color().hsvSaturationF() - saturation) < 0.01);
    QVERIFY(qAbs(color().valueF() - QColor(Qt::darkCyan).valueF()) < 0.001);
}

/// The marker is at the edge on the left, and goes to the middle and the right.
void tst_DriverWheel::dragsToWhatAPixelMeans()
{
    VERIFY_DONE(m_driver->dragWheel(kTint, 0, 1));
    QCOMPARE(color().name(), QStringLiteral("#800000"));

    VERIFY_DONE(m_driver->dragWheel(kTint, 0, 0));
    QCOMPARE(color().name(), QStringLiteral("#808080"));
}

/// A wheel is not mirrored.
void tst_DriverWheel::dragsFromRightToLeft()
{
    m_rows->window()->setLayoutDirection(Qt::RightToLeft);

    VERIFY_DONE(m_driver->dragWheel(kTint, 0, 1));
    VERIFY_DONE(m_driver->dragRing(kTint, 1));

    QCOMPARE(color().name(), QStringLiteral("#ff0000"));
}

void tst_DriverWheel::dragIsOneRun()
{
    VERIFY_DONE(m_driver->dragWheelNear(kTint, 0.3, 0.5));
    QCOMPARE(m_rows->delegate().flags(), (QVector<int>{0, 1, 1}));

    VERIFY_DONE(m_driver->dragRingNear(kTint, 0.9));
    QCOMPARE(m_rows->delegate().flags(), (QVector<int>{0, 1, 1, 0, 1, 1}));

    m_driver->setDragSteps(5);
    VERIFY_DONE(m_driver->dragWheelNear(kTint, 0.9, 0.5));
    QCOMPARE(m_rows->delegate().flags().mid(6), (QVector<int>{0, 1, 1, 1, 1}));
}

void tst_DriverWheel::dragToWhereTheMarkerIsMakesNoEdit()
{
    VERIFY_DONE(m_driver->dragWheelNear(kTint, 0.3, 0.5));
    const int edits = int(m_rows->delegate().changes.size());
    const auto *const wheel = m_rows->control<ColorWheel>(kTint);

    VERIFY_DONE(m_driver->dragWheel(kTint, wheel->hue(), wheel->saturation()));

    QCOMPARE(int(m_rows->delegate().changes.size()), edits);
}

void tst_DriverWheel::ringGoesRound_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("value");

    for (const int steps : {1, 3, 8}) {
        for (const double value : {0.0, 0.05, 0.3, 0.95, 1.0})
            QTest::addRow("%d movements to %g", steps, value) << steps << value;
    }
}

/// Over the whole of it, and not through the gap at its ends.
void tst_DriverWheel::ringGoesRound()
{
    QFETCH(int, steps);
    QFETCH(double, value);
    m_driver->setDragSteps(steps);

    VERIFY_DONE(m_driver->dragRing(kTint, 1));
    QCOMPARE(color().name(), QStringLiteral("#00ffff"));
    VERIFY_DONE(m_driver->dragRingNear(kTint, value));
    QVERIFY(qAbs(color().valueF() - value) < 0.01);
    VERIFY_DONE(m_driver->dragRing(kTint, 1));
    QCOMPARE(color().name(), QStringLiteral("#00ffff"));
}

void tst_DriverWheel::blackBecomesBright()
{
    VERIFY_DONE(m_driver->dragRing(kTint, 0));
    QCOMPARE(color().name(), QStringLiteral("#000000"));

    VERIFY_DONE(m_driver->dragWheel(kTint, 0, 1));

    QCOMPARE(color().name(), QStringLiteral("#ff0000"));
}

void tst_DriverWheel::scripts()
{
    VERIFY_DONE(m_driver->run(QStringLiteral(R"(
        drag wheel of tint near 0.6 0.8
        drag wheel of tint near 0.5 1.0   # back to the edge
        drag ring of tint near 0.3
        drag ring of tint to 1
        expect tint.alpha = 1
        drag tint.red near 0.5
    )")));
    QVERIFY(qAbs(color().redF() - 0.5) < 0.02);
    QVERIFY(qAbs(color().blueF() - 1) < 0.001);
}

void tst_DriverWheel::failsWhereNoPixelMeansIt()
{
    QVERIFY(!m_driver->dragWheel(kTint, 0.123, 0.456));
    QVERIFY2(m_driver->error().startsWith(QStringLiteral(
                 "drag wheel of \"tint\": No pixel of its wheel means 0.123 0.456; the nearest is "
                 "0.12")),
             qPrintable(m_driver->error()));
    QVERIFY(!m_driver->dragRing(kTint, 0.1234));
    QVERIFY2(m_driver->error().startsWith(QStringLiteral(
                 "drag ring of \"tint\": No pixel of its wheel means 0.1234; the nearest is 0.12")),
             qPrintable(m_driver->error()));
    QVERIFY(m_rows->delegate().changes.isEmpty());
}

void tst_DriverWheel::failsWhereThereIsNone()
{
    VERIFY_FAILED(m_driver->dragWheel(QStringLiteral("gain"), 0, 1),
                  "drag wheel of \"gain\": It has no wheel");
    m_rows->control<ColorWheel>(kTint)->setDisplayMode(ColorWheel::HueSaturationDisc);
    VERIFY_FAILED(m_driver->dragRing(kTint, 1), "drag ring of \"tint\": It has no ring");
    m_rows->control<ColorWheel>(kTint)->setDisplayMode(ColorWheel::HueRingTriangle);
    VERIFY_FAILED(m_driver->dragWheel(kTint, 0, 1), "drag wheel of \"tint\": It has no wheel");
}

void tst_DriverWheel::failsOutsideOfTheWheel()
{
    const char *const said = "drag wheel of \"tint\": Its wheel goes from 0 to 1";
    QVERIFY(!m_driver->dragWheelNear(kTint, 0.5, 1.1));
    QCOMPARE(m_driver->error(), QLatin1String(said));
    QVERIFY(!m_driver->dragWheelNear(kTint, -0.1, 1));
    QCOMPARE(m_driver->error(), QLatin1String(said));
    QVERIFY(!m_driver->dragWheelNear(kTint, 0.5, qQNaN()));
    QCOMPARE(m_driver->error(), QLatin1String(said));
}

void tst_DriverWheel::failsWhereAUserCannotAct()
{
    m_rows->control<ColorWheel>(kTint)->setEnabled(false);
    VERIFY_FAILED(m_driver->dragWheelNear(kTint, 0.3, 1), "drag wheel of \"tint\": It is disabled");
    m_rows->control<ColorWheel>(kTint)->setEnabled(true);
    m_driver->setRevealing(false);
    VERIFY_DONE(m_driver->showTab(QStringLiteral("Vectors")));
    VERIFY_FAILED(m_driver->dragWheelNear(kTint, 0.3, 1), "drag wheel of \"tint\": It is hidden");
}

/// The host answers each edit with a colour of its own.
void tst_DriverWheel::tellsWhatComesBack()
{
    m_rows->delegate().onSetValue = [this] {
        m_rows->delegate().values[kTint] = QColor(Qt::green);
        m_rows->panel()->updateUI();
    };

    QVERIFY(!m_driver->dragWheelNear(kTint, 0, 1));

    QVERIFY2(m_driver->error().startsWith(QStringLiteral("drag wheel of \"tint\": It is 0.333")),
             qPrintable(m_driver->error()));
}

void tst_DriverWheel::mistakesInScripts_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("error");

    QTest::newRow("no saturation") << "drag wheel of tint to 0.5"
                                   << "word 7: expected a number, found the end of the line";
    QTest::newRow("a third number") << "drag wheel of tint to 0.5 1 1"
                                    << "word 8: expected the end of the line, found \"1\"";
    QTest::newRow("no number") << "drag ring of tint to dark"
                               << "word 6: expected a number, found \"dark\"";
    QTest::newRow("no row") << "drag wheel of"
                            << "word 4: expected the name of a row, found the end of the line";
}

void tst_DriverWheel::mistakesInScripts()
{
    QFETCH(QString, line);
    QFETCH(QString, error);

    QVERIFY(!m_driver->perform(line));

    QCOMPARE(m_driver->error(), error);
    QVERIFY(m_rows->delegate().changes.isEmpty());
}

void tst_DriverWheel::survivesWhatIsDeletedMeanwhile()
{
    m_rows->delegate().onSetValue = [this] {
        m_rows->delegate().onSetValue = nullptr;
        delete m_rows->panel();
    };

    VERIFY_FAILED(m_driver->dragWheelNear(kTint, 0.3, 0.5),
                  "drag wheel of \"tint\": The panel was deleted meanwhile");
}

QTEST_MAIN(tst_DriverWheel)
#include "tst_DriverWheel.moc"
