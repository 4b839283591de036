#include "core/LogSlider.h"

#include "support/RealSliders.h"

#include <QAccessible>
#include <QDialog>
#include <QPointer>
#include <QRandomGenerator>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using Tessark::UI::LogSlider;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

using OpenedLogSlider = Opened<LogSlider>;
using SignalLog = RealSliderLog<LogSlider>;

} // namespace

class tst_LogSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fresh();
    void isASlider();
    void propertiesAreInTheMetaObject();

    void setRealRange_data();
    void setRealRange();
    void setRealRangeLeavesSteps();
    void endsAreExact();
    void onePointDoesNotMove();
    void newRangeClampsTheValue();
    void newRangeKeepsTheValue();
    void rangeIsAnnouncedBeforeValue();
    void equalRangeIsSilent();
    void blockedRangeIsSilent();
    void rangeFromInsideValueChanged();
    void slotOfRangeChangedMayMove();
    void slotOfRangeChangedMayDelete();

    void positionsAndValues();
    void positionsComeBack();
    void positionOfBadNumbers_data();
    void positionOfBadNumbers();
    void realValueAtClamps();

    void keepsTheExactValue();
    void otherRoadsGiveThePositionsValue();
    void samePositionByAnotherRoadKeepsTheValue();
    void setRealValueClamps_data();
    void setRealValueClamps();
    void ignoresNaN();
    void announcesTheRealValueWithoutTheInteger();
    void announcesBothOnce();
    void announcesNothingTwice();
    void integerRoadAnnouncesBothOnce();
    void slotsSeeTheNewValue();
    void blockedSignals();
    void nothingIsLateAfterBlocking();
    void setRealValueFromInsideValueChanged();
    void setRealValueFromInsideRealValueChanged();
    void slotMayDelete_data();
    void slotMayDelete();

    void integerRangeStretchesTheScale();
    void integerRangeIsAnnouncedInOrder();
    void integerRangeSilentWhereThePositionStays();
    void integerRangeToOnePoint();
    void integerRangeWithBlockedSignals();
    void integerRangeWithoutTracking();
    void hugeIntegerRange();

    void keysAreQtsOwn_data();
    void keysAreQtsOwn();
    void grooveAndWheelAreQtsOwn();
    void wheelNeedsFocus();

    void drag();
    void dragWithoutTracking();
    void dragRightToLeft();
    void dragVertically();
    void escapeRestoresTheExactValue();
    void escapeAfterADoubleClick();
    void escapeWithoutTracking();
    void escapeSilentWhereNothingMoved();
    void pointerIsIgnoredAfterEscape();
    void freshPressAfterALostRelease();
    void secondButtonDoesNotEndTheWait();
    void escapeKeepsTheDialogOpen();
    void escapeBesideADragGoesToTheDialog();
    void escapeGoesOnWhileHeldByProgram();
    void otherKeysWhileDragging();
    void slotMayDeleteOnEscape();
    void setRealValueDuringADragWithoutTracking();

    void accessibleInterface();
    void accessibleStep();
    void accessibleEdit();
    void accessibleEditOfADisabledSlider();
    void accessibleSubclass();

private:
    std::unique_ptr<OpenedLogSlider> m_slider;
};

void tst_LogSlider::init()
{
    m_slider = std::make_unique<OpenedLogSlider>(Qt::Horizontal);
    m_slider->resize(300, 30);
}

void tst_LogSlider::fresh()
{
    const LogSlider slider(Qt::Vertical);

    QCOMPARE(slider.orientation(), Qt::Vertical);
    QCOMPARE(slider.minimumExponent(), 0);
    QCOMPARE(slider.maximumExponent(), 1);
    QCOMPARE(slider.realMinimum(), 1.0);
    QCOMPARE(slider.realMaximum(), 10.0);
    QCOMPARE(slider.realValue(), 1.0);
    QCOMPARE(slider.minimum(), 0);
    QCOMPARE(slider.maximum(), 1000);
    QCOMPARE(slider.value(), 0);
    QCOMPARE(slider.singleStep(), QSlider(Qt::Vertical).singleStep());
    QCOMPARE(slider.pageStep(), QSlider(Qt::Vertical).pageStep());
    QCOMPARE(slider.focusPolicy(), QSlider(Qt::Vertical).focusPolicy());
    QVERIFY(!slider.wheelNeedsFocus());
    QVERIFY(!slider.parent());
}

void tst_LogSlider::isASlider()
{
    QWidget parent;
    auto *const slider = new LogSlider(Qt::Horizontal, &parent);
    QAbstractSlider *const base = slider;
    QSlider plain;

    QCOMPARE(slider->parentWidget(), &parent);
    QVERIFY(qobject_cast<QSlider *>(base));
    QCOMPARE(qobject_cast<LogSlider *>(base), slider);
    QVERIFY(!qobject_cast<LogSlider *>(static_cast<QObject *>(&plain)));
    QCOMPARE(QByteArray(slider->metaObject()->className()), QByteArray("Tessark::UI::LogSlider"));
}

