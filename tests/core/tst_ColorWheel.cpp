#include "core/ColorWheel.h"

#include "support/WheelPointer.h"

#include <QAccessible>
#include <QDialog>
#include <QMetaEnum>
#include <QPointer>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using Tessark::UI::ColorWheel;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr QPointF kCenter(80, 80);

/// A place around the centre: degrees counter-clockwise from 3 o'clock, distance in pixels.
QPointF polar(double degrees, double radius)
{
    return kCenter
           + QPointF(radius * std::cos(degrees * kPi / 180),
                     -radius * std::sin(degrees * kPi / 180));
}

/// Writes down the signals of a wheel: "start", "edit", "stop".
class WheelLog : public QObject
{
public:
    explicit WheelLog(ColorWheel *wheel)
    {
        connect(wheel, &ColorWheel::startDragSignal, this, [this] { add("start"); });
        connect(wheel, &ColorWheel::hsvEdited, this, [this] { add("edit"); });
        connect(wheel, &ColorWheel::stopDragSignal, this, [this] { add("stop"); });
    }

    QString take()
    {
        const QString text = m_entries.join(QLatin1Char(' '));
        m_entries.clear();
        return text;
    }

private:
    void add(const char *entry) { m_entries.append(QLatin1String(entry)); }

    QStringList m_entries;
};

bool isNear(double actual, double expected, double distance = 1e-9)
{
    return std::abs(actual - expected) <= distance;
}

/// Whether the widget took the turn of the wheel.
bool roll(QWidget *widget, int delta, bool inverted = false)
{
    const QPointF at(widget->rect().center());
    QWheelEvent event(at, widget->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, inverted);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

bool sendKey(QWidget *widget, QEvent::Type type, int key,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool isAutoRepeat = false)
{
    QKeyEvent event(type, key, modifiers, QString(), isAutoRepeat);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(ColorWheel *)>)

class tst_ColorWheel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fresh();
    void metaObject();
    void unknownModesCountAsTheFirst();
    void keepsItsShape();
    void setHsv_data();
    void setHsv();
    void setRingValue_data();
    void setRingValue();
    void settersAreSilent();
    void echoOfTheUsersChoice();

    void clickOnTheDisc();
    void clickOnTheValueRing();
    void clickOnTheHueRing();
    void clickOnTheTriangle();
    void clickOnASmallWheel();
    void pressBesideTheWheelIsIgnored();
    void otherButtonsAreIgnored();
    void dragLeavesAndReturns();
    void dragKeepsItsPart();
    void releaseWithoutPressIsIgnored();
    void grabOffset_data();
    void grabOffset();
    void relative_data();
    void relative();
    void gapCrossing_data();
    void gapCrossing();
    void pressInTheGap();
    void shiftIsATenth();
    void shiftOnARing();
    void controlSnaps();
    void controlSnapsTheTriangle();
    void discBrightensBlack();
    void onlyChoosingBrightensBlack();
    void pointerThroughTheMiddleOfARing();

    void escapeTakesTheDragBack();
    void escapeOfNothingIsNotAnnounced();
    void escapeIgnoresThePointerUntilRelease();
    void escapeLeavesADialogOpen();
    void dragEnds_data();
    void dragEnds();
    void destructionIsSilent();
    void blockedSignals();
    void setDuringADrag();
    void modeDuringADrag();
    void secondPressStartsAnew();
    void mouseTrackingIsGivenBack();

    void keys_data();
    void keys();
    void keysWithoutEffect_data();
    void keysWithoutEffect();
    void heldKeyIsOneInteraction();
    void heldKeyEnds_data();
    void heldKeyEnds();
    void twoHeldKeys();
    void keysBrightenBlack();
    void keysDuringADrag();
    void stepsReachTheEnds();

    void mouseWheelNeedsFocus();
    void mouseWheelBurst();
    void mouseWheelInParts();
    void mouseWheelAtTheEnd();
    void mouseWheelSideways();
    void mouseWheelDuringADrag();
    void keyEndsABurst();

    void deletedBySlot_data();
    void deletedBySlot();
    void endedBySlot();
    void dialogInASlot();

    void accessibleInterface();
    void accessibleSliders();
    void accessibleEdit();
    void accessibleEditOfBadNumbers();

private:
    ColorWheel *show(ColorWheel::DisplayMode mode);

    std::unique_ptr<QWidget> m_window;
    QPointer<ColorWheel> m_wheel; // child of m_window
};

void tst_ColorWheel::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 200);
    m_wheel = new ColorWheel(m_window.get());
    m_wheel->resize(160, 160);
}

/// The wheel of 160 x 160 in the mode, shown and focused, with the colour (0.25, 0.5, 0.5).
ColorWheel *tst_ColorWheel::show(ColorWheel::DisplayMode mode)
{
    m_wheel->setDisplayMode(mode);
    m_wheel->setHsv(0.25, 0.5, 0.5);
    m_window->show();
    m_window->activateWindow();
    m_wheel->setFocus();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qWarning("The window did not become active.");
    return m_wheel;
}

void tst_ColorWheel::fresh()
{
    QCOMPARE(m_wheel->displayMode(), ColorWheel::HueSaturationDisc);
    QCOMPARE(m_wheel->interactionMode(), ColorWheel::Absolute);
    QVERIFY(m_wheel->wheelNeedsFocus());
    QCOMPARE(m_wheel->hue(), 0.0);
    QCOMPARE(m_wheel->saturation(), 0.0);
    QCOMPARE(m_wheel->value(), 0.0);
    QCOMPARE(m_wheel->ringValue(), 0.0f);
    QCOMPARE(m_wheel->color(), QColor(Qt::black));
    QCOMPARE(m_wheel->focusPolicy(), Qt::StrongFocus);
    QVERIFY(!m_wheel->hasMouseTracking());
}

void tst_ColorWheel::metaObject()
{
    const QMetaObject *const meta = m_wheel->metaObject();
    for (const char *name : {"displayMode", "interactionMode", "ringValue", "wheelNeedsFocus"})
        QVERIFY2(meta->indexOfProperty(name) >= 0, name);
    for (const char *signature : {"setRingValue(float)", "setHsv(double,double,double)"})
        QVERIFY2(meta->indexOfSlot(signature) >= 0, signature);
    for (const char *signature :
         {"startDragSignal()", "stopDragSignal()", "hsvEdited(double,double,double)"})
        QVERIFY2(meta->indexOfSignal(signature) >= 0, signature);
    QCOMPARE(QMetaEnum::fromType<ColorWheel::DisplayMode>().keyCount(), 3);
    QCOMPARE(QMetaEnum::fromType<ColorWheel::InteractionMode>().keyCount(), 2);

    QVERIFY(m_wheel->setProperty("displayMode", 2));
    QCOMPARE(m_wheel->displayMode(), ColorWheel::DiscAndValueRing);
}

