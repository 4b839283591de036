#include "core/ColorControl.h"
#include "core/ColorWheel.h"
#include "core/Slider.h"

#include "support/ColorClient.h"
#include "support/WheelPointer.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QtTest>

#include <cmath>
#include <memory>

using namespace Tessark::UI;

/// A wheel that a control made: what the user does to it, as the control and its client see it.
class tst_ColorWheelInControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dragOrder();
    void emptyDragHasNoCheckPoint();
    void escapeHasNoCheckPoint();
    void keyIsOneInteraction();
    void mouseWheelIsOneInteraction();
    void hideEndsInOrder();
    void otherWidgetsFollow();
    void blockedWheelIsFollowed();
    void clientSetsAnotherColor();
    void echoKeepsTheMarker();
    void setRingValueAsksTheControl();
    void clientDeletes_data();
    void clientDeletes();
    void wheelOutlivesTheControl();

private:
    std::unique_ptr<ColorClient> m_client;
    QPointer<ColorControl> m_control;
    std::unique_ptr<QWidget> m_window;
    QPointer<ColorWheel> m_wheel; // child of m_window, of 160 x 160, with disc and ring
};

namespace {

constexpr QPointF kRight(120, 80); // on the disc, towards red
constexpr QPointF kTop(80, 30);    // towards green and yellow

bool isNear(double actual, double expected)
{
    return std::abs(actual - expected) < 1e-6;
}

} // namespace

void tst_ColorWheelInControl::init()
{
    m_client = std::make_unique<ColorClient>();
    m_control = new ColorControl(m_client.get());
    m_control->setColorRGBA(0.2f, 0.4f, 0.5f, 0.75f);
    m_window = std::make_unique<QWidget>();
    m_wheel = m_control->createColorWheel();
    m_wheel->setParent(m_window.get());
    m_wheel->setDisplayMode(ColorWheel::DiscAndValueRing);
    m_wheel->resize(160, 160);
    m_window->resize(160, 160);
    m_window->show();
    m_window->activateWindow();
    m_wheel->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_client->watch(m_control);
    ColorClient *const client = m_client.get();
    connect(m_wheel, &ColorWheel::startDragSignal, m_control,
            [client] { client->note(QStringLiteral("start")); });
    connect(m_wheel, &ColorWheel::hsvEdited, m_control,
            [client] { client->note(QStringLiteral("edit")); });
    connect(m_wheel, &ColorWheel::stopDragSignal, m_control,
            [client] { client->note(QStringLiteral("stop")); });
}

void tst_ColorWheelInControl::cleanup()
{
    m_window.reset();
    delete m_control;
}

void tst_ColorWheelInControl::dragOrder()
{
    WheelPointer pointer(m_wheel);

    pointer.press(kRight);
    QVERIFY(m_control->isInteracting());
    pointer.move(kTop);
    pointer.release();

    QCOMPARE(m_client->take(), QStringLiteral("start started changed color edit changed color edit "
                                              "check finished stop"));
    QVERIFY(!m_control->isInteracting());
    QCOMPARE(m_control->hue(), m_wheel->hue());
    QCOMPARE(m_control->saturation(), m_wheel->saturation());
    QCOMPARE(m_control->alpha(), 0.75f);
}

void tst_ColorWheelInControl::emptyDragHasNoCheckPoint()
{
    m_wheel->setInteractionMode(ColorWheel::Relative);
    WheelPointer pointer(m_wheel);

    pointer.press(kRight);
    pointer.release();

    QCOMPARE(m_client->take(), QStringLiteral("start started finished stop"));
}

void tst_ColorWheelInControl::escapeHasNoCheckPoint()
{
    const double hue = m_wheel->hue();
    WheelPointer pointer(m_wheel);

    pointer.press(kRight);
    QTest::keyClick(m_wheel, Qt::Key_Escape);
    pointer.release();

    QCOMPARE(m_client->take(),
             QStringLiteral("start started changed color edit changed color edit finished stop"));
    QCOMPARE(m_control->hue(), hue);
    QVERIFY(isNear(m_control->red(), 0.2f));
}

void tst_ColorWheelInControl::keyIsOneInteraction()
{
    QTest::keyPress(m_wheel, Qt::Key_PageUp);
    QTest::keyRelease(m_wheel, Qt::Key_PageUp);

    QCOMPARE(m_client->take(), QStringLiteral("start started changed color edit check finished "
                                              "stop"));
    QVERIFY(isNear(m_control->value(), 0.55));
}

void tst_ColorWheelInControl::mouseWheelIsOneInteraction()
{
    for (int i = 0; i < 2; ++i) {
        QWheelEvent event(kRight, kRight, QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_wheel, &event);
    }
    QTRY_VERIFY(!m_control->isInteracting());

    QCOMPARE(m_client->take(), QStringLiteral("start started changed color edit changed color edit "
                                              "check finished stop"));
}