void tst_LogSlider::propertiesAreInTheMetaObject()
{
    QVERIFY(m_slider->setProperty("realValue", 2.5));
    QVERIFY(m_slider->setProperty("wheelNeedsFocus", true));

    QCOMPARE(m_slider->realValue(), 2.5);
    QCOMPARE(m_slider->property("realMinimum").toDouble(), 1.0);
    QCOMPARE(m_slider->property("realMaximum").toDouble(), 10.0);
    QCOMPARE(m_slider->property("minimumExponent").toInt(), 0);
    QCOMPARE(m_slider->property("maximumExponent").toInt(), 1);
    QVERIFY(m_slider->wheelNeedsFocus());
    QVERIFY(QMetaObject::invokeMethod(m_slider.get(), "setRealValue", Q_ARG(double, 4.5)));
    QCOMPARE(m_slider->property("realValue").toDouble(), 4.5);
}

void tst_LogSlider::setRealRange_data()
{
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::addColumn<int>("positions");
    QTest::addColumn<int>("expectedLow");
    QTest::addColumn<int>("expectedHigh");
    QTest::addColumn<int>("expectedMaximum");

    QTest::newRow("plain") << -2 << 4 << 1000 << -2 << 4 << 1000;
    QTest::newRow("reversed") << 4 << -2 << 10 << -2 << 4 << 10;
    QTest::newRow("exponents too far out") << -301 << 999 << 10 << -300 << 300 << 10;
    QTest::newRow("least exponents") << INT_MIN << INT_MIN << 10 << -300 << -300 << 0;
    QTest::newRow("greatest exponents, reversed") << INT_MAX << 0 << 10 << 0 << 300 << 10;
    QTest::newRow("equal exponents") << 2 << 2 << 1000 << 2 << 2 << 0;
    QTest::newRow("no positions") << 0 << 1 << 0 << 0 << 1 << 1;
    QTest::newRow("negative positions") << 0 << 1 << INT_MIN << 0 << 1 << 1;
    QTest::newRow("most positions") << 0 << 1 << 1000000 << 0 << 1 << 1000000;
    QTest::newRow("too many positions") << 0 << 1 << INT_MAX << 0 << 1 << 1000000;
}

void tst_LogSlider::setRealRange()
{
    QFETCH(int, low);
    QFETCH(int, high);
    QFETCH(int, positions);

    m_slider->setRealRange(low, high, positions);

    QTEST(m_slider->minimumExponent(), "expectedLow");
    QTEST(m_slider->maximumExponent(), "expectedHigh");
    QCOMPARE(m_slider->minimum(), 0);
    QTEST(m_slider->maximum(), "expectedMaximum");
}

void tst_LogSlider::setRealRangeLeavesSteps()
{
    m_slider->setSingleStep(7);
    m_slider->setPageStep(70);

    m_slider->setRealRange(-3, 3, 50);

    QCOMPARE(m_slider->singleStep(), 7);
    QCOMPARE(m_slider->pageStep(), 70);
}

void tst_LogSlider::endsAreExact()
{
    for (int exponent = -300; exponent < 300; ++exponent) {
        m_slider->setRealRange(exponent, exponent + 1, 1000);
        const QByteArray literal = "1e" + QByteArray::number(exponent);

        QVERIFY(m_slider->realMinimum() == literal.toDouble());
        QVERIFY(m_slider->realValueAt(0) == m_slider->realMinimum());
        QVERIFY(m_slider->realValueAt(1000) == m_slider->realMaximum());
    }
    m_slider->setRealRange(-300, 300, 1000);
    QVERIFY(m_slider->realMinimum() == 1e-300);
    QVERIFY(m_slider->realMaximum() == 1e300);
}

void tst_LogSlider::onePointDoesNotMove()
{
    m_slider->setRealRange(3, 3, 1000);
    QSignalSpy spy(m_slider.get(), &QSlider::valueChanged);

    m_slider->setRealValue(5);
    m_slider->setValue(12);
    QTest::keyClick(m_slider.get(), Qt::Key_Right);
    press(m_slider.get(), m_slider->handle());
    move(m_slider.get(), QPoint(200, 15));
    release(m_slider.get(), QPoint(200, 15));

    QCOMPARE(m_slider->value(), 0);
    QCOMPARE(m_slider->realValue(), 1000.0);
    QCOMPARE(m_slider->positionOf(7.0), 0);
    QVERIFY(spy.isEmpty());
}

void tst_LogSlider::newRangeClampsTheValue()
{
    m_slider->setRealValue(5);

    m_slider->setRealRange(1, 2, 100);
    QCOMPARE(m_slider->realValue(), 10.0);
    QCOMPARE(m_slider->value(), 0);

    m_slider->setRealRange(-2, -1, 100);
    QCOMPARE(m_slider->realValue(), 0.1);
    QCOMPARE(m_slider->value(), 100);
}

void tst_LogSlider::newRangeKeepsTheValue()
{
    m_slider->setRealValue(3.3333);

    m_slider->setRealRange(-1, 1, 500);

    QVERIFY(m_slider->realValue() == 3.3333);
    QCOMPARE(m_slider->value(), m_slider->positionOf(3.3333));
    QCOMPARE(m_slider->value(), 381);
}

void tst_LogSlider::rangeIsAnnouncedBeforeValue()
{
    SignalLog log(m_slider.get());

    m_slider->setRealRange(-1, 1, 100);
    QCOMPARE(log.text(), QStringLiteral("range 0..100, value 50"));

    log.clear();
    m_slider->setRealRange(1, 2, 500);
    QCOMPARE(log.text(), QStringLiteral("range 0..500, real 10, value 0"));

    log.clear();
    m_slider->setRealRange(2, 3, 500); // other real values on the same positions
    QCOMPARE(log.text(), QStringLiteral("real 100"));
}