void tst_ColorWheel::unknownModesCountAsTheFirst()
{
    for (const int number : {-1, 3, 1000}) {
        m_wheel->setDisplayMode(ColorWheel::DiscAndValueRing);
        m_wheel->setDisplayMode(ColorWheel::DisplayMode(number));
        QCOMPARE(m_wheel->displayMode(), ColorWheel::HueSaturationDisc);
        m_wheel->setInteractionMode(ColorWheel::Relative);
        m_wheel->setInteractionMode(ColorWheel::InteractionMode(number));
        QCOMPARE(m_wheel->interactionMode(), ColorWheel::Absolute);
    }
}

void tst_ColorWheel::keepsItsShape()
{
    QCOMPARE(m_wheel->sizeHint(), QSize(160, 160));
    QCOMPARE(m_wheel->minimumSizeHint(), QSize(64, 64));
    QVERIFY(m_wheel->hasHeightForWidth());
    QVERIFY(m_wheel->sizePolicy().hasHeightForWidth());
    QCOMPARE(m_wheel->heightForWidth(123), 123);
}

void tst_ColorWheel::setHsv_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<double>("saturation");
    QTest::addColumn<double>("value");
    QTest::addColumn<QList<double>>("expected");

    QTest::newRow("plain") << 0.1 << 0.2 << 0.3 << QList<double>{0.1, 0.2, 0.3};
    QTest::newRow("hue wraps") << 1.75 << 0.2 << 0.3 << QList<double>{0.75, 0.2, 0.3};
    QTest::newRow("hue wraps down") << -0.25 << 0.2 << 0.3 << QList<double>{0.75, 0.2, 0.3};
    QTest::newRow("others clamp") << 0.1 << -1.0 << 2.0 << QList<double>{0.1, 0.0, 1.0};
    QTest::newRow("infinite") << kInfinity << kInfinity << -kInfinity
                              << QList<double>{0.5, 1.0, 0.0};
    QTest::newRow("not a number") << kNaN << kNaN << kNaN << QList<double>{0.5, 0.6, 0.7};
    QTest::newRow("one of them not") << 0.1 << kNaN << 0.3 << QList<double>{0.1, 0.6, 0.3};
}

void tst_ColorWheel::setHsv()
{
    QFETCH(double, hue);
    QFETCH(double, saturation);
    QFETCH(double, value);
    m_wheel->setHsv(0.5, 0.6, 0.7);

    m_wheel->setHsv(hue, saturation, value);

    QTEST((QList<double>{m_wheel->hue(), m_wheel->saturation(), m_wheel->value()}), "expected");
}

void tst_ColorWheel::setRingValue_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<double>("expected");

    QTest::newRow("plain") << 0.25f << 0.25;
    QTest::newRow("above") << 7.0f << 1.0;
    QTest::newRow("below") << -7.0f << 0.0;
    QTest::newRow("infinite") << float(kInfinity) << 1.0;
    QTest::newRow("minus infinite") << float(-kInfinity) << 0.0;
    QTest::newRow("not a number") << float(kNaN) << 0.7;
    QTest::newRow("close to the present one") << 0.701f << double(0.701f);
}

void tst_ColorWheel::setRingValue()
{
    QFETCH(float, value);
    m_wheel->setHsv(0.5, 0.6, 0.7);

    m_wheel->setRingValue(value);

    QTEST(m_wheel->value(), "expected");
    QCOMPARE(m_wheel->hue(), 0.5);
    QCOMPARE(m_wheel->saturation(), 0.6);
}

void tst_ColorWheel::settersAreSilent()
{
    WheelLog log(m_wheel);

    m_wheel->setRingValue(0.4f);
    m_wheel->setHsv(0.1, 0.2, 0.3);
    m_wheel->setDisplayMode(ColorWheel::HueRingTriangle);
    m_wheel->setInteractionMode(ColorWheel::Relative);

    QCOMPARE(log.take(), QString());
}

void tst_ColorWheel::echoOfTheUsersChoice()
{
    show(ColorWheel::DiscAndValueRing);
    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_PageUp);
    sendKey(m_wheel, QEvent::KeyRelease, Qt::Key_PageUp);
    const double chosen = m_wheel->value();

    m_wheel->setRingValue(float(std::floor(chosen * 255) / 255));
    QCOMPARE(m_wheel->value(), chosen);
    m_wheel->setRingValue(float(std::round(chosen * 255) / 255));
    QCOMPARE(m_wheel->value(), chosen);

    m_wheel->setRingValue(float(chosen + 0.01));
    QCOMPARE(m_wheel->value(), double(float(chosen + 0.01)));
    m_wheel->setRingValue(float(chosen + 0.011)); // the choice is no longer what is shown
    QCOMPARE(m_wheel->value(), double(float(chosen + 0.011)));
}

void tst_ColorWheel::clickOnTheDisc()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    QSignalSpy spy(m_wheel, &ColorWheel::hsvEdited);
    WheelPointer pointer(m_wheel);

    QVERIFY(pointer.press(polar(180, 29.5)));

    QCOMPARE(log.take(), QStringLiteral("start edit"));
    QVERIFY(isNear(m_wheel->hue(), 0.5));
    QVERIFY(isNear(m_wheel->saturation(), 0.5));
    QCOMPARE(m_wheel->value(), 0.5);
    QCOMPARE(spy.at(0).at(0).toDouble(), m_wheel->hue());
    QCOMPARE(spy.at(0).at(1).toDouble(), m_wheel->saturation());
    QCOMPARE(spy.at(0).at(2).toDouble(), m_wheel->value());

    QVERIFY(pointer.move(polar(90, 59)));
    QCOMPARE(log.take(), QStringLiteral("edit"));
    QVERIFY(isNear(m_wheel->hue(), 0.25));
    QVERIFY(isNear(m_wheel->saturation(), 1));

    QVERIFY(pointer.move(polar(90, 59))); // the same place
    QCOMPARE(log.take(), QString());

    QVERIFY(pointer.release());
    QCOMPARE(log.take(), QStringLiteral("stop"));
}

