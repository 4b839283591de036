#include "core/Slider.h"

#include "support/PaintCounter.h"
#include "support/RealSliders.h"

#include <QDialog>
#include <QImage>
#include <QPointer>
#include <QProxyStyle>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

using Tessark::UI::Slider;
using OpenedSlider = Opened<Slider>;
using SliderLog = RealSliderLog<Slider>;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();

/// Remembers in which state a slider's handle was painted last.
class HandleStates : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        if (control == CC_Slider && (option->subControls & SC_SliderHandle)) {
            QStringList states;
            if (option->activeSubControls & SC_SliderHandle)
                states << QStringLiteral("active");
            if (option->state & State_Sunken)
                states << QStringLiteral("sunken");
            last = states.join(QLatin1Char(' '));
        }
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    mutable QString last;
};

/// What the widget paints, over white.
QImage pictureOf(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

bool isNear(const QColor &left, const QColor &right)
{
    constexpr int kTolerance = 2;
    return std::abs(left.red() - right.red()) <= kTolerance
           && std::abs(left.green() - right.green()) <= kTolerance
           && std::abs(left.blue() - right.blue()) <= kTolerance;
}

QColor mixed(const QColor &first, const QColor &last, double fraction)
{
    const auto between = [fraction](int from, int to) {
        return qRound(from + (to - from) * fraction);
    };
    return QColor(between(first.red(), last.red()), between(first.green(), last.green()),
                  between(first.blue(), last.blue()));
}

} // namespace

class tst_Slider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fresh();
    void isASlider();
    void propertiesAreInTheMetaObject();

    void setMaximumIsReal_data();
    void setMaximumIsReal();
    void setMinimumPullsTheMaximum();
    void setRealRange_data();
    void setRealRange();
    void integerCallsThroughTheBase();
    void equalEndsAreOnePosition();
    void hugeRanges();
    void newRangeClampsTheValue();
    void rangeIsAnnouncedBeforeValue();
    void rangeSlotMayDelete();
    void setResolution_data();
    void setResolution();
    void setResolutionLeavesStepsAndValue();
    void resolutionFollowsIntegerRanges();

    void positionsAndValues_data();
    void positionsAndValues();
    void positionOfBadNumbers();
    void keepsTheExactValue();
    void otherRoadsGiveThePositionsValue();
    void setRealValueClamps_data();
    void setRealValueClamps();
    void ignoresNaN();
    void signalCounts();
    void blockedSignals();
    void slotMayDelete_data();
    void slotMayDelete();

    void keysStep();
    void wheelNeedsFocus();

    void pressOnTheGrooveMovesAndDrags_data();
    void pressOnTheGrooveMovesAndDrags();
    void pressOnTheHandleKeepsItsPlace();
    void dragGoesOnOutside();
    void otherButtonsAreIgnored();
    void onePositionIgnoresThePointer();
    void dragWithoutTracking();
    void escapeTakesTheDragBack();
    void escapeKeepsTheDialogOpen();
    void hidingEndsTheDrag();
    void disablingEndsTheDrag();
    void pressAfterALostRelease();
    void slotMayEndTheDragAtPress();
    void slotMayDeleteWhileDragging_data();
    void slotMayDeleteWhileDragging();

    void gradientColours_data();
    void gradientColours();
    void gradientIsPaddedAtItsEnds();
    void handleCoversTheBar();
    void withoutGradientAsAnyOther();
    void gradientVisibleByStyleSheet();
    void disabledBarFades();
    void focusMarkByKeyOnly();
    void styleSheetBackgroundStaysBehind();
    void ticksShowBesideTheBar();
    void pressedAndHoveredHandle();
    void repaintsOnlyWhatChanged();

    void accessibleInterface();

private:
    std::unique_ptr<OpenedSlider> m_slider;
};

void tst_Slider::init()
{
    m_slider = std::make_unique<OpenedSlider>(Qt::Horizontal);
    m_slider->resize(300, 30);
}

void tst_Slider::fresh()
{
    const Slider slider(Qt::Vertical);

    QCOMPARE(slider.orientation(), Qt::Vertical);
    QCOMPARE(slider.realMinimum(), 0.0);
    QCOMPARE(slider.realMaximum(), 1.0);
    QCOMPARE(slider.realValue(), 0.0);
    QCOMPARE(slider.minimum(), 0);
    QCOMPARE(slider.maximum(), 1000);
    QCOMPARE(slider.resolution(), 1000);
    QCOMPARE(slider.singleStep(), 10);
    QCOMPARE(slider.pageStep(), 100);
    QCOMPARE(slider.focusPolicy(), QSlider(Qt::Vertical).focusPolicy());
    QVERIFY(slider.isGradientVisible());
    QVERIFY(!slider.wheelNeedsFocus());
    QVERIFY(!slider.parent());
}

void tst_Slider::isASlider()
{
    QWidget parent;
    auto *const slider = new Slider(Qt::Horizontal, &parent);

    QCOMPARE(slider->parentWidget(), &parent);
    QVERIFY(qobject_cast<QSlider *>(static_cast<QObject *>(slider)));
    QCOMPARE(QByteArray(slider->metaObject()->className()), QByteArray("Tessark::UI::Slider"));
}