void tst_LogSlider::equalRangeIsSilent()
{
    m_slider->setRealValue(2.2);
    SignalLog log(m_slider.get());

    m_slider->setRealRange(0, 1, 1000);

    QCOMPARE(log.text(), QString());
    QVERIFY(m_slider->realValue() == 2.2);
}

void tst_LogSlider::blockedRangeIsSilent()
{
    SignalLog log(m_slider.get());

    m_slider->blockSignals(true);
    m_slider->setRealRange(1, 2, 100);
    QVERIFY(m_slider->signalsBlocked());
    m_slider->blockSignals(false);

    QCOMPARE(log.text(), QString());
    QCOMPARE(m_slider->maximum(), 100);
    QCOMPARE(m_slider->realValue(), 10.0);
}

void tst_LogSlider::rangeFromInsideValueChanged()
{
    SignalLog log(m_slider.get());
    const auto once = std::make_shared<bool>(true);
    connect(m_slider.get(), &QSlider::valueChanged, m_slider.get(), [this, once] {
        if (std::exchange(*once, false))
            m_slider->setRealRange(1, 3, 200);
    });

    m_slider->setRealValue(5);

    QCOMPARE(m_slider->realValue(), 10.0);
    QCOMPARE(m_slider->value(), 0);
    QCOMPARE(m_slider->maximum(), 200);
    QCOMPARE(log.text(), QStringLiteral("real 5, value 699, range 0..200, real 10, value 0"));
}

void tst_LogSlider::slotOfRangeChangedMayMove()
{
    m_slider->setRealValue(5);
    SignalLog log(m_slider.get());
    connect(m_slider.get(), &QSlider::rangeChanged, m_slider.get(),
            [this] { m_slider->setRealValue(100); });

    m_slider->setRealRange(0, 2, 100);

    QCOMPARE(m_slider->realValue(), 100.0);
    QCOMPARE(log.text(), QStringLiteral("range 0..100, real 100, value 100"));
}

void tst_LogSlider::slotOfRangeChangedMayDelete()
{
    auto *const slider = new LogSlider(Qt::Horizontal);
    const QPointer<LogSlider> alive(slider);
    connect(slider, &QSlider::rangeChanged, this, [slider] { delete slider; });

    slider->setRealRange(2, 3, 100);

    QVERIFY(!alive);
}

void tst_LogSlider::positionsAndValues()
{
    m_slider->setRealRange(-2, 4, 600);

    QCOMPARE(m_slider->positionOf(1.0), 200);
    QCOMPARE(m_slider->positionOf(10.0), 300);
    QCOMPARE(m_slider->positionOf(1e4), 600);
    QCOMPARE(m_slider->realValueAt(100), 0.1);
    QCOMPARE(m_slider->realValueAt(250), std::sqrt(10.0));
}

void tst_LogSlider::positionsComeBack()
{
    m_slider->setRealRange(-3, 3, 1000);

    for (int position = 0; position <= 1000; ++position)
        QCOMPARE(m_slider->positionOf(m_slider->realValueAt(position)), position);
}

void tst_LogSlider::positionOfBadNumbers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("position");

    QTest::newRow("NaN is the current position") << kNaN << 477;
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("negative") << -3.0 << 0;
    QTest::newRow("minus infinity") << -kInfinity << 0;
    QTest::newRow("infinity") << kInfinity << 1000;
    QTest::newRow("too large") << 10.5 << 1000;
}

void tst_LogSlider::positionOfBadNumbers()
{
    QFETCH(double, value);
    m_slider->setRealValue(3);

    QTEST(m_slider->positionOf(value), "position");
}

void tst_LogSlider::realValueAtClamps()
{
    QCOMPARE(m_slider->realValueAt(-1), 1.0);
    QCOMPARE(m_slider->realValueAt(INT_MIN), 1.0);
    QCOMPARE(m_slider->realValueAt(1001), 10.0);
    QCOMPARE(m_slider->realValueAt(INT_MAX), 10.0);
}

void tst_LogSlider::keepsTheExactValue()
{
    m_slider->setRealRange(-6, 6, 1000);
    QRandomGenerator *const random = QRandomGenerator::global();

    for (int i = 0; i < 100000; ++i) {
        const double value = std::pow(10.0, 12 * random->generateDouble() - 6);
        m_slider->setRealValue(value);
        QVERIFY(m_slider->realValue() == value);
        QCOMPARE(m_slider->value(), m_slider->positionOf(value));
        m_slider->setRealValue(m_slider->realValue()); // what a host's echo does
        QVERIFY(m_slider->realValue() == value);
    }
}

void tst_LogSlider::otherRoadsGiveThePositionsValue()
{
    m_slider->setRealValue(2.34567);

    m_slider->setValue(500);
    QVERIFY(m_slider->realValue() == m_slider->realValueAt(500));

    m_slider->setRealValue(2.34567);
    m_slider->triggerAction(QAbstractSlider::SliderToMaximum);
    QVERIFY(m_slider->realValue() == 10.0);

    m_slider->setRealValue(2.34567);
    m_slider->blockSignals(true);
    m_slider->setValue(7);
    QVERIFY(m_slider->realValue() == m_slider->realValueAt(7));
}