void tst_ColorWheel::clickOnTheValueRing()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(180, 70));
    QVERIFY(isNear(m_wheel->value(), 0.2));
    pointer.move(polar(0, 70)); // half a turn in one step
    pointer.move(polar(45, 20));
    pointer.release();

    QCOMPARE(log.take(), QStringLiteral("start edit edit edit stop"));
    QCOMPARE(m_wheel->hue(), 0.25);
    QCOMPARE(m_wheel->saturation(), 0.5);
    QVERIFY(isNear(m_wheel->value(), 0.65));
}

void tst_ColorWheel::clickOnTheHueRing()
{
    show(ColorWheel::HueRingTriangle);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(300, 68));
    QVERIFY(isNear(m_wheel->hue(), 300 / 360.0));
    pointer.move(polar(20, 68));
    QVERIFY(isNear(m_wheel->hue(), 20 / 360.0));
    pointer.release();

    QCOMPARE(m_wheel->saturation(), 0.5);
    QCOMPARE(m_wheel->value(), 0.5);
}

void tst_ColorWheel::clickOnTheTriangle()
{
    show(ColorWheel::HueRingTriangle);
    WheelPointer pointer(m_wheel);

    pointer.press(kCenter);
    QVERIFY(isNear(m_wheel->saturation(), 0.5));
    QVERIFY(isNear(m_wheel->value(), 2.0 / 3));
    pointer.move(polar(90, 500)); // beyond the corner of the full hue
    QVERIFY(isNear(m_wheel->saturation(), 1));
    QVERIFY(isNear(m_wheel->value(), 1));
    pointer.move(polar(210, 500));
    QCOMPARE(m_wheel->value(), 0.0);
    QVERIFY(isNear(m_wheel->saturation(), 1)); // black has none, so it stays
    pointer.release();

    QCOMPARE(m_wheel->hue(), 0.25);
}

void tst_ColorWheel::clickOnASmallWheel()
{
    show(ColorWheel::HueRingTriangle);
    m_wheel->resize(30, 30);
    WheelPointer pointer(m_wheel);

    QVERIFY(pointer.press(QPointF(15, 29)));
    pointer.release();

    QVERIFY(isNear(m_wheel->hue(), 0.75));
    QVERIFY(isNear(m_wheel->saturation(), 1));
}

void tst_ColorWheel::pressBesideTheWheelIsIgnored()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    QVERIFY(!pointer.press(QPointF(2, 2)));
    QVERIFY(!pointer.move(kCenter));
    QVERIFY(!pointer.release());

    QCOMPARE(log.take(), QString());
}

void tst_ColorWheel::otherButtonsAreIgnored()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QVERIFY(!pointer.press(kCenter, Qt::NoModifier, button));
        QVERIFY(!pointer.release(button));
    }
    QCOMPARE(log.take(), QString());

    pointer.press(polar(0, 30));
    QVERIFY(!pointer.press(polar(0, 30), Qt::NoModifier, Qt::RightButton));
    QVERIFY(!pointer.release(Qt::RightButton));
    QCOMPARE(log.take(), QStringLiteral("start edit"));
    pointer.release();
    QCOMPARE(log.take(), QStringLiteral("stop"));
}

void tst_ColorWheel::dragLeavesAndReturns()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 30));
    pointer.move(polar(0, 5000));
    QCOMPARE(m_wheel->saturation(), 1.0);
    pointer.move(polar(0, 29.5));
    QVERIFY(isNear(m_wheel->saturation(), 0.5));
    pointer.release();

    QCOMPARE(log.take(), QStringLiteral("start edit edit edit stop"));
}

void tst_ColorWheel::dragKeepsItsPart()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 30));
    pointer.move(polar(120, 70)); // over the ring
    pointer.release();

    QCOMPARE(m_wheel->value(), 0.5);
    QVERIFY(isNear(m_wheel->hue(), 1.0 / 3));
    QCOMPARE(m_wheel->saturation(), 1.0);
}

void tst_ColorWheel::releaseWithoutPressIsIgnored()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    QVERIFY(!pointer.release());

    QCOMPARE(log.take(), QString());
}

void tst_ColorWheel::grabOffset_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QPointF>("marker");

    // Of (0.25, 0.5, 0.5).
    QTest::newRow("disc") << 0 << polar(90, 38.5);
    QTest::newRow("disc in a ring") << 2 << polar(90, 29.5);
    QTest::newRow("value ring") << 2 << polar(90, 70);
    QTest::newRow("hue ring") << 1 << polar(90, 67.5);
    QTest::newRow("triangle") << 1 << QPointF(80 - 7 * std::sqrt(3), 87);
}

void tst_ColorWheel::grabOffset()
{
    QFETCH(int, mode);
    QFETCH(QPointF, marker);
    show(ColorWheel::DisplayMode(mode));
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(marker + QPointF(4, 0));
    QCOMPARE(log.take(), QStringLiteral("start"));
    pointer.move(marker + QPointF(5, 0));
    QCOMPARE(log.take(), QStringLiteral("edit"));
    pointer.move(marker + QPointF(4, 0));
    pointer.release();

    QVERIFY(isNear(m_wheel->hue(), 0.25));
    QVERIFY(isNear(m_wheel->saturation(), 0.5));
    QVERIFY(isNear(m_wheel->value(), 0.5));
    QCOMPARE(log.take(), QStringLiteral("edit stop"));
}

void tst_ColorWheel::relative_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QList<double>>("expected");

    QTest::newRow("disc") << 2 << polar(200, 40) << polar(200, 40) - QPointF(0, 29.5)
                          << QList<double>{0.25, 1.0, 0.5};
    QTest::newRow("value ring") << 2 << polar(180, 70) << polar(150, 70)
                                << QList<double>{0.25, 0.5, 0.6};
    QTest::newRow("hue ring") << 1 << polar(350, 70) << polar(26, 65)
                              << QList<double>{0.35, 0.5, 0.5};
    QTest::newRow("triangle") << 1 << polar(0, 10) << polar(0, 10) - QPointF(0, 14)
                              << QList<double>{0.25, 5.0 / 7, 7.0 / 12};
}