void tst_Slider::propertiesAreInTheMetaObject()
{
    QVERIFY(m_slider->setProperty("realValue", 0.25));
    QVERIFY(m_slider->setProperty("wheelNeedsFocus", true));
    QVERIFY(m_slider->setProperty("gradientVisible", false));
    QVERIFY(m_slider->setProperty("resolution", 100));

    QCOMPARE(m_slider->realValue(), 0.25);
    QVERIFY(m_slider->wheelNeedsFocus());
    QVERIFY(!m_slider->isGradientVisible());
    QCOMPARE(m_slider->resolution(), 100);
    QCOMPARE(m_slider->property("realMinimum").toDouble(), 0.0);
    QCOMPARE(m_slider->property("realMaximum").toDouble(), 1.0);
    QCOMPARE(m_slider->property("maximum").toInt(), 100);
    QVERIFY(QMetaObject::invokeMethod(m_slider.get(), "setRealValue", Q_ARG(double, 0.5)));
    QCOMPARE(m_slider->realValue(), 0.5);
}

void tst_Slider::setMaximumIsReal_data()
{
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("expectedMinimum");
    QTest::addColumn<double>("expectedMaximum");

    QTest::newRow("one") << 1.0 << 0.0 << 1.0;
    QTest::newRow("a byte") << 255.0 << 0.0 << 255.0;
    QTest::newRow("below the minimum") << -1.0 << -1.0 << -1.0;
    QTest::newRow("NaN is ignored") << kNaN << 0.0 << 1.0;
    QTest::newRow("infinity is ignored") << kInfinity << 0.0 << 1.0;
    QTest::newRow("minus infinity is ignored") << -kInfinity << 0.0 << 1.0;
}

void tst_Slider::setMaximumIsReal()
{
    QFETCH(double, maximum);

    m_slider->setMaximum(maximum);

    QTEST(m_slider->realMinimum(), "expectedMinimum");
    QTEST(m_slider->realMaximum(), "expectedMaximum");
    const bool isPoint = m_slider->realMinimum() == m_slider->realMaximum();
    QCOMPARE(m_slider->QAbstractSlider::maximum(), isPoint ? 0 : 1000);
}

void tst_Slider::setMinimumPullsTheMaximum()
{
    m_slider->setMinimum(-2);
    QCOMPARE(m_slider->realMinimum(), -2.0);
    QCOMPARE(m_slider->realMaximum(), 1.0);

    m_slider->setMinimum(3);
    QCOMPARE(m_slider->realMinimum(), 3.0);
    QCOMPARE(m_slider->realMaximum(), 3.0);

    m_slider->setMinimum(kNaN);
    m_slider->setMinimum(-kInfinity);
    QCOMPARE(m_slider->realMinimum(), 3.0);
}

void tst_Slider::setRealRange_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("expectedMinimum");
    QTest::addColumn<double>("expectedMaximum");

    QTest::newRow("plain") << -1.5 << 2.5 << -1.5 << 2.5;
    QTest::newRow("reversed") << 2.5 << -1.5 << -1.5 << 2.5;
    QTest::newRow("no minimum") << kNaN << 5.0 << 0.0 << 5.0;
    QTest::newRow("no maximum") << -5.0 << kInfinity << -5.0 << 1.0;
    QTest::newRow("neither") << -kInfinity << kNaN << 0.0 << 1.0;
}

void tst_Slider::setRealRange()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);

    m_slider->setRealRange(minimum, maximum);

    QTEST(m_slider->realMinimum(), "expectedMinimum");
    QTEST(m_slider->realMaximum(), "expectedMaximum");
    QCOMPARE(m_slider->minimum(), 0);
    QCOMPARE(m_slider->maximum(), 1000);
}

void tst_Slider::integerCallsThroughTheBase()
{
    m_slider->setRealValue(0.3);
    QAbstractSlider *const base = m_slider.get();

    base->setMaximum(10);

    QCOMPARE(m_slider->realMaximum(), 1.0);
    QVERIFY(m_slider->realValue() == 0.3);
    QCOMPARE(m_slider->value(), 3);
    base->setValue(7);
    QCOMPARE(m_slider->realValue(), 0.7);
}

void tst_Slider::equalEndsAreOnePosition()
{
    m_slider->setRealRange(4, 4);
    QSignalSpy spy(m_slider.get(), &QSlider::valueChanged);

    m_slider->setRealValue(5);
    m_slider->setValue(12);
    QTest::keyClick(m_slider.get(), Qt::Key_Right);

    QCOMPARE(m_slider->maximum(), 0);
    QCOMPARE(m_slider->realValue(), 4.0);
    QCOMPARE(m_slider->positionOf(7.0), 0);
    QCOMPARE(m_slider->resolution(), 1000);
    QVERIFY(spy.isEmpty());
    m_slider->setMaximum(5);
    QCOMPARE(m_slider->QAbstractSlider::maximum(), 1000);
}