void tst_LogSlider::samePositionByAnotherRoadKeepsTheValue()
{
    m_slider->setRealValue(2.34567);

    m_slider->setValue(m_slider->value());

    QVERIFY(m_slider->realValue() == 2.34567);
}

void tst_LogSlider::setRealValueClamps_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");

    QTest::newRow("below") << 0.999 << 1.0;
    QTest::newRow("zero") << 0.0 << 1.0;
    QTest::newRow("negative zero") << -0.0 << 1.0;
    QTest::newRow("negative") << -5.0 << 1.0;
    QTest::newRow("minus infinity") << -kInfinity << 1.0;
    QTest::newRow("above") << 10.001 << 10.0;
    QTest::newRow("largest number") << std::numeric_limits<double>::max() << 10.0;
    QTest::newRow("infinity") << kInfinity << 10.0;
}

void tst_LogSlider::setRealValueClamps()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    m_slider->setRealValue(4);

    m_slider->setRealValue(value);

    QVERIFY(m_slider->realValue() == expected);
    QCOMPARE(m_slider->value(), expected == 1.0 ? 0 : 1000);
}

void tst_LogSlider::ignoresNaN()
{
    m_slider->setRealValue(4);
    SignalLog log(m_slider.get());

    m_slider->setRealValue(kNaN);

    QCOMPARE(m_slider->realValue(), 4.0);
    QCOMPARE(log.text(), QString());
}

void tst_LogSlider::announcesTheRealValueWithoutTheInteger()
{
    m_slider->setRealValue(4);
    SignalLog log(m_slider.get());

    m_slider->setRealValue(4.0001);

    QCOMPARE(log.text(), QStringLiteral("real 4.0001"));
}

void tst_LogSlider::announcesBothOnce()
{
    SignalLog log(m_slider.get());

    m_slider->setRealValue(5);

    QCOMPARE(log.text(), QStringLiteral("real 5, value 699"));
}

void tst_LogSlider::announcesNothingTwice()
{
    m_slider->setRealValue(5);
    SignalLog log(m_slider.get());

    m_slider->setRealValue(5);

    QCOMPARE(log.text(), QString());
}

void tst_LogSlider::integerRoadAnnouncesBothOnce()
{
    SignalLog log(m_slider.get());

    m_slider->setValue(1000);

    QCOMPARE(log.text(), QStringLiteral("real 10, value 1000"));
}

void tst_LogSlider::slotsSeeTheNewValue()
{
    QVector<double> seen;
    connect(m_slider.get(), &QSlider::valueChanged, this,
            [&] { seen.append(m_slider->realValue()); });
    connect(m_slider.get(), &LogSlider::realValueChanged, this, [&](double value) {
        seen.append(value);
        seen.append(m_slider->realValueAt(m_slider->value()));
    });

    m_slider->setRealValue(5);
    QCOMPARE(seen, QVector<double>({5.0, m_slider->realValueAt(699), 5.0}));

    seen.clear();
    m_slider->setValue(1000);
    QCOMPARE(seen, QVector<double>({10.0, 10.0, 10.0}));
}

void tst_LogSlider::blockedSignals()
{
    SignalLog log(m_slider.get());

    m_slider->blockSignals(true);
    m_slider->setRealValue(5);
    QCOMPARE(m_slider->value(), 699);
    QCOMPARE(m_slider->realValue(), 5.0);
    m_slider->setValue(3);
    m_slider->blockSignals(false);

    QCOMPARE(log.text(), QString());
}

void tst_LogSlider::nothingIsLateAfterBlocking()
{
    m_slider->setRealValue(2);
    m_slider->blockSignals(true);
    m_slider->setRealValue(5);
    m_slider->setValue(3);
    m_slider->blockSignals(false);
    SignalLog log(m_slider.get());

    m_slider->setRealValue(m_slider->realValue());
    m_slider->setRange(0, 2000);
    QCOMPARE(log.text(), QStringLiteral("range 0..2000, value 6"));

    log.clear();
    m_slider->setRealValue(2);
    QCOMPARE(log.text(), QStringLiteral("real 2, value 602"));
}

void tst_LogSlider::setRealValueFromInsideValueChanged()
{
    SignalLog log(m_slider.get());
    connect(m_slider.get(), &QSlider::valueChanged, m_slider.get(),
            [this] { m_slider->setRealValue(2.5); });

    m_slider->setRealValue(5);

    QVERIFY(m_slider->realValue() == 2.5);
    QCOMPARE(m_slider->value(), 398);
    QCOMPARE(log.text(), QStringLiteral("real 5, value 699, real 2.5, value 398"));
}

void tst_LogSlider::setRealValueFromInsideRealValueChanged()
{
    connect(m_slider.get(), &LogSlider::realValueChanged, m_slider.get(),
            [this](double value) { m_slider->setRealValue(std::round(value)); });
    QSignalSpy spy(m_slider.get(), &LogSlider::realValueChanged);

    m_slider->setRealValue(5.2);

    QCOMPARE(m_slider->realValue(), 5.0);
    QCOMPARE(m_slider->value(), 699);
    QCOMPARE(spy.count(), 2);
}