/// The marker moves as the pointer does, on a ring by the same angle.
void tst_ColorWheel::relative()
{
    QFETCH(int, mode);
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(QList<double>, expected);
    show(ColorWheel::DisplayMode(mode));
    m_wheel->setInteractionMode(ColorWheel::Relative);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(from);
    QCOMPARE(log.take(), QStringLiteral("start"));
    pointer.move(to);
    pointer.release();

    QCOMPARE(log.take(), QStringLiteral("edit stop"));
    QVERIFY2(isNear(m_wheel->hue(), expected[0]), qPrintable(QString::number(m_wheel->hue())));
    QVERIFY2(isNear(m_wheel->saturation(), expected[1]),
             qPrintable(QString::number(m_wheel->saturation())));
    QVERIFY2(isNear(m_wheel->value(), expected[2]), qPrintable(QString::number(m_wheel->value())));
}

void tst_ColorWheel::gapCrossing_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("step");
    QTest::addColumn<double>("end");

    // The value grows clockwise from 240 degrees to -60.
    QTest::newRow("over the bright end") << -50 << -1 << 1.0;
    QTest::newRow("over the dark end") << 230 << 1 << 0.0;
}

/// Through the gap and far beyond it the end is held; back on the same way the value comes back.
void tst_ColorWheel::gapCrossing()
{
    QFETCH(int, start);
    QFETCH(int, step);
    QFETCH(double, end);
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(start, 70));
    const double first = m_wheel->value();
    QVERIFY(isNear(first, (240 - start) / 300.0));
    for (int i = 1; i <= 200; ++i) {
        pointer.move(polar(start + i * step, 70));
        QVERIFY(i < 11 || m_wheel->value() == end);
    }
    for (int i = 199; i >= 0; --i) {
        pointer.move(polar(start + i * step, 70));
        QVERIFY(i < 10 || isNear(m_wheel->value(), end));
    }
    QVERIFY(isNear(m_wheel->value(), first));
    pointer.release();
}

void tst_ColorWheel::pressInTheGap()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(280, 70));
    QCOMPARE(m_wheel->value(), 1.0);
    pointer.move(polar(310, 70)); // from the end on
    QVERIFY(isNear(m_wheel->value(), 0.9));
    pointer.release();

    pointer.press(polar(260, 70));
    QCOMPARE(m_wheel->value(), 0.0);
    pointer.release();
}

void tst_ColorWheel::shiftIsATenth()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 20));
    pointer.move(kCenter + QPointF(30, 0));
    pointer.move(kCenter + QPointF(40, 0), Qt::ShiftModifier);
    QVERIFY(isNear(m_wheel->saturation(), 31 / 59.0));
    pointer.move(kCenter + QPointF(50, 0), Qt::ShiftModifier);
    QVERIFY(isNear(m_wheel->saturation(), 32 / 59.0));
    pointer.move(kCenter + QPointF(51, 0)); // Shift is up: on from here, without a jump
    QVERIFY(isNear(m_wheel->saturation(), 33 / 59.0));
    pointer.release();
}

void tst_ColorWheel::shiftOnARing()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(180, 70));
    pointer.move(polar(150, 70), Qt::ShiftModifier);
    QVERIFY(isNear(m_wheel->value(), 0.21));
    pointer.move(polar(120, 70));
    QVERIFY(isNear(m_wheel->value(), 0.31));
    pointer.release();
}

void tst_ColorWheel::controlSnaps()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(10, 20));
    pointer.move(polar(50, 40), Qt::ControlModifier);
    QVERIFY(isNear(m_wheel->hue(), 45 / 360.0));
    QVERIFY(isNear(m_wheel->saturation(), 40 / 59.0));
    pointer.move(polar(356, 40), Qt::ControlModifier);
    QCOMPARE(m_wheel->hue(), 0.0);
    pointer.move(polar(51, 40));
    QVERIFY(isNear(m_wheel->hue(), 51 / 360.0));
    pointer.move(kCenter, Qt::ControlModifier); // no hue to snap
    QVERIFY(isNear(m_wheel->hue(), 51 / 360.0));
    pointer.release();

    pointer.press(polar(180, 70));
    pointer.move(polar(130, 70), Qt::ControlModifier);
    QVERIFY(isNear(m_wheel->value(), 0.35));
    pointer.release();
}

void tst_ColorWheel::controlSnapsTheTriangle()
{
    show(ColorWheel::HueRingTriangle);
    WheelPointer pointer(m_wheel);

    pointer.press(kCenter);
    pointer.move(kCenter + QPointF(0, 1), Qt::ControlModifier);
    QVERIFY(isNear(m_wheel->value(), 0.65));
    pointer.release();

    pointer.press(polar(100, 68));
    pointer.move(polar(170, 68), Qt::ControlModifier);
    QVERIFY(isNear(m_wheel->hue(), 165 / 360.0));
    pointer.release();
}

void tst_ColorWheel::discBrightensBlack()
{
    show(ColorWheel::DiscAndValueRing);
    m_wheel->setRingValue(0);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 40));
    pointer.release();

    QCOMPARE(m_wheel->value(), 1.0);
    QCOMPARE(log.take(), QStringLiteral("start edit stop"));
}

void tst_ColorWheel::onlyChoosingBrightensBlack()
{
    show(ColorWheel::DiscAndValueRing);
    m_wheel->setRingValue(0);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(90, 32)); // on the marker
    pointer.release();
    QCOMPARE(m_wheel->value(), 0.0);
    m_wheel->setInteractionMode(ColorWheel::Relative);
    pointer.press(polar(0, 40));
    pointer.release();
    QCOMPARE(m_wheel->value(), 0.0);
    QCOMPARE(log.take(), QStringLiteral("start stop start stop"));

    m_wheel->setInteractionMode(ColorWheel::Absolute);
    m_wheel->setDisplayMode(ColorWheel::HueRingTriangle);
    pointer.press(polar(10, 68));
    pointer.release();
    QCOMPARE(m_wheel->value(), 0.0);
}

/// There the pointer has no direction; the ring waits until it has one again.
void tst_ColorWheel::pointerThroughTheMiddleOfARing()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(100, 70));
    pointer.move(kCenter);
    QVERIFY(isNear(m_wheel->value(), 140 / 300.0));
    pointer.move(polar(40, 70));
    QVERIFY(isNear(m_wheel->value(), 200 / 300.0));
    pointer.release();
}