void tst_Slider::hugeRanges()
{
    m_slider->setRealRange(-kLargest, kLargest);
    QCOMPARE(m_slider->maximum(), 1000);
    QCOMPARE(m_slider->positionOf(0), 500);
    m_slider->setRealValue(kInfinity);
    QVERIFY(m_slider->realValue() == kLargest);

    QAbstractSlider *const base = m_slider.get();
    base->setRange(INT_MIN, INT_MAX);
    QCOMPARE(m_slider->value(), INT_MAX);
    QCOMPARE(m_slider->resolution(), INT_MAX);
    m_slider->setRealRange(0, 1);
    QCOMPARE(m_slider->resolution(), 1000000);
}

void tst_Slider::newRangeClampsTheValue()
{
    m_slider->setRealValue(0.5);

    m_slider->setRealRange(2, 3);
    QCOMPARE(m_slider->realValue(), 2.0);
    QCOMPARE(m_slider->value(), 0);

    m_slider->setRealRange(-3, -2);
    QCOMPARE(m_slider->realValue(), -2.0);
    QCOMPARE(m_slider->value(), 1000);
}

void tst_Slider::rangeIsAnnouncedBeforeValue()
{
    m_slider->setRealValue(0.5);
    SliderLog log(m_slider.get());

    m_slider->setRealRange(0, 2);
    QCOMPARE(log.text(), QStringLiteral("value 250"));

    log.clear();
    m_slider->setRealRange(1, 1);
    QCOMPARE(log.text(), QStringLiteral("range 0..0, real 1, value 0"));

    log.clear();
    m_slider->setRealRange(1, 1);
    QCOMPARE(log.text(), QString());

    m_slider->blockSignals(true);
    m_slider->setRealRange(5, 6);
    m_slider->blockSignals(false);
    QCOMPARE(log.text(), QString());
    QCOMPARE(m_slider->realValue(), 5.0);
}

void tst_Slider::rangeSlotMayDelete()
{
    auto *const slider = new Slider(Qt::Horizontal);
    const QPointer<Slider> alive(slider);
    connect(slider, &QSlider::rangeChanged, this, [slider] { delete slider; });

    slider->setMaximum(-1);

    QVERIFY(!alive);
}

void tst_Slider::setResolution_data()
{
    QTest::addColumn<int>("positions");
    QTest::addColumn<int>("expected");

    QTest::newRow("plain") << 255 << 255;
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("negative") << INT_MIN << 1;
    QTest::newRow("most") << 1000000 << 1000000;
    QTest::newRow("too many") << INT_MAX << 1000000;
}

void tst_Slider::setResolution()
{
    QFETCH(int, positions);

    m_slider->setResolution(positions);

    QTEST(m_slider->resolution(), "expected");
    QTEST(m_slider->maximum(), "expected");
    QCOMPARE(m_slider->minimum(), 0);
}

void tst_Slider::setResolutionLeavesStepsAndValue()
{
    m_slider->setRealValue(1.0 / 3);
    SliderLog log(m_slider.get());

    m_slider->setResolution(3000);

    QVERIFY(m_slider->realValue() == 1.0 / 3);
    QCOMPARE(m_slider->singleStep(), 10);
    QCOMPARE(m_slider->pageStep(), 100);
    QCOMPARE(log.text(), QStringLiteral("range 0..3000, value 1000"));

    m_slider->setRealRange(7, 7);
    m_slider->setResolution(20);
    QCOMPARE(m_slider->maximum(), 0);
    m_slider->setRealRange(7, 8);
    QCOMPARE(m_slider->maximum(), 20);
}

void tst_Slider::resolutionFollowsIntegerRanges()
{
    QAbstractSlider *const base = m_slider.get();

    base->setRange(-50, 150);

    QCOMPARE(m_slider->resolution(), 200);
    QCOMPARE(m_slider->realValueAt(-50), 0.0);
    QCOMPARE(m_slider->realValueAt(50), 0.5);
    QCOMPARE(m_slider->realValueAt(150), 1.0);
    m_slider->setRealRange(0, 2); // the same number of positions, from 0 on
    QCOMPARE(m_slider->minimum(), 0);
    QCOMPARE(m_slider->maximum(), 200);
}

void tst_Slider::positionsAndValues_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("resolution");

    QTest::newRow("fraction") << 0.0 << 1.0 << 1000;
    QTest::newRow("bytes") << 0.0 << 255.0 << 255;
    QTest::newRow("across zero") << -1.0 << 3.0 << 777;
    QTest::newRow("tiny") << 1e-300 << 2e-300 << 1000;
    QTest::newRow("huge") << -kLargest << kLargest << 1000;
}