void tst_LogSlider::slotMayDelete_data()
{
    QTest::addColumn<bool>("byRealSignal");
    QTest::addColumn<int>("road");

    for (const bool byRealSignal : {false, true}) {
        const char *const signal = byRealSignal ? "realValueChanged" : "valueChanged";
        QTest::addRow("%s of setRealValue()", signal) << byRealSignal << 0;
        QTest::addRow("%s of setValue()", signal) << byRealSignal << 1;
        QTest::addRow("%s of setRealRange()", signal) << byRealSignal << 2;
        QTest::addRow("%s of setRange()", signal) << byRealSignal << 3;
    }
}

void tst_LogSlider::slotMayDelete()
{
    QFETCH(bool, byRealSignal);
    QFETCH(int, road);
    if (byRealSignal && road == 3)
        return; // the real value stays
    auto *const slider = new LogSlider(Qt::Horizontal);
    const QPointer<LogSlider> alive(slider);
    slider->setRealValue(5);
    if (byRealSignal)
        connect(slider, &LogSlider::realValueChanged, this, [slider] { delete slider; });
    else
        connect(slider, &QSlider::valueChanged, this, [slider] { delete slider; });

    if (road == 0)
        slider->setRealValue(3);
    else if (road == 1)
        slider->setValue(3);
    else if (road == 2)
        slider->setRealRange(1, 2, 1000);
    else
        slider->setRange(0, 10000);

    QVERIFY(!alive);
}

void tst_LogSlider::integerRangeStretchesTheScale()
{
    m_slider->setRealRange(0, 2, 1000);
    m_slider->setRealValue(31.5);

    m_slider->setRange(-50, 150);

    QVERIFY(m_slider->realValue() == 31.5);
    QCOMPARE(m_slider->value(), 100);
    QCOMPARE(m_slider->realValueAt(-50), 1.0);
    QCOMPARE(m_slider->realValueAt(50), 10.0);
    QCOMPARE(m_slider->realValueAt(150), 100.0);
    QCOMPARE(m_slider->positionOf(10.0), 50);
    m_slider->setMaximum(350);
    QCOMPARE(m_slider->value(), 250);
    QAbstractSlider *const base = m_slider.get();
    base->setMinimum(150);
    QCOMPARE(m_slider->value(), 300);
    QVERIFY(m_slider->realValue() == 31.5);
}

void tst_LogSlider::integerRangeIsAnnouncedInOrder()
{
    m_slider->setRealValue(5);
    SignalLog log(m_slider.get());

    m_slider->setRange(0, 2000);
    QCOMPARE(log.text(), QStringLiteral("range 0..2000, value 1398"));
    QCOMPARE(m_slider->sliderPosition(), 1398);
    QVERIFY(m_slider->hasTracking());

    log.clear();
    m_slider->setRange(0, 10);
    QCOMPARE(log.text(), QStringLiteral("range 0..10, value 7"));
    QCOMPARE(m_slider->sliderPosition(), 7);
}

void tst_LogSlider::integerRangeSilentWhereThePositionStays()
{
    SignalLog log(m_slider.get());

    m_slider->setRange(0, 2000);

    QCOMPARE(log.text(), QStringLiteral("range 0..2000"));
}

void tst_LogSlider::integerRangeToOnePoint()
{
    m_slider->setRealValue(5);
    SignalLog log(m_slider.get());

    m_slider->setRange(4, 4);
    QCOMPARE(m_slider->value(), 4);
    QVERIFY(m_slider->realValue() == 5.0);
    QCOMPARE(log.text(), QStringLiteral("range 4..4, value 4"));

    m_slider->setRange(0, 1000);
    QCOMPARE(m_slider->value(), 699);
    QVERIFY(m_slider->realValue() == 5.0);
}

void tst_LogSlider::integerRangeWithBlockedSignals()
{
    m_slider->setRealValue(5);
    SignalLog log(m_slider.get());

    m_slider->blockSignals(true);
    m_slider->setRange(0, 100);
    m_slider->blockSignals(false);

    QCOMPARE(m_slider->value(), 70);
    QCOMPARE(m_slider->sliderPosition(), 70);
    QVERIFY(m_slider->realValue() == 5.0);
    QCOMPARE(log.text(), QString());
}

void tst_LogSlider::integerRangeWithoutTracking()
{
    m_slider->setRealValue(5);
    m_slider->setTracking(false);

    m_slider->setRange(0, 100);

    QCOMPARE(m_slider->value(), 70);
    QCOMPARE(m_slider->sliderPosition(), 70);
    QVERIFY(!m_slider->hasTracking());
}

void tst_LogSlider::hugeIntegerRange()
{
    m_slider->setRange(INT_MIN, INT_MAX);
    m_slider->setRealValue(10);
    QCOMPARE(m_slider->value(), INT_MAX);

    m_slider->setValue(0);

    QVERIFY(std::fabs(m_slider->realValue() - std::sqrt(10.0)) < 1e-8);
}