void tst_ColorWheel::escapeTakesTheDragBack()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 40));
    pointer.move(polar(10, 40));
    QVERIFY(sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Escape));

    QCOMPARE(m_wheel->hue(), 0.25);
    QCOMPARE(m_wheel->saturation(), 0.5);
    QCOMPARE(m_wheel->value(), 0.5);
    QCOMPARE(log.take(), QStringLiteral("start edit edit edit stop"));
    QVERIFY(!sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Escape));
}

void tst_ColorWheel::escapeOfNothingIsNotAnnounced()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(90, 29.5));
    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Escape);

    QCOMPARE(log.take(), QStringLiteral("start stop"));
}

void tst_ColorWheel::escapeIgnoresThePointerUntilRelease()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);
    pointer.press(polar(0, 40));
    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Escape);
    WheelLog log(m_wheel);

    QVERIFY(pointer.move(polar(20, 40))); // taken, so that nobody else acts on it
    QVERIFY(pointer.release());
    QCOMPARE(log.take(), QString());
    QCOMPARE(m_wheel->hue(), 0.25);

    pointer.press(polar(0, 40));
    pointer.release();
    QCOMPARE(log.take(), QStringLiteral("start edit stop"));
}

void tst_ColorWheel::escapeLeavesADialogOpen()
{
    QDialog dialog;
    auto *const wheel = new ColorWheel(&dialog);
    wheel->resize(160, 160);
    QShortcut shortcut(QKeySequence(Qt::Key_Escape), &dialog);
    QSignalSpy shortcuts(&shortcut, &QShortcut::activated);
    dialog.show();
    dialog.activateWindow();
    wheel->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    WheelPointer pointer(wheel);

    pointer.press(polar(0, 40));
    QTest::keyClick(wheel, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QVERIFY(shortcuts.isEmpty());
    QCOMPARE(wheel->saturation(), 0.0);

    pointer.release();
    QTest::keyClick(wheel, Qt::Key_Escape);
    QCOMPARE(shortcuts.count(), 1); // without a drag it is the dialog's
}

void tst_ColorWheel::dragEnds_data()
{
    QTest::addColumn<std::function<void(ColorWheel *)>>("end");

    const auto row = [](const char *name, const std::function<void(ColorWheel *)> &end) {
        QTest::newRow(name) << end;
    };
    row("hidden", [](ColorWheel *wheel) { wheel->hide(); });
    row("window hidden", [](ColorWheel *wheel) { wheel->window()->hide(); });
    row("disabled", [](ColorWheel *wheel) { wheel->setEnabled(false); });
    row("window disabled", [](ColorWheel *wheel) { wheel->window()->setEnabled(false); });
    row("grab lost", [](ColorWheel *wheel) {
        QEvent event(QEvent::UngrabMouse);
        QCoreApplication::sendEvent(wheel, &event);
    });
    row("window deactivated", [](ColorWheel *wheel) {
        QEvent event(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(wheel, &event);
    });
    row("moved without button", [](ColorWheel *wheel) {
        QVERIFY(wheel->hasMouseTracking());
        WheelPointer(wheel).move(polar(200, 20));
    });
}

void tst_ColorWheel::dragEnds()
{
    QFETCH(std::function<void(ColorWheel *)>, end);
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 40));
    end(m_wheel);

    QCOMPARE(log.take(), QStringLiteral("start edit stop"));
    QCOMPARE(m_wheel->hue(), 0.0); // the colour stays
    pointer.move(polar(100, 40));
    pointer.release();
    QCOMPARE(log.take(), QString());
    QVERIFY(!m_wheel->hasMouseTracking());
}

void tst_ColorWheel::destructionIsSilent()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer(m_wheel).press(polar(0, 40));
    WheelLog log(m_wheel);

    delete m_wheel;

    QCOMPARE(log.take(), QString());
}

void tst_ColorWheel::blockedSignals()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    {
        // Not to the end of the wheel: Qt's accessibility learns of that by a signal.
        const QSignalBlocker blocker(m_wheel.data());
        pointer.press(polar(0, 59));
        pointer.release();
    }

    QCOMPARE(log.take(), QString());
    QVERIFY(isNear(m_wheel->saturation(), 1));
}

/// What is not dragged is what was set; what is dragged follows the pointer.
void tst_ColorWheel::setDuringADrag()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);
    const auto connection = connect(m_wheel, &ColorWheel::hsvEdited, m_wheel,
                                    [this] { m_wheel->setHsv(0.9, 0.1, 0.75); });

    pointer.press(polar(0, 40));
    QCOMPARE(m_wheel->hue(), 0.9);
    disconnect(connection);
    pointer.move(polar(90, 59));
    pointer.release();

    QVERIFY(isNear(m_wheel->hue(), 0.25));
    QVERIFY(isNear(m_wheel->saturation(), 1));
    QCOMPARE(m_wheel->value(), 0.75);
}

/// The part that is being dragged is gone: nothing moves any more, and the drag ends in order.
void tst_ColorWheel::modeDuringADrag()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(180, 70));
    m_wheel->setDisplayMode(ColorWheel::HueRingTriangle);
    pointer.move(polar(90, 70));
    pointer.release();

    QCOMPARE(log.take(), QStringLiteral("start edit stop"));
    QVERIFY(isNear(m_wheel->value(), 0.2));
}

void tst_ColorWheel::secondPressStartsAnew()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 40));
    pointer.press(polar(180, 40));
    pointer.release();

    QCOMPARE(log.take(), QStringLiteral("start edit stop start edit stop"));
}

void tst_ColorWheel::mouseTrackingIsGivenBack()
{
    show(ColorWheel::DiscAndValueRing);
    m_wheel->setMouseTracking(true);
    WheelPointer pointer(m_wheel);

    pointer.press(polar(0, 40));
    pointer.release();

    QVERIFY(m_wheel->hasMouseTracking());
}