void tst_Slider::positionsAndValues()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, resolution);
    m_slider->setResolution(resolution);
    m_slider->setRealRange(minimum, maximum);

    for (int position = 0; position <= resolution; ++position) {
        const double value = m_slider->realValueAt(position);
        const double part = double(position) / resolution;
        const double expected = minimum * (1 - part) + maximum * part;
        QVERIFY(std::abs(value - expected) <= 1e-9 * (maximum / 2 - minimum / 2));
        QCOMPARE(m_slider->positionOf(value), position);
    }
    QVERIFY(m_slider->realValueAt(0) == minimum);
    QVERIFY(m_slider->realValueAt(resolution) == maximum);
    QVERIFY(m_slider->realValueAt(INT_MIN) == minimum);
    QVERIFY(m_slider->realValueAt(INT_MAX) == maximum);
}

void tst_Slider::positionOfBadNumbers()
{
    m_slider->setRealValue(0.25);

    QCOMPARE(m_slider->positionOf(kNaN), 250);
    QCOMPARE(m_slider->positionOf(-kInfinity), 0);
    QCOMPARE(m_slider->positionOf(kInfinity), 1000);
    QCOMPARE(m_slider->positionOf(0.2505), 251); // halves away from the minimum
}

void tst_Slider::keepsTheExactValue()
{
    m_slider->setRealRange(-3, 5);
    QRandomGenerator *const random = QRandomGenerator::global();

    for (int i = 0; i < 100000; ++i) {
        const double value = 8 * random->generateDouble() - 3;
        m_slider->setRealValue(value);
        QVERIFY(m_slider->realValue() == value);
        const double shown = m_slider->realValueAt(m_slider->value());
        QVERIFY(std::abs(shown - value) <= 8.0 / 2000 * (1 + 1e-9));
    }
}

void tst_Slider::otherRoadsGiveThePositionsValue()
{
    m_slider->setRealValue(0.12345);
    m_slider->setValue(m_slider->value());
    QVERIFY(m_slider->realValue() == 0.12345);

    m_slider->setValue(500);
    QVERIFY(m_slider->realValue() == 0.5);

    m_slider->setRealValue(0.12345);
    m_slider->blockSignals(true);
    m_slider->triggerAction(QAbstractSlider::SliderToMaximum);
    QVERIFY(m_slider->realValue() == 1.0);
}

void tst_Slider::setRealValueClamps_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");

    QTest::newRow("below") << -0.001 << 0.0;
    QTest::newRow("minus infinity") << -kInfinity << 0.0;
    QTest::newRow("above") << 1.001 << 1.0;
    QTest::newRow("largest") << kLargest << 1.0;
    QTest::newRow("infinity") << kInfinity << 1.0;
}

void tst_Slider::setRealValueClamps()
{
    QFETCH(double, value);
    m_slider->setRealValue(0.5);

    m_slider->setRealValue(value);

    QTEST(m_slider->realValue(), "expected");
}

void tst_Slider::ignoresNaN()
{
    m_slider->setRealValue(0.5);
    SliderLog log(m_slider.get());

    m_slider->setRealValue(kNaN);

    QCOMPARE(m_slider->realValue(), 0.5);
    QCOMPARE(log.text(), QString());
}

void tst_Slider::signalCounts()
{
    SliderLog log(m_slider.get());

    m_slider->setRealValue(0.5);
    QCOMPARE(log.text(), QStringLiteral("real 0.5, value 500"));
    log.clear();
    m_slider->setRealValue(0.5);
    QCOMPARE(log.text(), QString());
    m_slider->setRealValue(0.5001);
    QCOMPARE(log.text(), QStringLiteral("real 0.5001"));
    log.clear();
    m_slider->setValue(750);
    QCOMPARE(log.text(), QStringLiteral("real 0.75, value 750"));
}

void tst_Slider::blockedSignals()
{
    SliderLog log(m_slider.get());

    m_slider->blockSignals(true);
    m_slider->setRealValue(0.5);
    m_slider->setValue(700);
    m_slider->blockSignals(false);
    m_slider->setRealValue(0.7);

    QCOMPARE(m_slider->realValue(), 0.7);
    QCOMPARE(log.text(), QString());
}

void tst_Slider::slotMayDelete_data()
{
    QTest::addColumn<bool>("byRealSignal");
    QTest::addColumn<bool>("byInteger");

    QTest::newRow("realValueChanged, setRealValue") << true << false;
    QTest::newRow("realValueChanged, setValue") << true << true;
    QTest::newRow("valueChanged, setRealValue") << false << false;
    QTest::newRow("valueChanged, setValue") << false << true;
}

void tst_Slider::slotMayDelete()
{
    QFETCH(bool, byRealSignal);
    QFETCH(bool, byInteger);
    auto *const slider = new Slider(Qt::Horizontal);
    const QPointer<Slider> alive(slider);
    if (byRealSignal)
        connect(slider, &Slider::realValueChanged, this, [slider] { delete slider; });
    else
        connect(slider, &QSlider::valueChanged, this, [slider] { delete slider; });

    if (byInteger)
        slider->setValue(3);
    else
        slider->setRealValue(0.3);

    QVERIFY(!alive);
}