void tst_LogSlider::keysAreQtsOwn_data()
{
    QTest::addColumn<bool>("rightToLeft");

    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_LogSlider::keysAreQtsOwn()
{
    QFETCH(bool, rightToLeft);
    QSlider plain(Qt::Horizontal);
    plain.setRange(0, 1000);
    for (QSlider *slider : {static_cast<QSlider *>(m_slider.get()), &plain}) {
        slider->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        slider->setValue(500);
        slider->setSingleStep(2);
        slider->setPageStep(20);
    }
    QSignalSpy spy(m_slider.get(), &QSlider::valueChanged);
    QSignalSpy realSpy(m_slider.get(), &LogSlider::realValueChanged);

    const Qt::Key keys[] = {Qt::Key_Right,    Qt::Key_Up,   Qt::Key_Left, Qt::Key_Right,
                            Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
    int presses = 0;
    for (const Qt::Key key : keys) {
        QTest::keyClick(m_slider.get(), key);
        QTest::keyClick(&plain, key);
        QCOMPARE(m_slider->value(), plain.value());
        QVERIFY(m_slider->realValue() == m_slider->realValueAt(plain.value()));
        QCOMPARE(spy.count(), ++presses);
        QCOMPARE(realSpy.count(), presses);
    }
    m_slider->setValue(500);
    QTest::keyClick(m_slider.get(), Qt::Key_Right);
    QCOMPARE(m_slider->value(), rightToLeft ? 498 : 502);
}

void tst_LogSlider::grooveAndWheelAreQtsOwn()
{
    Opened<QSlider> plain(Qt::Horizontal);
    plain.setRange(0, 1000);
    plain.resize(m_slider->size());

    for (int click = 0; click < 3; ++click) {
        QTest::mouseClick(m_slider.get(), Qt::LeftButton, {}, QPoint(250, 15));
        QTest::mouseClick(&plain, Qt::LeftButton, {}, QPoint(250, 15));
        QVERIFY(plain.value() > 0);
        QCOMPARE(m_slider->value(), plain.value());
        QVERIFY(m_slider->realValue() == m_slider->realValueAt(plain.value()));
    }
    const int before = plain.value();
    QVERIFY(rollWheel(m_slider.get()));
    QVERIFY(rollWheel(&plain));
    QVERIFY(plain.value() != before);
    QCOMPARE(m_slider->value(), plain.value());
    QVERIFY(m_slider->realValue() == m_slider->realValueAt(plain.value()));
}

void tst_LogSlider::wheelNeedsFocus()
{
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    auto *const slider = new LogSlider(Qt::Horizontal);
    auto *const other = new QSlider(Qt::Horizontal);
    layout->addWidget(slider);
    layout->addWidget(other);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other->setFocus();
    QVERIFY(!slider->hasFocus());

    QVERIFY(rollWheel(slider));
    QVERIFY(slider->value() > 0);

    slider->setWheelNeedsFocus(true);
    slider->setValue(0);
    QVERIFY(!rollWheel(slider));
    QCOMPARE(slider->value(), 0);

    slider->setFocus();
    QVERIFY(slider->hasFocus());
    QVERIFY(rollWheel(slider));
    QVERIFY(slider->value() > 0);
}

void tst_LogSlider::drag()
{
    m_slider->setRealValue(5);
    SignalLog log(m_slider.get());
    const QPoint start = m_slider->handle();

    press(m_slider.get(), start);
    QCOMPARE(log.text(), QStringLiteral("pressed"));
    QVERIFY(m_slider->realValue() == 5.0);
    log.clear();
    move(m_slider.get(), QPoint(1000, start.y()));
    QCOMPARE(log.text(), QStringLiteral("moved 1000, real 10, value 1000"));
    log.clear();
    move(m_slider.get(), QPoint(-1000, start.y()));
    QCOMPARE(log.text(), QStringLiteral("moved 0, real 1, value 0"));
    log.clear();
    move(m_slider.get(), start);
    QVERIFY(m_slider->realValue() == m_slider->realValueAt(m_slider->value()));
    log.clear();
    release(m_slider.get(), start);
    QCOMPARE(log.text(), QStringLiteral("released"));
}

void tst_LogSlider::dragWithoutTracking()
{
    m_slider->setRealValue(5);
    m_slider->setTracking(false);
    const QPoint start = m_slider->handle();
    SignalLog log(m_slider.get());

    press(m_slider.get(), start);
    move(m_slider.get(), QPoint(1000, start.y()));
    QVERIFY(m_slider->realValue() == 5.0);
    QCOMPARE(m_slider->value(), 699);
    release(m_slider.get(), QPoint(1000, start.y()));

    QCOMPARE(m_slider->realValue(), 10.0);
    QCOMPARE(log.text(), QStringLiteral("pressed, moved 1000, released, real 10, value 1000"));
}

void tst_LogSlider::dragRightToLeft()
{
    m_slider->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(m_slider->handle().x() > 200);
    const QPoint start = m_slider->handle();

    press(m_slider.get(), start);
    move(m_slider.get(), QPoint(-1000, start.y()));
    release(m_slider.get(), QPoint(-1000, start.y()));

    QCOMPARE(m_slider->realValue(), 10.0);
    QVERIFY(m_slider->handle().x() < 100);
}

void tst_LogSlider::dragVertically()
{
    OpenedLogSlider slider(Qt::Vertical);
    slider.resize(30, 300);
    const QPoint start = slider.handle();
    QVERIFY(start.y() > 200);

    press(&slider, start);
    move(&slider, QPoint(start.x(), -1000));
    release(&slider, QPoint(start.x(), -1000));

    QCOMPARE(slider.realValue(), 10.0);
}

void tst_LogSlider::escapeRestoresTheExactValue()
{
    m_slider->setRealValue(5);
    const QPoint start = m_slider->handle();
    press(m_slider.get(), start);
    move(m_slider.get(), QPoint(1000, start.y()));
    SignalLog log(m_slider.get());

    QTest::keyClick(m_slider.get(), Qt::Key_Escape);

    QVERIFY(m_slider->realValue() == 5.0);
    QCOMPARE(m_slider->value(), 699);
    QVERIFY(!m_slider->isSliderDown());
    QCOMPARE(log.text(), QStringLiteral("moved 699, real 5, value 699, released"));
}

void tst_LogSlider::escapeAfterADoubleClick()
{
    m_slider->setRealValue(5);
    const QPoint start = m_slider->handle();
    press(m_slider.get(), start);
    release(m_slider.get(), start);
    sendMouse(m_slider.get(), QEvent::MouseButtonDblClick, start, Qt::LeftButton, Qt::LeftButton);
    move(m_slider.get(), QPoint(1000, start.y()));
    QCOMPARE(m_slider->realValue(), 10.0);

    QTest::keyClick(m_slider.get(), Qt::Key_Escape);

    QVERIFY(m_slider->realValue() == 5.0);
    QVERIFY(!m_slider->isSliderDown());
}

void tst_LogSlider::escapeWithoutTracking()
{
    m_slider->setRealValue(5);
    m_slider->setTracking(false);
    const QPoint start = m_slider->handle();
    SignalLog log(m_slider.get());
    press(m_slider.get(), start);
    move(m_slider.get(), QPoint(1000, start.y()));

    QTest::keyClick(m_slider.get(), Qt::Key_Escape);
    release(m_slider.get(), QPoint(1000, start.y()));

    QVERIFY(m_slider->realValue() == 5.0);
    QCOMPARE(m_slider->value(), 699);
    QCOMPARE(m_slider->sliderPosition(), 699);
    QVERIFY(!m_slider->hasTracking());
    QCOMPARE(log.text(), QStringLiteral("pressed, moved 1000, moved 699, released"));
}

void tst_LogSlider::escapeSilentWhereNothingMoved()
{
    m_slider->setRealValue(5);
    press(m_slider.get(), m_slider->handle());
    SignalLog log(m_slider.get());

    QTest::keyClick(m_slider.get(), Qt::Key_Escape);

    QCOMPARE(log.text(), QStringLiteral("released"));
}

void tst_LogSlider::pointerIsIgnoredAfterEscape()
{
    m_slider->setRealValue(5);
    const QPoint start = m_slider->handle();
    SignalLog log(m_slider.get());
    press(m_slider.get(), start);
    move(m_slider.get(), QPoint(1000, start.y()));
    QTest::keyClick(m_slider.get(), Qt::Key_Escape);
    QCOMPARE(log.count(QStringLiteral("pressed")), 1);
    QCOMPARE(log.count(QStringLiteral("released")), 1);
    log.clear();

    move(m_slider.get(), QPoint(10, start.y()));
    move(m_slider.get(), QPoint(290, start.y()));
    release(m_slider.get(), QPoint(290, start.y()));
    QCOMPARE(log.text(), QString());
    QVERIFY(m_slider->realValue() == 5.0);

    press(m_slider.get(), start); // the next drag is as good as any
    move(m_slider.get(), QPoint(1000, start.y()));
    release(m_slider.get(), QPoint(1000, start.y()));
    QCOMPARE(log.text(), QStringLiteral("pressed, moved 1000, real 10, value 1000, released"));
}

void tst_LogSlider::freshPressAfterALostRelease()
{
    m_slider->setRealValue(5);
    const QPoint start = m_slider->handle();
    press(m_slider.get(), start);
    QTest::keyClick(m_slider.get(), Qt::Key_Escape);

    press(m_slider.get(), start);
    move(m_slider.get(), QPoint(1000, start.y()));

    QCOMPARE(m_slider->realValue(), 10.0);
}

void tst_LogSlider::secondButtonDoesNotEndTheWait()
{
    m_slider->setRealValue(5);
    const QPoint start = m_slider->handle();
    press(m_slider.get(), start);
    QTest::keyClick(m_slider.get(), Qt::Key_Escape);

    sendMouse(m_slider.get(), QEvent::MouseButtonPress, start, Qt::RightButton,
              Qt::LeftButton | Qt::RightButton);
    sendMouse(m_slider.get(), QEvent::MouseButtonRelease, start, Qt::RightButton, Qt::LeftButton);
    move(m_slider.get(), QPoint(1000, start.y()));

    QVERIFY(m_slider->realValue() == 5.0);
}

void tst_LogSlider::escapeKeepsTheDialogOpen()
{
    QDialog dialog;
    auto *const layout = new QVBoxLayout(&dialog);
    auto *const slider = new OpenedLogSlider(Qt::Horizontal);
    layout->addWidget(slider);
    QShortcut shortcut(QKeySequence(Qt::Key_Escape), &dialog);
    QSignalSpy shortcutSpy(&shortcut, &QShortcut::activated);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    slider->setFocus();
    slider->setRealValue(5);
    const QPoint start = slider->handle();
    press(slider, start);
    move(slider, QPoint(1000, start.y()));
    QCOMPARE(slider->realValue(), 10.0);

    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);

    QVERIFY(slider->realValue() == 5.0);
    QVERIFY(dialog.isVisible());
    QVERIFY(shortcutSpy.isEmpty());
    release(slider, start);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape); // without a drag it is the window's
    QCOMPARE(shortcutSpy.count(), 1);
}