void tst_ColorWheel::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QList<double>>("expected");

    const int none = Qt::NoModifier;
    const int control = Qt::ControlModifier;
    const int shift = Qt::ShiftModifier;
    const int keypad = Qt::KeypadModifier;
    const double degree = 1 / 360.0;
    const auto hue = [](double change) { return QList<double>{0.25 + change, 0.5, 0.5}; };
    const auto saturation = [](double change) { return QList<double>{0.25, 0.5 + change, 0.5}; };
    const auto value = [](double change) { return QList<double>{0.25, 0.5, 0.5 + change}; };
    QTest::newRow("Right") << int(Qt::Key_Right) << none << hue(degree);
    QTest::newRow("Left") << int(Qt::Key_Left) << none << hue(-degree);
    QTest::newRow("Control Right") << int(Qt::Key_Right) << control << hue(10 * degree);
    QTest::newRow("Shift Left") << int(Qt::Key_Left) << shift << hue(-0.1 * degree);
    QTest::newRow("keypad Right") << int(Qt::Key_Right) << keypad << hue(degree);
    QTest::newRow("Up") << int(Qt::Key_Up) << none << saturation(0.01);
    QTest::newRow("Down") << int(Qt::Key_Down) << none << saturation(-0.01);
    QTest::newRow("Control Up") << int(Qt::Key_Up) << control << saturation(0.1);
    QTest::newRow("Shift Down") << int(Qt::Key_Down) << shift << saturation(-0.001);
    QTest::newRow("Page Up") << int(Qt::Key_PageUp) << none << value(0.05);
    QTest::newRow("Page Down") << int(Qt::Key_PageDown) << none << value(-0.05);
    QTest::newRow("Control Page Up") << int(Qt::Key_PageUp) << control << value(0.25);
    QTest::newRow("Shift Page Down") << int(Qt::Key_PageDown) << shift << value(-0.005);
    QTest::newRow("End") << int(Qt::Key_End) << none << value(0.5);
    QTest::newRow("Home") << int(Qt::Key_Home) << none << value(-0.5);
}

void tst_ColorWheel::keys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QList<double>, expected);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        show(ColorWheel::DiscAndValueRing);
        m_wheel->setLayoutDirection(direction); // no mirroring
        WheelLog log(m_wheel);

        QVERIFY(sendKey(m_wheel, QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers)));
        QCOMPARE(log.take(), QStringLiteral("start edit"));
        QVERIFY(sendKey(m_wheel, QEvent::KeyRelease, key));
        QCOMPARE(log.take(), QStringLiteral("stop"));

        QVERIFY(isNear(m_wheel->hue(), expected[0]));
        QVERIFY(isNear(m_wheel->saturation(), expected[1]));
        QVERIFY(isNear(m_wheel->value(), expected[2]));
    }
}

void tst_ColorWheel::keysWithoutEffect_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("taken");

    const int none = Qt::NoModifier;
    // At saturation 1 and value 1.
    QTest::newRow("Up at the top") << int(Qt::Key_Up) << none << true;
    QTest::newRow("Page Up at the top") << int(Qt::Key_PageUp) << none << true;
    QTest::newRow("End at the end") << int(Qt::Key_End) << none << true;
    QTest::newRow("a letter") << int(Qt::Key_A) << none << false;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << none << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none << false;
    QTest::newRow("Alt Left") << int(Qt::Key_Left) << int(Qt::AltModifier) << false;
}

void tst_ColorWheel::keysWithoutEffect()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, taken);
    QWidget window; // without another widget for Tab to go to
    ColorWheel wheel(&window);
    wheel.setHsv(0.1, 1, 1);
    WheelLog log(&wheel);

    QCOMPARE(sendKey(&wheel, QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers)), taken);
    sendKey(&wheel, QEvent::KeyRelease, key);

    QCOMPARE(log.take(), QString());
}

void tst_ColorWheel::heldKeyIsOneInteraction()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);

    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Right);
    for (int i = 0; i < 3; ++i) {
        sendKey(m_wheel, QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, true);
        sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, true);
    }
    sendKey(m_wheel, QEvent::KeyRelease, Qt::Key_Right);
    sendKey(m_wheel, QEvent::KeyRelease, Qt::Key_Right);

    QCOMPARE(log.take(), QStringLiteral("start edit edit edit edit stop"));
    QVERIFY(isNear(m_wheel->hue(), 0.25 + 4 / 360.0));
}

void tst_ColorWheel::heldKeyEnds_data()
{
    QTest::addColumn<std::function<void(ColorWheel *)>>("end");

    const auto row = [](const char *name, const std::function<void(ColorWheel *)> &end) {
        QTest::newRow(name) << end;
    };
    row("focus lost", [](ColorWheel *wheel) { wheel->clearFocus(); });
    row("hidden", [](ColorWheel *wheel) { wheel->hide(); });
    row("disabled", [](ColorWheel *wheel) { wheel->setEnabled(false); });
}

void tst_ColorWheel::heldKeyEnds()
{
    QFETCH(std::function<void(ColorWheel *)>, end);
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);

    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Right);
    end(m_wheel);

    QCOMPARE(log.take(), QStringLiteral("start edit stop"));
}

/// The interaction goes on while the key pressed last is held.
void tst_ColorWheel::twoHeldKeys()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);

    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Right);
    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Up);
    sendKey(m_wheel, QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(log.take(), QStringLiteral("start edit edit"));
    sendKey(m_wheel, QEvent::KeyRelease, Qt::Key_Up);
    QCOMPARE(log.take(), QStringLiteral("stop"));
}

void tst_ColorWheel::keysBrightenBlack()
{
    show(ColorWheel::DiscAndValueRing);
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        m_wheel->setHsv(0.25, 0.5, 0);
        sendKey(m_wheel, QEvent::KeyPress, key);
        sendKey(m_wheel, QEvent::KeyRelease, key);
        QCOMPARE(m_wheel->value(), 1.0);
    }

    m_wheel->setHsv(0.25, 0, 0);
    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Down); // changes nothing, so it chooses nothing
    QCOMPARE(m_wheel->value(), 0.0);
}

void tst_ColorWheel::keysDuringADrag()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);
    pointer.press(polar(0, 40));
    WheelLog log(m_wheel);

    QVERIFY(sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Right));
    sendKey(m_wheel, QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(log.take(), QString());
    pointer.release();
    QCOMPARE(log.take(), QStringLiteral("stop"));
}

void tst_ColorWheel::stepsReachTheEnds()
{
    show(ColorWheel::DiscAndValueRing);
    m_wheel->setHsv(0, 1, 1);
    for (int i = 0; i < 100; ++i)
        sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, i > 0);
    for (int i = 0; i < 20; ++i)
        sendKey(m_wheel, QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier, i > 0);
    QCOMPARE(m_wheel->saturation(), 0.0);
    QCOMPARE(m_wheel->value(), 0.0);

    WheelLog log(m_wheel);
    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_PageDown);
    QCOMPARE(log.take(), QString());
}