void tst_Slider::keysStep()
{
    m_slider->setRealValue(0.5);

    QTest::keyClick(m_slider.get(), Qt::Key_Right);
    QCOMPARE(m_slider->realValue(), 0.51);
    QTest::keyClick(m_slider.get(), Qt::Key_PageUp);
    QCOMPARE(m_slider->realValue(), 0.61);
    QTest::keyClick(m_slider.get(), Qt::Key_End);
    QCOMPARE(m_slider->realValue(), 1.0);
    QTest::keyClick(m_slider.get(), Qt::Key_Home);
    QCOMPARE(m_slider->realValue(), 0.0);
    m_slider->setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(m_slider.get(), Qt::Key_Left);
    QCOMPARE(m_slider->realValue(), 0.01);
}

void tst_Slider::wheelNeedsFocus()
{
    QVERIFY(rollWheel(m_slider.get()));
    QVERIFY(m_slider->value() > 0);

    m_slider->setWheelNeedsFocus(true);
    m_slider->setValue(0);
    QVERIFY(!rollWheel(m_slider.get()));
    QCOMPARE(m_slider->value(), 0);

    m_slider->show();
    m_slider->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_slider.get()));
    m_slider->setFocus();
    QVERIFY(rollWheel(m_slider.get()));
    QVERIFY(m_slider->value() > 0);
}

void tst_Slider::pressOnTheGrooveMovesAndDrags_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<bool>("inverted");

    QTest::newRow("horizontal") << Qt::Horizontal << false << false;
    QTest::newRow("right to left") << Qt::Horizontal << true << false;
    QTest::newRow("inverted") << Qt::Horizontal << false << true;
    QTest::newRow("vertical") << Qt::Vertical << false << false;
    QTest::newRow("vertical, inverted") << Qt::Vertical << false << true;
}

void tst_Slider::pressOnTheGrooveMovesAndDrags()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, rightToLeft);
    QFETCH(bool, inverted);
    OpenedSlider slider(orientation);
    slider.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    slider.setInvertedAppearance(inverted);
    const bool horizontal = orientation == Qt::Horizontal;
    slider.resize(horizontal ? QSize(300, 30) : QSize(30, 300));
    const auto point = [&](int along) {
        return horizontal ? QPoint(along, 15) : QPoint(15, along);
    };
    const bool mirrored = horizontal ? rightToLeft != inverted : !inverted;
    SliderLog log(&slider);

    press(&slider, point(200));

    QCOMPARE(log.size(), 4);
    QCOMPARE(log.at(0), QStringLiteral("pressed"));
    QVERIFY(log.at(1).startsWith(QStringLiteral("moved")));
    QVERIFY(log.at(2).startsWith(QStringLiteral("real")));
    QVERIFY(log.at(3).startsWith(QStringLiteral("value")));
    QVERIFY(slider.isSliderDown());
    const double fraction = mirrored ? 100.0 / 300 : 200.0 / 300;
    QVERIFY(std::abs(slider.realValue() - fraction) < 0.03);
    QVERIFY((slider.handle() - point(200)).manhattanLength() <= 2 + 15);
    QVERIFY(std::abs((horizontal ? slider.handle().x() : slider.handle().y()) - 200) <= 1);

    move(&slider, point(120));
    QVERIFY(std::abs((horizontal ? slider.handle().x() : slider.handle().y()) - 120) <= 1);
    log.clear();
    release(&slider, point(120));
    QCOMPARE(log.text(), QStringLiteral("released"));
    QVERIFY(!slider.isSliderDown());
}

void tst_Slider::pressOnTheHandleKeepsItsPlace()
{
    m_slider->setRealValue(0.50037);
    const QPoint offset(4, 2);
    const QPoint start = m_slider->handle() + offset;
    SliderLog log(m_slider.get());

    press(m_slider.get(), start);
    QCOMPARE(log.text(), QStringLiteral("pressed"));
    move(m_slider.get(), start);
    QVERIFY(m_slider->realValue() == 0.50037);
    move(m_slider.get(), start + QPoint(40, 0));
    QVERIFY(std::abs(m_slider->handle().x() + offset.x() - start.x() - 40) <= 1);
    move(m_slider.get(), start);
    release(m_slider.get(), start);

    QCOMPARE(m_slider->value(), 500);
}

void tst_Slider::dragGoesOnOutside()
{
    press(m_slider.get(), QPoint(150, 15));

    move(m_slider.get(), QPoint(5000, -900));
    QCOMPARE(m_slider->realValue(), 1.0);
    move(m_slider.get(), QPoint(-5000, 900));
    QCOMPARE(m_slider->realValue(), 0.0);
    move(m_slider.get(), QPoint(150, 400));
    release(m_slider.get(), QPoint(150, 400));

    QVERIFY(std::abs(m_slider->realValue() - 0.5) < 0.01);
}