void tst_LogSlider::escapeBesideADragGoesToTheDialog()
{
    QDialog dialog;
    auto *const slider = new OpenedLogSlider(Qt::Horizontal, &dialog);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    slider->setFocus();
    press(slider, slider->handle());
    release(slider, slider->handle());

    QTest::keyClick(slider, Qt::Key_Escape);

    QVERIFY(!dialog.isVisible());
}

void tst_LogSlider::escapeGoesOnWhileHeldByProgram()
{
    QDialog dialog;
    auto *const slider = new OpenedLogSlider(Qt::Horizontal, &dialog);
    dialog.show();
    slider->setRealValue(5);
    slider->setSliderDown(true); // nobody holds it with the pointer

    QTest::keyClick(slider, Qt::Key_Escape);

    QVERIFY(!dialog.isVisible());
    QVERIFY(slider->isSliderDown());
    QVERIFY(slider->realValue() == 5.0);
}

void tst_LogSlider::otherKeysWhileDragging()
{
    m_slider->setRealValue(5);
    press(m_slider.get(), m_slider->handle());

    QTest::keyClick(m_slider.get(), Qt::Key_Right);

    QCOMPARE(m_slider->value(), 700);
    QVERIFY(m_slider->isSliderDown());
}

void tst_LogSlider::slotMayDeleteOnEscape()
{
    auto *const slider = new OpenedLogSlider(Qt::Horizontal);
    const QPointer<LogSlider> alive(slider);
    slider->resize(300, 30);
    slider->setRealValue(5);
    const QPoint start = slider->handle();
    press(slider, start);
    move(slider, QPoint(1000, start.y()));
    connect(slider, &QSlider::valueChanged, this, [slider] { delete slider; });

    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &escape);

    QVERIFY(!alive);
    QVERIFY(escape.isAccepted());
}