void tst_ColorWheel::mouseWheelNeedsFocus()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    m_wheel->clearFocus();

    QVERIFY(!roll(m_wheel, 120));
    QCOMPARE(log.take(), QString());

    m_wheel->setWheelNeedsFocus(false);
    QVERIFY(!m_wheel->wheelNeedsFocus());
    QVERIFY(roll(m_wheel, 120));
    QCOMPARE(log.take(), QStringLiteral("start edit"));
    QVERIFY(isNear(m_wheel->value(), 0.55));
}

void tst_ColorWheel::mouseWheelBurst()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    QSignalSpy stops(m_wheel, &ColorWheel::stopDragSignal);

    for (int i = 0; i < 3; ++i)
        QVERIFY(roll(m_wheel, -120));
    QVERIFY(isNear(m_wheel->value(), 0.35));
    QVERIFY(stops.isEmpty());

    QElapsedTimer timer;
    timer.start();
    QTRY_COMPARE(stops.count(), 1);
    QVERIFY(timer.elapsed() > 200);
    QCOMPARE(log.take(), QStringLiteral("start edit edit edit stop"));

    roll(m_wheel, 120);
    QCOMPARE(log.take(), QStringLiteral("start edit"));
}

void tst_ColorWheel::mouseWheelInParts()
{
    show(ColorWheel::DiscAndValueRing);

    for (int i = 0; i < 8; ++i)
        roll(m_wheel, 15);
    QVERIFY(isNear(m_wheel->value(), 0.55));

    roll(m_wheel, 120, true);
    QVERIFY(isNear(m_wheel->value(), 0.5));
}

void tst_ColorWheel::mouseWheelAtTheEnd()
{
    show(ColorWheel::DiscAndValueRing);
    m_wheel->setRingValue(1);
    WheelLog log(m_wheel);

    QVERIFY(roll(m_wheel, 120));

    QCOMPARE(log.take(), QString());
    QCOMPARE(m_wheel->value(), 1.0);
}

void tst_ColorWheel::mouseWheelSideways()
{
    show(ColorWheel::DiscAndValueRing);
    QWheelEvent event(kCenter, kCenter, QPoint(), QPoint(120, 0), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    event.ignore();

    QCoreApplication::sendEvent(m_wheel, &event);

    QVERIFY(!event.isAccepted());
    QCOMPARE(m_wheel->value(), 0.5);
}

void tst_ColorWheel::mouseWheelDuringADrag()
{
    show(ColorWheel::DiscAndValueRing);
    WheelPointer pointer(m_wheel);
    pointer.press(polar(0, 40));
    WheelLog log(m_wheel);

    QVERIFY(roll(m_wheel, 120));
    QCOMPARE(log.take(), QString());
    pointer.release();

    QCOMPARE(m_wheel->value(), 0.5);
}

void tst_ColorWheel::keyEndsABurst()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);

    roll(m_wheel, 120);
    sendKey(m_wheel, QEvent::KeyPress, Qt::Key_Right);
    roll(m_wheel, 120);
    WheelPointer pointer(m_wheel);
    pointer.press(polar(0, 40));

    QCOMPARE(log.take(),
             QStringLiteral("start edit stop start edit stop start edit stop start edit"));
}

void tst_ColorWheel::deletedBySlot_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("wholeWindow");
    QTest::addColumn<std::function<void(ColorWheel *)>>("use");

    const std::function<void(ColorWheel *)> drag = [](ColorWheel *wheel) {
        const QPointer<ColorWheel> alive(wheel);
        WheelPointer pointer(wheel);
        pointer.press(polar(0, 40));
        if (alive)
            pointer.release();
    };
    const std::function<void(ColorWheel *)> cancel = [](ColorWheel *wheel) {
        const QPointer<ColorWheel> alive(wheel);
        WheelPointer(wheel).press(polar(90, 29.5)); // takes hold, edits nothing
        if (alive)
            WheelPointer(wheel).press(polar(0, 40));
        if (alive)
            sendKey(wheel, QEvent::KeyPress, Qt::Key_Escape);
    };
    const std::function<void(ColorWheel *)> key = [](ColorWheel *wheel) {
        const QPointer<ColorWheel> alive(wheel);
        sendKey(wheel, QEvent::KeyPress, Qt::Key_Right);
        if (alive)
            sendKey(wheel, QEvent::KeyRelease, Qt::Key_Right);
    };
    const std::function<void(ColorWheel *)> burst = [](ColorWheel *wheel) {
        const QPointer<ColorWheel> alive(wheel);
        roll(wheel, 120);
        QTRY_VERIFY(!alive);
    };
    const std::function<void(ColorWheel *)> assist = [](ColorWheel *wheel) {
        QAccessibleInterface *const sliders = QAccessible::queryAccessibleInterface(wheel);
        sliders->child(0)->valueInterface()->setCurrentValue(77);
    };
    const std::pair<const char *, std::function<void(ColorWheel *)>> uses[] = {
        {"drag", drag}, {"cancel", cancel}, {"key", key}, {"burst", burst}, {"assistance", assist}};
    for (const auto &[name, use] : uses) {
        for (int signal = 0; signal < 3; ++signal) {
            const char *const signalNames[] = {"start", "edit", "stop"};
            for (const bool wholeWindow : {false, true}) {
                QTest::addRow("%s, %s of %s", wholeWindow ? "window" : "wheel", signalNames[signal],
                              name)
                    << signal << wholeWindow << use;
            }
        }
    }
}

void tst_ColorWheel::deletedBySlot()
{
    QFETCH(int, signal);
    QFETCH(bool, wholeWindow);
    QFETCH(std::function<void(ColorWheel *)>, use);
    show(ColorWheel::DiscAndValueRing);
    const auto destroy = [this, wholeWindow] {
        if (wholeWindow)
            m_window.reset();
        else
            delete m_wheel;
    };
    if (signal == 0)
        connect(m_wheel, &ColorWheel::startDragSignal, destroy);
    else if (signal == 1)
        connect(m_wheel, &ColorWheel::hsvEdited, destroy);
    else
        connect(m_wheel, &ColorWheel::stopDragSignal, destroy);

    use(m_wheel);

    QVERIFY(!m_wheel);
}