void tst_Slider::otherButtonsAreIgnored()
{
    QWidget window;
    m_slider->setParent(&window);
    SliderLog log(m_slider.get());
    QMouseEvent right(QEvent::MouseButtonPress, QPoint(200, 15), QPoint(200, 15), Qt::RightButton,
                      Qt::RightButton, Qt::NoModifier);

    QCoreApplication::sendEvent(m_slider.get(), &right);
    sendMouse(m_slider.get(), QEvent::MouseButtonPress, QPoint(200, 15), Qt::MiddleButton,
              Qt::MiddleButton);
    sendMouse(m_slider.get(), QEvent::MouseButtonPress, QPoint(200, 15), Qt::LeftButton,
              Qt::LeftButton | Qt::RightButton);
    sendMouse(m_slider.get(), QEvent::MouseButtonRelease, QPoint(200, 15), Qt::LeftButton,
              Qt::RightButton);
    move(m_slider.get(), QPoint(20, 15));

    QVERIFY(!right.isAccepted()); // the context menu behind may have it
    QCOMPARE(log.text(), QString());

    press(m_slider.get(), QPoint(200, 15));
    sendMouse(m_slider.get(), QEvent::MouseButtonRelease, QPoint(200, 15), Qt::RightButton,
              Qt::LeftButton);
    QVERIFY(m_slider->isSliderDown());
    m_slider->setParent(nullptr);
}

void tst_Slider::onePositionIgnoresThePointer()
{
    m_slider->setRealRange(1, 1);
    SliderLog log(m_slider.get());

    press(m_slider.get(), QPoint(200, 15));
    move(m_slider.get(), QPoint(20, 15));
    release(m_slider.get(), QPoint(20, 15));

    QCOMPARE(log.text(), QString());
}

void tst_Slider::dragWithoutTracking()
{
    m_slider->setTracking(false);
    SliderLog log(m_slider.get());

    press(m_slider.get(), QPoint(150, 15));
    move(m_slider.get(), QPoint(1000, 15));
    QCOMPARE(m_slider->realValue(), 0.0);
    release(m_slider.get(), QPoint(1000, 15));

    // Unlike in QSlider the value comes before the end of the drag, so that the run is complete.
    QVERIFY(log.text().endsWith(QStringLiteral("moved 1000, real 1, value 1000, released")));
}

void tst_Slider::escapeTakesTheDragBack()
{
    m_slider->setRealValue(0.12345);
    SliderLog log(m_slider.get());
    press(m_slider.get(), QPoint(200, 15));
    move(m_slider.get(), QPoint(1000, 15));
    log.clear();

    QTest::keyClick(m_slider.get(), Qt::Key_Escape);

    QVERIFY(m_slider->realValue() == 0.12345);
    QVERIFY(!m_slider->isSliderDown());
    QCOMPARE(log.text(), QStringLiteral("moved 123, real 0.12345, value 123, released"));
    log.clear();
    move(m_slider.get(), QPoint(20, 15));
    release(m_slider.get(), QPoint(20, 15));
    QCOMPARE(log.text(), QString());
    QVERIFY(m_slider->realValue() == 0.12345);

    m_slider->setTracking(false);
    press(m_slider.get(), QPoint(200, 15));
    QTest::keyClick(m_slider.get(), Qt::Key_Escape);
    QVERIFY(m_slider->realValue() == 0.12345);
    QCOMPARE(m_slider->sliderPosition(), 123);
    QCOMPARE(log.count(QStringLiteral("pressed")), log.count(QStringLiteral("released")));
}

void tst_Slider::escapeKeepsTheDialogOpen()
{
    QDialog dialog;
    auto *const layout = new QVBoxLayout(&dialog);
    auto *const slider = new Slider(Qt::Horizontal);
    layout->addWidget(slider);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    slider->setFocus();
    press(slider, slider->rect().center());

    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QCOMPARE(slider->realValue(), 0.0);

    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape); // without a drag it is the dialog's
    QVERIFY(!dialog.isVisible());
}

void tst_Slider::hidingEndsTheDrag()
{
    m_slider->show();
    press(m_slider.get(), QPoint(150, 15));
    SliderLog log(m_slider.get());
    const double value = m_slider->realValue();

    m_slider->hide();

    QCOMPARE(log.text(), QStringLiteral("released"));
    QCOMPARE(m_slider->realValue(), value);
    m_slider->show();
    move(m_slider.get(), QPoint(20, 15));
    release(m_slider.get(), QPoint(20, 15));
    QCOMPARE(log.text(), QStringLiteral("released"));
}

void tst_Slider::disablingEndsTheDrag()
{
    press(m_slider.get(), QPoint(150, 15));
    SliderLog log(m_slider.get());

    m_slider->setEnabled(false);
    m_slider->setEnabled(true);
    move(m_slider.get(), QPoint(20, 15));

    QCOMPARE(log.text(), QStringLiteral("released"));
    m_slider->setPalette(QPalette(Qt::red)); // other changes end nothing
    press(m_slider.get(), QPoint(150, 15));
    m_slider->setFont(QFont());
    QVERIFY(m_slider->isSliderDown());
}

void tst_Slider::pressAfterALostRelease()
{
    SliderLog log(m_slider.get());

    press(m_slider.get(), QPoint(150, 15));
    press(m_slider.get(), QPoint(250, 15));
    release(m_slider.get(), QPoint(250, 15));

    QCOMPARE(log.count(QStringLiteral("pressed")), 2);
    QCOMPARE(log.count(QStringLiteral("released")), 2);
    QVERIFY(m_slider->realValue() > 0.8);
}