void tst_LogSlider::setRealValueDuringADragWithoutTracking()
{
    m_slider->setRealValue(5);
    m_slider->setTracking(false);
    const QPoint start = m_slider->handle();
    press(m_slider.get(), start);
    move(m_slider.get(), QPoint(1000, start.y()));
    SignalLog log(m_slider.get());

    m_slider->setRealValue(5); // a host that repeats what it knows

    QCOMPARE(m_slider->sliderPosition(), 699);
    QCOMPARE(log.text(), QStringLiteral("moved 699"));
}

void tst_LogSlider::accessibleInterface()
{
    m_slider->setRealRange(-1, 3, 1000);
    m_slider->setRealValue(12.5);
    m_slider->setAccessibleName(QStringLiteral("Exposure"));

    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(m_slider.get());

    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Slider);
    QCOMPARE(accessible->object(), m_slider.get());
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Exposure"));
    QVERIFY(!accessible->textInterface());
    QVERIFY(accessible->valueInterface());
    QCOMPARE(accessible->valueInterface()->currentValue().toDouble(), 12.5);
    QCOMPARE(accessible->valueInterface()->minimumValue().toDouble(), 0.1);
    QCOMPARE(accessible->valueInterface()->maximumValue().toDouble(), 1000.0);
}

void tst_LogSlider::accessibleStep()
{
    m_slider->setRealRange(0, 1, 10);
    const auto step = [this] {
        return valueInterfaceOf(m_slider.get())->minimumStepSize().toDouble();
    };

    m_slider->setRealValue(5);
    QCOMPARE(step(), m_slider->realValueAt(8) - m_slider->realValueAt(7));
    m_slider->setValue(0);
    QCOMPARE(step(), m_slider->realValueAt(1) - 1);
    m_slider->setValue(10); // no next one: the last step
    QCOMPARE(step(), 10 - m_slider->realValueAt(9));
    m_slider->setRealRange(2, 2, 10);
    QCOMPARE(step(), 0.0);
}

void tst_LogSlider::accessibleEdit()
{
    SignalLog log(m_slider.get());

    valueInterfaceOf(m_slider.get())->setCurrentValue(5.0);
    QCOMPARE(log.text(), QStringLiteral("real 5, value 699"));

    valueInterfaceOf(m_slider.get())->setCurrentValue(QStringLiteral("2.5"));
    QCOMPARE(m_slider->realValue(), 2.5);

    log.clear();
    valueInterfaceOf(m_slider.get())->setCurrentValue(QStringLiteral("half"));
    valueInterfaceOf(m_slider.get())->setCurrentValue(QVariant());
    QCOMPARE(m_slider->realValue(), 2.5);
    QCOMPARE(log.text(), QString());
}

void tst_LogSlider::accessibleEditOfADisabledSlider()
{
    m_slider->setEnabled(false);

    valueInterfaceOf(m_slider.get())->setCurrentValue(5.0);

    QCOMPARE(m_slider->realValue(), 1.0);
}

void tst_LogSlider::accessibleSubclass()
{
    class Derived : public LogSlider
    {
    public:
        using LogSlider::LogSlider;
    };
    Derived slider(Qt::Horizontal);
    QSlider plain;
    plain.setValue(7);
    slider.setRealValue(2.5);

    QCOMPARE(valueInterfaceOf(&slider)->currentValue().toDouble(), 2.5);
    QCOMPARE(valueInterfaceOf(&plain)->currentValue().toInt(), 7);
}

QTEST_MAIN(tst_LogSlider)
#include "tst_LogSlider.moc"