/// A slot of the start may put an end to it at once; then nothing is edited.
void tst_ColorWheel::endedBySlot()
{
    show(ColorWheel::DiscAndValueRing);
    connect(m_wheel, &ColorWheel::startDragSignal, m_wheel, &QWidget::hide);
    WheelLog log(m_wheel);

    WheelPointer pointer(m_wheel);
    pointer.press(polar(0, 40));
    pointer.release();

    QCOMPARE(m_wheel->hue(), 0.25);
    QCOMPARE(log.take().split(QLatin1Char(' ')).count(QStringLiteral("edit")), 0);
}

/// A dialog opened by a slot takes the activation, which ends the drag.
void tst_ColorWheel::dialogInASlot()
{
    show(ColorWheel::DiscAndValueRing);
    WheelLog log(m_wheel);
    connect(
        m_wheel, &ColorWheel::hsvEdited, m_wheel,
        [this] {
            QDialog dialog(m_wheel->window());
            QTimer::singleShot(0, &dialog, &QDialog::accept);
            QEvent deactivation(QEvent::WindowDeactivate);
            QCoreApplication::sendEvent(m_wheel, &deactivation);
            dialog.exec();
        },
        Qt::DirectConnection);

    WheelPointer pointer(m_wheel);
    pointer.press(polar(0, 40));
    pointer.move(polar(90, 40));
    pointer.release();

    QCOMPARE(log.take(), QStringLiteral("start edit stop"));
}

void tst_ColorWheel::accessibleInterface()
{
    m_wheel->setHsv(210 / 360.0, 0.67, 0.6);
    QAccessibleInterface *const wheel = QAccessible::queryAccessibleInterface(m_wheel);

    QCOMPARE(wheel->role(), QAccessible::ColorChooser);
    QCOMPARE(wheel->text(QAccessible::Name), QStringLiteral("Color wheel"));
    QCOMPARE(wheel->text(QAccessible::Value),
             QStringLiteral("Hue 210 degrees, saturation 67 percent, brightness 60 percent"));
    m_wheel->setAccessibleName(QStringLiteral("Lamp"));
    QCOMPARE(wheel->text(QAccessible::Name), QStringLiteral("Lamp"));
    m_wheel->setHsv(0.9999, 0.666, 0.337);
    QCOMPARE(wheel->text(QAccessible::Value),
             QStringLiteral("Hue 0 degrees, saturation 67 percent, brightness 34 percent"));
}

void tst_ColorWheel::accessibleSliders()
{
    m_wheel->setHsv(0.25, 0.5, 0.75);
    QAccessibleInterface *const wheel = QAccessible::queryAccessibleInterface(m_wheel);
    const QStringList names{QStringLiteral("Hue"), QStringLiteral("Saturation"),
                            QStringLiteral("Brightness")};
    const double maxima[] = {360, 100, 100};
    const double values[] = {90, 50, 75};

    QCOMPARE(wheel->childCount(), 3);
    QVERIFY(!wheel->child(-1));
    QVERIFY(!wheel->child(3));
    QVERIFY(!wheel->childAt(0, 0));
    QCOMPARE(wheel->indexOfChild(wheel), -1);
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface *const slider = wheel->child(i);
        QVERIFY(slider->isValid());
        QCOMPARE(wheel->indexOfChild(slider), i);
        QCOMPARE(slider->parent(), wheel);
        QCOMPARE(slider->role(), QAccessible::Slider);
        QCOMPARE(slider->text(QAccessible::Name), names[i]);
        QCOMPARE(slider->text(QAccessible::Value), QString::number(values[i]));
        QCOMPARE(slider->text(QAccessible::Help), QString());
        QCOMPARE(slider->rect(), wheel->rect());
        QCOMPARE(slider->window(), wheel->window());
        QCOMPARE(slider->childCount(), 0);
        QVERIFY(!slider->child(0) && !slider->childAt(0, 0) && !slider->object());
        QCOMPARE(slider->indexOfChild(wheel), -1);
        QVERIFY(!slider->actionInterface());
        QVERIFY(!slider->state().disabled);
        QAccessibleValueInterface *const value = slider->valueInterface();
        QCOMPARE(value->minimumValue().toDouble(), 0.0);
        QCOMPARE(value->maximumValue().toDouble(), maxima[i]);
        QCOMPARE(value->currentValue().toDouble(), values[i]);
        QCOMPARE(value->minimumStepSize().toDouble(), 1.0);
    }
    m_wheel->setEnabled(false);
    QVERIFY(wheel->child(0)->state().disabled);
}

void tst_ColorWheel::accessibleEdit()
{
    m_wheel->setHsv(0.25, 0.5, 0.75);
    WheelLog log(m_wheel);
    QAccessibleInterface *const wheel = QAccessible::queryAccessibleInterface(m_wheel);
    const auto set = [wheel](int child, double value) {
        wheel->child(child)->valueInterface()->setCurrentValue(value);
    };

    set(0, 180);
    QCOMPARE(log.take(), QStringLiteral("start edit stop"));
    QCOMPARE(m_wheel->hue(), 0.5);
    set(1, 30);
    QCOMPARE(m_wheel->saturation(), 0.3);
    set(2, 10);
    QCOMPARE(m_wheel->value(), 0.1);
    log.take();

    set(2, 10); // the same
    QCOMPARE(log.take(), QString());
    m_wheel->setEnabled(false);
    set(2, 20);
    QCOMPARE(m_wheel->value(), 0.1);
}

void tst_ColorWheel::accessibleEditOfBadNumbers()
{
    m_wheel->setHsv(0.25, 0.5, 0.75);
    QAccessibleInterface *const wheel = QAccessible::queryAccessibleInterface(m_wheel);
    const auto set = [wheel](int child, const QVariant &value) {
        wheel->child(child)->valueInterface()->setCurrentValue(value);
    };

    set(0, kNaN);
    set(0, QStringLiteral("red"));
    QCOMPARE(m_wheel->hue(), 0.25);
    set(0, 360);
    QCOMPARE(m_wheel->hue(), 0.0);
    set(1, kInfinity);
    QCOMPARE(m_wheel->saturation(), 1.0);
    set(2, -5);
    QCOMPARE(m_wheel->value(), 0.0);
}

QTEST_MAIN(tst_ColorWheel)
#include "tst_ColorWheel.moc"