void tst_Slider::slotMayEndTheDragAtPress()
{
    SliderLog log(m_slider.get());
    connect(m_slider.get(), &QSlider::sliderPressed, this, [this] { m_slider->setEnabled(false); });

    press(m_slider.get(), QPoint(150, 15));

    QCOMPARE(log.text(), QStringLiteral("pressed, released"));
    QCOMPARE(m_slider->realValue(), 0.0);
}

void tst_Slider::slotMayDeleteWhileDragging_data()
{
    QTest::addColumn<QString>("when");

    for (const char *when : {"pressed", "value at press", "value", "released", "hidden"})
        QTest::newRow(when) << QString::fromLatin1(when);
}

void tst_Slider::slotMayDeleteWhileDragging()
{
    QFETCH(QString, when);
    auto *const slider = new Slider(Qt::Horizontal);
    const QPointer<Slider> alive(slider);
    slider->resize(300, 30);
    slider->show();
    const auto deleteOn = [&](auto signal) {
        connect(slider, signal, this, [slider] { delete slider; });
    };
    if (when == QStringLiteral("pressed"))
        deleteOn(&QSlider::sliderPressed);
    else if (when == QStringLiteral("value at press"))
        deleteOn(&QSlider::valueChanged);
    press(slider, QPoint(150, 15));
    if (when == QStringLiteral("value")) {
        deleteOn(&Slider::realValueChanged);
        move(slider, QPoint(200, 15));
    } else if (when == QStringLiteral("released")) {
        deleteOn(&QSlider::sliderReleased);
        release(slider, QPoint(150, 15));
    } else if (when == QStringLiteral("hidden")) {
        connect(slider, &QSlider::sliderReleased, slider, &QObject::deleteLater);
        slider->hide();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QVERIFY(!alive);
}

void tst_Slider::gradientColours_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("rightToLeft");

    QTest::newRow("horizontal") << Qt::Horizontal << false;
    QTest::newRow("right to left") << Qt::Horizontal << true;
    QTest::newRow("vertical") << Qt::Vertical << false;
}

/// Where the handle's centre is for a value, the bar has the colour of that value.
void tst_Slider::gradientColours()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, rightToLeft);
    OpenedSlider slider(orientation);
    slider.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    slider.resize(orientation == Qt::Horizontal ? QSize(315, 30) : QSize(30, 315));
    const QColor first(10, 200, 30);
    const QColor last(250, 20, 90);
    slider.setGradient(first, last);

    for (const double value : {0.25, 0.75}) {
        slider.setRealValue(value);
        const QPoint place = slider.handle();
        slider.setRealValue(1 - value); // the handle out of the way
        const QColor expected = mixed(first, last, value);
        const QColor seen = pictureOf(&slider).pixelColor(place);
        QVERIFY2(isNear(seen, expected), qPrintable(seen.name() + expected.name()));
    }
}

void tst_Slider::gradientIsPaddedAtItsEnds()
{
    m_slider->setGradient(Qt::blue, Qt::red);
    m_slider->setRealValue(0.5);
    const QImage picture = pictureOf(m_slider.get());
    const int middle = m_slider->handle().y();

    QVERIFY(isNear(picture.pixelColor(4, middle), Qt::blue));
    QVERIFY(isNear(picture.pixelColor(295, middle), Qt::red));
    QCOMPARE(picture.pixelColor(100, middle + 6), QColor(Qt::white)); // 8 pixels thick
    QVERIFY(picture.pixelColor(100, middle + 2) != QColor(Qt::white));
}

void tst_Slider::handleCoversTheBar()
{
    m_slider->setRealValue(0.5);
    const QPoint handle = m_slider->handle();
    const QColor plain = pictureOf(m_slider.get()).pixelColor(handle);

    m_slider->setGradient(Qt::black, Qt::black);

    QCOMPARE(pictureOf(m_slider.get()).pixelColor(handle), plain);
    QVERIFY(plain != QColor(Qt::black));
}

void tst_Slider::withoutGradientAsAnyOther()
{
    QSlider plain(Qt::Horizontal);
    plain.setRange(0, 1000);
    plain.setValue(300);
    plain.resize(m_slider->size());
    m_slider->setRealValue(0.3);
    const QImage expected = pictureOf(&plain);

    QCOMPARE(pictureOf(m_slider.get()), expected);
    m_slider->setGradient(Qt::black, Qt::red);
    QVERIFY(pictureOf(m_slider.get()) != expected);
    m_slider->setGradientVisible(false);
    QCOMPARE(pictureOf(m_slider.get()), expected);
    m_slider->setGradientVisible(true);
    m_slider->clearGradient();
    QCOMPARE(pictureOf(m_slider.get()), expected);
}

void tst_Slider::gradientVisibleByStyleSheet()
{
    m_slider->setGradient(Qt::black, Qt::red);

    m_slider->setStyleSheet(
        QStringLiteral("Tessark--UI--Slider { qproperty-gradientVisible: false; }"));
    m_slider->ensurePolished();

    QVERIFY(!m_slider->isGradientVisible());
}