void tst_ColorWheelInControl::hideEndsInOrder()
{
    WheelPointer pointer(m_wheel);

    pointer.press(kRight);
    m_wheel->hide();

    QCOMPARE(m_client->take(),
             QStringLiteral("start started changed color edit check finished stop"));
}

void tst_ColorWheelInControl::otherWidgetsFollow()
{
    const std::unique_ptr<ColorWheel> other(m_control->createColorWheel());
    const std::unique_ptr<Slider> red(m_control->createRedSlider(Qt::Horizontal));
    QSignalSpy edits(other.get(), &ColorWheel::hsvEdited);

    WheelPointer(m_wheel).press(kRight);

    QCOMPARE(other->hue(), m_wheel->hue());
    QCOMPARE(other->saturation(), m_wheel->saturation());
    QVERIFY(isNear(red->realValue(), m_control->red()));
    QVERIFY(edits.isEmpty());
}

void tst_ColorWheelInControl::blockedWheelIsFollowed()
{
    const QSignalBlocker blocker(m_wheel.data());
    WheelPointer pointer(m_wheel);

    pointer.press(kRight);
    pointer.release();

    QCOMPARE(m_client->take(), QStringLiteral("started changed color check finished"));
    QCOMPARE(m_control->hue(), m_wheel->hue());
}

/// The client's colour wins; then the drag goes on from the pointer with the value that was set.
void tst_ColorWheelInControl::clientSetsAnotherColor()
{
    m_client->onColor = [this](const std::array<float, 4> &) {
        m_control->setColorRGBA(0.25f, 0.25f, 0.125f, 1);
    };
    WheelPointer pointer(m_wheel);

    pointer.press(kRight);
    QVERIFY(isNear(m_wheel->value(), 0.25));
    QVERIFY(isNear(m_wheel->saturation(), 0.5));
    QVERIFY(isNear(m_wheel->hue(), 1.0 / 6));
    m_client->onColor = nullptr;
    pointer.move(kTop);
    pointer.release();

    QVERIFY(isNear(m_wheel->hue(), 0.25));
    QVERIFY(isNear(m_wheel->saturation(), 50 / 59.0));
    QVERIFY(isNear(m_wheel->value(), 0.25));
}

void tst_ColorWheelInControl::echoKeepsTheMarker()
{
    m_client->onColor = [this](const std::array<float, 4> &color) {
        const auto stored = [](float fraction) { return std::floor(fraction * 255) / 255; };
        m_control->setColorRGBA(stored(color[0]), stored(color[1]), stored(color[2]),
                                stored(color[3]));
    };
    WheelPointer pointer(m_wheel);

    pointer.press(QPointF(82, 79)); // a grey with hardly any hue
    pointer.release();

    QVERIFY(isNear(m_wheel->hue(), std::atan2(1, 2) / (2 * M_PI)));
    QVERIFY(isNear(m_wheel->saturation(), std::sqrt(5.0) / 59));
}

void tst_ColorWheelInControl::setRingValueAsksTheControl()
{
    const std::unique_ptr<ColorWheel> other(m_control->createColorWheel());

    m_wheel->setRingValue(0.25f);

    QCOMPARE(m_client->take(), QStringLiteral("changed"));
    QCOMPARE(m_control->value(), 0.25);
    QCOMPARE(m_wheel->value(), 0.25);
    QCOMPARE(other->value(), 0.25);
}

void tst_ColorWheelInControl::clientDeletes_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<bool>("atCheckPoint");

    for (const char *victim : {"wheel", "control", "window"}) {
        QTest::addRow("%s in the change", victim) << QString::fromLatin1(victim) << false;
        QTest::addRow("%s at the check point", victim) << QString::fromLatin1(victim) << true;
    }
}

void tst_ColorWheelInControl::clientDeletes()
{
    QFETCH(QString, victim);
    QFETCH(bool, atCheckPoint);
    const auto destroy = [&] {
        if (victim == QLatin1String("wheel"))
            delete m_wheel;
        else if (victim == QLatin1String("control"))
            delete m_control;
        else
            m_window.reset();
    };
    if (atCheckPoint)
        m_client->onCheckPoint = destroy;
    else
        m_client->onColor = [&](const std::array<float, 4> &) { destroy(); };

    WheelPointer pointer(m_wheel);
    pointer.press(kRight);
    if (m_wheel) {
        pointer.move(kTop);
        pointer.release();
    }

    QCOMPARE(m_wheel.isNull(), victim != QLatin1String("control"));
    QCOMPARE(m_control.isNull(), victim == QLatin1String("control"));
}

void tst_ColorWheelInControl::wheelOutlivesTheControl()
{
    delete m_control;
    QSignalSpy edits(m_wheel, &ColorWheel::hsvEdited);
    WheelPointer pointer(m_wheel);

    pointer.press(kRight);
    pointer.release();
    m_wheel->setRingValue(0.9f);

    QCOMPARE(edits.count(), 1);
    QVERIFY(isNear(m_wheel->value(), 0.9f));
}

QTEST_MAIN(tst_ColorWheelInControl)
#include "tst_ColorWheelInControl.moc"