void tst_Slider::disabledBarFades()
{
    m_slider->setGradient(Qt::black, Qt::black);
    m_slider->setRealValue(1);
    const QPoint place(100, m_slider->handle().y());
    QVERIFY(isNear(pictureOf(m_slider.get()).pixelColor(place), Qt::black));

    m_slider->setEnabled(false);

    const int faded = qRound(255 * (1 - 0.35));
    QVERIFY(isNear(pictureOf(m_slider.get()).pixelColor(place), QColor(faded, faded, faded)));
}

void tst_Slider::focusMarkByKeyOnly()
{
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    auto *const first = new Slider(Qt::Horizontal);
    auto *const slider = new Slider(Qt::Horizontal);
    slider->setGradient(Qt::black, Qt::red);
    layout->addWidget(first);
    layout->addWidget(slider);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    const QImage unfocused = slider->grab().toImage();

    slider->setFocus(Qt::MouseFocusReason);
    QVERIFY(slider->hasFocus());
    QCOMPARE(slider->grab().toImage(), unfocused);

    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    QVERIFY(slider->hasFocus());
    QVERIFY(slider->grab().toImage() != unfocused);
}

void tst_Slider::styleSheetBackgroundStaysBehind()
{
    m_slider->setGradient(Qt::black, Qt::red);
    m_slider->setStyleSheet(QStringLiteral("QSlider { background: yellow; }"));
    m_slider->setRealValue(1);
    const QImage picture = pictureOf(m_slider.get());

    QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::yellow));
    QVERIFY(isNear(picture.pixelColor(8, m_slider->handle().y()), Qt::black));
}

void tst_Slider::ticksShowBesideTheBar()
{
    m_slider->setGradient(Qt::black, Qt::red);
    m_slider->resize(300, m_slider->sizeHint().height() + 12);
    const QImage without = pictureOf(m_slider.get());

    m_slider->setTickPosition(QSlider::TicksBelow);
    m_slider->setTickInterval(100);

    const QImage with = pictureOf(m_slider.get());
    const auto belowTheHandle = [this](const QImage &picture) {
        const int top = m_slider->handle().y() + 10;
        return picture.copy(0, top, picture.width(), picture.height() - top);
    };
    QVERIFY(belowTheHandle(with) != belowTheHandle(without));
}

void tst_Slider::pressedAndHoveredHandle()
{
    HandleStates style;
    m_slider->setStyle(&style);
    m_slider->setGradient(Qt::black, Qt::red);
    m_slider->setRealValue(0.5);
    const auto painted = [&] {
        pictureOf(m_slider.get());
        return style.last;
    };
    QCOMPARE(painted(), QString());

    press(m_slider.get(), m_slider->handle());
    QCOMPARE(painted(), QStringLiteral("active sunken"));
    release(m_slider.get(), m_slider->handle());
    QCOMPARE(painted(), QString());

    m_slider->setAttribute(Qt::WA_UnderMouse);
    m_slider->move(0, 0);
    QCursor::setPos(m_slider->mapToGlobal(m_slider->handle()));
    QCOMPARE(painted(), QStringLiteral("active"));
    QCursor::setPos(m_slider->mapToGlobal(m_slider->handle() + QPoint(60, 0)));
    QCOMPARE(painted(), QString());
    m_slider->setStyle(nullptr);
}

void tst_Slider::repaintsOnlyWhatChanged()
{
    m_slider->setGradient(Qt::black, Qt::red);
    m_slider->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_slider.get()));
    PaintCounter paints(m_slider.get());
    paints.take();

    m_slider->setGradient(Qt::black, Qt::red);
    m_slider->setGradient(QColor(0, 0, 0), QColor::fromRgbF(0.9995F, 0, 0));
    m_slider->setRealValue(0);
    m_slider->setRealValue(0.0001); // the same position
    QCOMPARE(paints.take(), 0);

    m_slider->setGradient(Qt::black, Qt::green);
    m_slider->setRealValue(0.5);
    QCOMPARE(paints.take(), 1);
    m_slider->clearGradient();
    QCOMPARE(paints.take(), 1);
}

void tst_Slider::accessibleInterface()
{
    m_slider->setRealRange(-1, 1);
    m_slider->setRealValue(0.25);
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(m_slider.get());

    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Slider);
    QAccessibleValueInterface *const value = valueInterfaceOf(m_slider.get());
    QVERIFY(value);
    QCOMPARE(value->currentValue().toDouble(), 0.25);
    QCOMPARE(value->minimumValue().toDouble(), -1.0);
    QCOMPARE(value->maximumValue().toDouble(), 1.0);
    QVERIFY(std::abs(value->minimumStepSize().toDouble() - 0.002) < 1e-12);
    value->setCurrentValue(0.5);
    QCOMPARE(m_slider->realValue(), 0.5);
    m_slider->setEnabled(false);
    value->setCurrentValue(0.75);
    QCOMPARE(m_slider->realValue(), 0.5);
}

QTEST_MAIN(tst_Slider)
#include "tst_Slider.moc"
