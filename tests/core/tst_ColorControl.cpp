#include "core/ColorControl.h"

#include "core/ColorMath_p.h"
#include "core/ColorWheel.h"
#include "core/Slider.h"
#include "support/ColorClient.h"
#include "support/PaintCounter.h"
#include "support/RealSliders.h"
#include "support/WheelPointer.h"

#include <QColor>
#include <QPointer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

using namespace Tessark::UI;

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

float roundedTo(float fraction, float steps)
{
    return std::round(fraction * steps) / steps;
}

float truncatedTo(float fraction, float steps)
{
    return std::floor(fraction * steps) / steps;
}

} // namespace

Q_DECLARE_METATYPE(std::function<float(float)>)

class tst_ColorControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fresh();
    void nullClient();
    void createdWidgetsShowTheColour();
    void slidersAreNamed();

    void setColorIsExactAndSilent();
    void setColorTakesBadNumbers_data();
    void setColorTakesBadNumbers();
    void setEqualColorIsSilent();
    void greyKeepsTheHue_data();
    void greyKeepsTheHue();
    void blackKeepsHueAndSaturation();

    void sliderEditReachesAll();
    void sliderEditOrder();
    void alphaEditLeavesTheRest();
    void alphaPassesThroughUnchanged();
    void programmaticEditsCount_data();
    void programmaticEditsCount();
    void keyAndWheelEditsAreComplete();
    void unchangedValueTellsNothing();
    void twoSlidersOfAChannel();

    void dragOrder();
    void emptyDragHasNoCheckPoint();
    void cancelledDrag();
    void cancelBringsTheHueBack();
    void dragBackToTheBeginningBringsTheHueBack();
    void cancelAfterTheClientSetAnotherColour();
    void twoDragsAtOnce();
    void hideDisableEndTheDrag();

    void wheelDragOrder();
    void wheelEditReachesAll();
    void wheelOnAGreyTellsNobody();
    void wheelCancelIsExact();
    void wheelWhoseSignalsAreBlocked();
    void clientSetsAnotherColourInAWheelDrag();

    void echoKeepsTheWidgets_data();
    void echoKeepsTheWidgets();
    void echoDuringADragDoesNotTurnTheHue();
    void justOutsideTheDistanceIsTaken();
    void memoryEndsWithAnotherColour();
    void editAfterAnEchoStartsFromTheHostsNumbers();
    void ringValueEcho();
    void wheelSettersGoThroughTheControl();

    void blockedControl();
    void blockedSliderIsFollowed_data();
    void blockedSliderIsFollowed();
    void blockedWhileDragging();

    void clientMaySetAnotherColour();
    void clientMaySetFromChanged();
    void clientMayDelete_data();
    void clientMayDelete();
    void checkPointMayDelete_data();
    void checkPointMayDelete();
    void signalMayDeleteTheControl_data();
    void signalMayDeleteTheControl();
    void clientMayChangeInTheCall();
    void clientChangedDuringADrag();

    void widgetsOutliveTheControl();
    void controlOutlivesItsWidgets();
    void dyingWidgetEndsItsDrag();
    void manyRounds();

    void gradientsShowTheMove();
    void updatesOnlyWhatChanged();

private:
    void build();
    Slider *slider(int channel) const { return m_sliders.at(channel); }
    QString shown() const;
    void destroy(const QString &victim);

    std::unique_ptr<ColorClient> m_client;
    QPointer<ColorControl> m_control;
    std::unique_ptr<QWidget> m_window;
    QPointer<ColorWheel> m_wheel;
    QVector<QPointer<Slider>> m_sliders; // red, green, blue, alpha
};

void tst_ColorControl::init()
{
    m_client = std::make_unique<ColorClient>();
    m_control = new ColorControl(m_client.get());
    m_client->watch(m_control);
    build();
}

void tst_ColorControl::cleanup()
{
    m_window.reset();
    delete m_control;
    m_client.reset();
}

void tst_ColorControl::build()
{
    m_window = std::make_unique<QWidget>();
    auto *const layout = new QVBoxLayout(m_window.get());
    m_wheel = m_control->createColorWheel();
    m_wheel->setFixedSize(160, 160);
    layout->addWidget(m_wheel);
    m_sliders = {
        m_control->createRedSlider(Qt::Horizontal), m_control->createGreenSlider(Qt::Horizontal),
        m_control->createBlueSlider(Qt::Horizontal), m_control->createAlphaSlider(Qt::Horizontal)};
    for (const QPointer<Slider> &each : std::as_const(m_sliders)) {
        layout->addWidget(each);
        each->setFixedSize(300, 30);
    }
    m_window->show();
}

/// The sliders' values in thousandths.
QString tst_ColorControl::shown() const
{
    QStringList values;
    for (const QPointer<Slider> &each : m_sliders)
        values << QString::number(qRound(each->realValue() * 1000));
    return values.join(QLatin1Char(' '));
}

void tst_ColorControl::fresh()
{
    QObject parent;
    ColorClient client;
    auto *const control = new ColorControl(&client, &parent);

    QCOMPARE(control->parent(), &parent);
    QCOMPARE(control->client(), static_cast<IColorControlClient *>(&client));
    QCOMPARE(control->red(), 0.0F);
    QCOMPARE(control->green(), 0.0F);
    QCOMPARE(control->blue(), 0.0F);
    QCOMPARE(control->alpha(), 1.0F);
    QCOMPARE(control->hue(), 0.0);
    QCOMPARE(control->saturation(), 0.0);
    QCOMPARE(control->value(), 0.0);
    QVERIFY(!control->isInteracting());
    QVERIFY(control->metaObject()->indexOfSlot("setColorRGBA(float,float,float,float)") >= 0);
}

void tst_ColorControl::nullClient()
{
    m_control->setClient(nullptr);

    slider(0)->setRealValue(0.5);
    QTest::mouseClick(slider(1), Qt::LeftButton, {}, QPoint(150, 15));

    QCOMPARE(m_control->red(), 0.5F);
    QVERIFY(m_control->green() > 0.4F);
    QCOMPARE(m_client->take(), QStringLiteral("changed started changed finished"));
}

void tst_ColorControl::createdWidgetsShowTheColour()
{
    m_control->setColorRGBA(0.25F, 0.5F, 0.75F, 0.125F);

    const std::unique_ptr<Slider> red(m_control->createRedSlider(Qt::Vertical));
    const std::unique_ptr<Slider> alpha(m_control->createAlphaSlider(Qt::Vertical));
    const std::unique_ptr<ColorWheel> wheel(m_control->createColorWheel());

    QCOMPARE(red->orientation(), Qt::Vertical);
    QVERIFY(!red->parent());
    QVERIFY(!wheel->parent());
    QCOMPARE(red->realValue(), 0.25);
    QCOMPARE(alpha->realValue(), 0.125);
    QCOMPARE(wheel->hue(), m_control->hue());
    QCOMPARE(wheel->value(), 0.75);
}

void tst_ColorControl::slidersAreNamed()
{
    QStringList names;
    for (const QPointer<Slider> &each : std::as_const(m_sliders))
        names << QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name);

    QCOMPARE(names, (QStringList{QStringLiteral("Red"), QStringLiteral("Green"),
                                 QStringLiteral("Blue"), QStringLiteral("Alpha")}));
}

void tst_ColorControl::setColorIsExactAndSilent()
{
    QSignalSpy spy(slider(0), &QSlider::valueChanged);

    m_control->setColorRGBA(0.123456F, 0.3F, 0.9F, 0.7F);

    QCOMPARE(m_control->red(), 0.123456F);
    QCOMPARE(m_control->green(), 0.3F);
    QCOMPARE(m_control->blue(), 0.9F);
    QCOMPARE(m_control->alpha(), 0.7F);
    QVERIFY(slider(0)->realValue() == double(0.123456F));
    QCOMPARE(shown(), QStringLiteral("123 300 900 700"));
    const Rgb rgb = rgbOf({m_wheel->hue(), m_wheel->saturation(), m_wheel->value()});
    QVERIFY(std::abs(rgb.red - double(0.123456F)) < 1e-15);
    QCOMPARE(m_client->take(), QStringLiteral("changed"));
    QVERIFY(spy.isEmpty());
}

void tst_ColorControl::setColorTakesBadNumbers_data()
{
    QTest::addColumn<float>("given");
    QTest::addColumn<float>("expected");

    QTest::newRow("NaN") << kNaN << 0.0F;
    QTest::newRow("infinity") << kInfinity << 1.0F;
    QTest::newRow("minus infinity") << -kInfinity << 0.0F;
    QTest::newRow("too large") << 1.5F << 1.0F;
    QTest::newRow("negative") << -0.5F << 0.0F;
}

void tst_ColorControl::setColorTakesBadNumbers()
{
    QFETCH(float, given);
    QFETCH(float, expected);
    m_control->setColorRGBA(0.5F, 0.5F, 0.5F, 0.5F);

    m_control->setColorRGBA(given, given, given, given);

    QCOMPARE(m_control->red(), expected);
    QCOMPARE(m_control->green(), expected);
    QCOMPARE(m_control->blue(), expected);
    QCOMPARE(m_control->alpha(), expected);
}

void tst_ColorControl::setEqualColorIsSilent()
{
    m_control->setColorRGBA(0.1F, 0.2F, 0.3F, 0.4F);
    m_client->take();

    m_control->setColorRGBA(0.1F, 0.2F, 0.3F, 0.4F);

    QCOMPARE(m_client->take(), QString());
}

void tst_ColorControl::greyKeepsTheHue_data()
{
    QTest::addColumn<bool>("bySliders");

    QTest::newRow("set") << false;
    QTest::newRow("sliders") << true;
}

void tst_ColorControl::greyKeepsTheHue()
{
    QFETCH(bool, bySliders);
    m_control->setColorRGBA(0.5F, 0.75F, 0.5F, 1);
    QCOMPARE(m_control->hue(), 1.0 / 3);

    if (bySliders)
        slider(1)->setRealValue(0.5);
    else
        m_control->setColorRGBA(0.5F, 0.5F, 0.5F, 1);

    QCOMPARE(m_control->hue(), 1.0 / 3);
    QCOMPARE(m_control->saturation(), 0.0);
    QCOMPARE(m_wheel->hue(), 1.0 / 3);
    QCOMPARE(m_wheel->saturation(), 0.0);
}

void tst_ColorControl::blackKeepsHueAndSaturation()
{
    m_control->setColorRGBA(0, 0, 0.5F, 1);

    slider(2)->setRealValue(0);

    QCOMPARE(m_control->hue(), 2.0 / 3);
    QCOMPARE(m_control->saturation(), 1.0);
    QCOMPARE(m_control->value(), 0.0);
    QCOMPARE(m_wheel->saturation(), 1.0);

    m_control->setColorRGBA(0, 0, 0, 0.5F);
    QCOMPARE(m_control->hue(), 2.0 / 3);
    QCOMPARE(m_control->saturation(), 1.0);
}

void tst_ColorControl::sliderEditReachesAll()
{
    m_control->setColorRGBA(0.2F, 0.4F, 0.6F, 0.8F);

    slider(1)->setRealValue(0.9);

    QCOMPARE(m_control->green(), 0.9F);
    QCOMPARE(shown(), QStringLiteral("200 900 600 800"));
    const Hsv expected = hsvOf({double(0.2F), 0.9, double(0.6F)}, {});
    QCOMPARE(m_control->hue(), expected.hue);
    QCOMPARE(m_wheel->hue(), expected.hue);
    QCOMPARE(m_wheel->saturation(), expected.saturation);
    QCOMPARE(m_wheel->value(), expected.value);
    QCOMPARE(m_client->last, (std::array<float, 4>{0.2F, 0.9F, 0.6F, 0.8F}));
}

void tst_ColorControl::sliderEditOrder()
{
    m_control->setColorRGBA(0.2F, 0.4F, 0.6F, 0.8F);
    m_client->take();
    QStringList states;
    connect(m_control, &ColorControl::changed, this, [&] {
        states << shown() + QString::number(double(m_control->red()))
                      + QString::number(m_wheel->value());
    });
    connect(slider(0), &Slider::realValueChanged, this,
            [this] { m_client->note(QStringLiteral("real")); });
    connect(slider(0), &QSlider::valueChanged, this,
            [this] { m_client->note(QStringLiteral("int")); });

    slider(0)->setRealValue(0.7);

    QCOMPARE(m_client->take(), QStringLiteral("changed color check real int"));
    QCOMPARE(states, QStringList{QStringLiteral("700 400 600 8000.70.7")});
}

void tst_ColorControl::alphaEditLeavesTheRest()
{
    m_control->setColorRGBA(0.5F, 0.5F, 0.25F, 1);
    const double hue = m_control->hue();
    m_client->take();

    slider(3)->setRealValue(0.25);

    QCOMPARE(m_control->alpha(), 0.25F);
    QCOMPARE(m_control->hue(), hue);
    QCOMPARE(m_client->last, (std::array<float, 4>{0.5F, 0.5F, 0.25F, 0.25F}));
    QCOMPARE(m_client->take(), QStringLiteral("changed color check"));
}

void tst_ColorControl::alphaPassesThroughUnchanged()
{
    m_control->setColorRGBA(0.5F, 0.5F, 0.25F, 0.3F);

    slider(0)->setRealValue(0.25);

    QCOMPARE(m_client->last[3], 0.3F);
    QCOMPARE(m_control->alpha(), 0.3F);
}

void tst_ColorControl::programmaticEditsCount_data()
{
    QTest::addColumn<bool>("byInteger");

    QTest::newRow("setRealValue") << false;
    QTest::newRow("setValue") << true;
}

void tst_ColorControl::programmaticEditsCount()
{
    QFETCH(bool, byInteger);

    if (byInteger)
        slider(0)->setValue(500);
    else
        slider(0)->setRealValue(0.5);

    QCOMPARE(m_client->take(), QStringLiteral("changed color check"));
    QCOMPARE(m_control->red(), 0.5F);
    slider(0)->setRange(0, 100); // the same channel on other positions
    QCOMPARE(m_client->take(), QString());
    slider(0)->setRealRange(0.75, 1); // clamps the channel
    QCOMPARE(m_client->take(), QStringLiteral("changed color check"));
    QCOMPARE(m_control->red(), 0.75F);
}

void tst_ColorControl::keyAndWheelEditsAreComplete()
{
    QTest::keyClick(slider(0), Qt::Key_Right);
    QCOMPARE(m_client->take(), QStringLiteral("changed color check"));
    QCOMPARE(m_control->red(), 0.01F);

    rollWheel(slider(0));
    QCOMPARE(m_client->take(), QStringLiteral("changed color check"));

    valueInterfaceOf(slider(0))->setCurrentValue(0.5);
    QCOMPARE(m_client->take(), QStringLiteral("changed color check"));
    QCOMPARE(m_control->red(), 0.5F);

    slider(0)->triggerAction(QAbstractSlider::SliderPageStepAdd);
    QCOMPARE(m_client->take(), QStringLiteral("changed color check"));
}

void tst_ColorControl::unchangedValueTellsNothing()
{
    QTest::keyClick(slider(0), Qt::Key_Home);
    slider(0)->setRealValue(0);
    slider(0)->setRealValue(-3);

    QCOMPARE(m_client->take(), QString());
}

void tst_ColorControl::twoSlidersOfAChannel()
{
    const std::unique_ptr<Slider> second(m_control->createRedSlider(Qt::Vertical));

    slider(0)->setRealValue(0.3);
    QVERIFY(second->realValue() == 0.3);

    second->setRealValue(0.6);
    QVERIFY(slider(0)->realValue() == 0.6);
    QCOMPARE(m_client->take(), QStringLiteral("changed color check changed color check"));
}

void tst_ColorControl::dragOrder()
{
    connect(slider(0), &QSlider::sliderPressed, this,
            [this] { m_client->note(QStringLiteral("pressed")); });
    connect(slider(0), &QSlider::sliderReleased, this,
            [this] { m_client->note(QStringLiteral("released")); });
    connect(m_control, &ColorControl::interactionStarted, this,
            [this] { QVERIFY(m_control->isInteracting()); });
    connect(m_control, &ColorControl::interactionFinished, this,
            [this] { QVERIFY(!m_control->isInteracting()); });
    m_client->onCheckPoint = [this] { QVERIFY(m_control->isInteracting()); };

    press(slider(0), QPoint(100, 15));
    QVERIFY(m_control->isInteracting());
    move(slider(0), QPoint(150, 15));
    release(slider(0), QPoint(150, 15));

    QCOMPARE(m_client->take(), QStringLiteral("pressed started changed color changed color check "
                                              "finished released"));
    QVERIFY(!m_control->isInteracting());
}

void tst_ColorControl::emptyDragHasNoCheckPoint()
{
    m_control->setColorRGBA(0, 0, 0, 1);
    const QPoint handle(8, 15);

    press(slider(0), handle);
    release(slider(0), handle);

    QCOMPARE(m_client->take(), QStringLiteral("started finished"));
}

void tst_ColorControl::cancelledDrag()
{
    m_control->setColorRGBA(0.12345F, 0.5F, 0.25F, 1);
    m_client->take();

    press(slider(0), QPoint(200, 15));
    QCOMPARE(m_client->take(), QStringLiteral("started changed color"));
    QTest::keyClick(slider(0), Qt::Key_Escape);
    release(slider(0), QPoint(200, 15));

    QCOMPARE(m_client->take(), QStringLiteral("changed color finished"));
    QCOMPARE(m_client->last, (std::array<float, 4>{0.12345F, 0.5F, 0.25F, 1}));
    QCOMPARE(m_control->red(), 0.12345F);
}

void tst_ColorControl::cancelBringsTheHueBack()
{
    m_control->setColorRGBA(0.25F, 0.5F, 0.25F, 1);
    m_control->setColorRGBA(0.25F, 0.25F, 0.25F, 1);
    QCOMPARE(m_control->hue(), 1.0 / 3);

    press(slider(0), QPoint(200, 15));
    QCOMPARE(m_control->hue(), 0.0);
    QTest::keyClick(slider(0), Qt::Key_Escape);

    QCOMPARE(m_control->hue(), 1.0 / 3);
    QCOMPARE(m_wheel->hue(), 1.0 / 3);
}

void tst_ColorControl::dragBackToTheBeginningBringsTheHueBack()
{
    m_control->setColorRGBA(0.25F, 0.5F, 0.25F, 1);
    m_control->setColorRGBA(0.25F, 0.25F, 0.25F, 1);

    press(slider(0), QPoint(200, 15));
    slider(0)->setRealValue(0.25);
    release(slider(0), QPoint(200, 15));

    QCOMPARE(m_control->hue(), 1.0 / 3);
}

void tst_ColorControl::cancelAfterTheClientSetAnotherColour()
{
    m_control->setColorRGBA(0.25F, 0.25F, 0.25F, 1);
    press(slider(0), QPoint(200, 15));
    m_control->setColorRGBA(0, 0, 1, 0.5F);
    m_client->take();

    QTest::keyClick(slider(0), Qt::Key_Escape); // takes back what the slider did

    QCOMPARE(m_control->red(), 0.25F);
    QCOMPARE(m_control->blue(), 1.0F);
    QCOMPARE(m_control->alpha(), 0.5F);
    QCOMPARE(m_client->take(), QStringLiteral("changed color finished"));
}

void tst_ColorControl::twoDragsAtOnce()
{
    press(slider(0), QPoint(200, 15));
    press(slider(1), QPoint(200, 15));
    m_client->take();

    release(slider(0), QPoint(200, 15));
    QCOMPARE(m_client->take(), QStringLiteral("check finished"));
    QVERIFY(m_control->isInteracting());
    QTest::keyClick(slider(1), Qt::Key_Escape);
    QCOMPARE(m_client->take(), QStringLiteral("changed color finished"));

    QVERIFY(!m_control->isInteracting());
    QVERIFY(m_control->red() > 0.5F);
    QCOMPARE(m_control->green(), 0.0F);
}

void tst_ColorControl::hideDisableEndTheDrag()
{
    press(slider(0), QPoint(200, 15));
    m_window->hide();
    QCOMPARE(m_client->take(), QStringLiteral("started changed color check finished"));

    m_window->show();
    press(slider(1), QPoint(200, 15));
    m_window->setEnabled(false);
    QCOMPARE(m_client->take(), QStringLiteral("started changed color check finished"));
}

void tst_ColorControl::wheelDragOrder()
{
    m_control->setColorRGBA(0.5F, 0.25F, 0.25F, 1);
    m_client->take();
    connect(m_wheel, &ColorWheel::startDragSignal, this,
            [this] { m_client->note(QStringLiteral("start")); });
    connect(m_wheel, &ColorWheel::stopDragSignal, this,
            [this] { m_client->note(QStringLiteral("stop")); });
    WheelPointer pointer(m_wheel);

    pointer.press({80, 40});
    pointer.move({80, 110});
    pointer.release();
    QCOMPARE(m_client->take(),
             QStringLiteral("start started changed color changed color check finished stop"));

    pointer.press({80, 110}); // on the marker: nothing moves
    pointer.release();
    QCOMPARE(m_client->take(), QStringLiteral("start started finished stop"));
}

void tst_ColorControl::wheelEditReachesAll()
{
    m_control->setColorRGBA(0.5F, 0.25F, 0.25F, 0.3F);
    const std::unique_ptr<ColorWheel> second(m_control->createColorWheel());
    WheelPointer pointer(m_wheel);

    pointer.press({60, 90});
    pointer.release();

    const Hsv hsv{m_wheel->hue(), m_wheel->saturation(), m_wheel->value()};
    const Rgb rgb = rgbOf(hsv);
    QVERIFY(hsv.saturation > 0.1);
    QCOMPARE(hsv.value, 0.5);
    QVERIFY(second->hue() == hsv.hue && second->saturation() == hsv.saturation);
    QVERIFY(m_control->hue() == hsv.hue && m_control->value() == hsv.value);
    QVERIFY(slider(0)->realValue() == rgb.red);
    QVERIFY(slider(1)->realValue() == rgb.green);
    QVERIFY(slider(2)->realValue() == rgb.blue);
    QCOMPARE(m_client->last,
             (std::array<float, 4>{float(rgb.red), float(rgb.green), float(rgb.blue), 0.3F}));
}

void tst_ColorControl::wheelOnAGreyTellsNobody()
{
    slider(0)->setRealValue(0.5001);
    slider(1)->setRealValue(0.5001);
    slider(2)->setRealValue(0.5001);
    m_control->setColorRGBA(0.5F, 0.5F, 0.5F, 1); // its echo
    m_client->take();

    QTest::keyClick(m_wheel, Qt::Key_Right);

    QVERIFY(m_control->hue() > 0);
    QCOMPARE(m_control->red(), 0.5F);
    QCOMPARE(m_client->take(), QStringLiteral("started changed finished"));
}

void tst_ColorControl::wheelCancelIsExact()
{
    slider(0)->setRealValue(0.501);
    slider(1)->setRealValue(0.251);
    m_control->setColorRGBA(0.5F, 0.25F, 0, 1); // an echo: these numbers, that hue
    const double hue = m_control->hue();
    m_client->take();
    WheelPointer pointer(m_wheel);

    pointer.press({60, 90});
    QTest::keyClick(m_wheel, Qt::Key_Escape);
    pointer.release();

    QCOMPARE(m_client->take(), QStringLiteral("started changed color changed color finished"));
    QCOMPARE(m_client->last, (std::array<float, 4>{0.5F, 0.25F, 0, 1}));
    QVERIFY(m_control->hue() == hue);
}

void tst_ColorControl::wheelWhoseSignalsAreBlocked()
{
    m_wheel->blockSignals(true);
    WheelPointer pointer(m_wheel);

    pointer.press({60, 90});
    pointer.release();

    QCOMPARE(m_client->take(), QStringLiteral("started changed color check finished"));
    QVERIFY(m_control->value() == m_wheel->value());
}

/// The drag goes on from the pointer, with the control's new value for the part not dragged.
void tst_ColorControl::clientSetsAnotherColourInAWheelDrag()
{
    m_control->setColorRGBA(0.5F, 0.25F, 0.25F, 1);
    m_client->onColor = [this](const std::array<float, 4> &) {
        m_control->setColorRGBA(0.2F, 0.2F, 0.2F, 0.5F);
    };
    WheelPointer pointer(m_wheel);

    pointer.press({80, 40});
    QCOMPARE(m_wheel->value(), double(0.2F));
    QCOMPARE(m_wheel->saturation(), 0.0);
    m_client->onColor = nullptr;
    pointer.move({80, 120});
    pointer.release();

    QVERIFY(m_wheel->saturation() > 0.3);
    QVERIFY(std::abs(m_wheel->hue() - 0.75) < 1e-9);
    QCOMPARE(m_wheel->value(), double(0.2F));
    QCOMPARE(m_client->last[3], 0.5F);
}

void tst_ColorControl::echoKeepsTheWidgets_data()
{
    QTest::addColumn<std::function<float(float)>>("store");

    const auto row = [](const char *name, std::function<float(float)> store) {
        QTest::newRow(name) << std::move(store);
    };
    row("8 bits rounded", [](float f) { return roundedTo(f, 255); });
    row("8 bits truncated", [](float f) { return truncatedTo(f, 255); });
    row("16 bits", [](float f) { return roundedTo(f, 65535); });
    row("float", [](float f) { return f; });
}

void tst_ColorControl::echoKeepsTheWidgets()
{
    QFETCH(std::function<float(float)>, store);
    QRandomGenerator random(7);
    const auto dark = [&random] { return random.generateDouble() * 0.04; };

    for (int i = 0; i < 300; ++i) {
        slider(0)->setRealValue(dark());
        slider(1)->setRealValue(dark());
        slider(2)->setRealValue(dark());
        slider(3)->setRealValue(random.generateDouble());
        const double hue = m_control->hue();
        const double saturation = m_control->saturation();
        const double value = m_control->value();
        const double green = slider(1)->realValue();
        const double alpha = slider(3)->realValue();
        const std::array<float, 4> &told = m_client->last;

        const std::array<float, 4> sent{store(told[0]), store(told[1]), store(told[2]),
                                        store(told[3])};
        m_client->take();
        m_control->setColorRGBA(sent[0], sent[1], sent[2], sent[3]);

        QVERIFY(!m_client->take().contains(QStringLiteral("color")));
        QCOMPARE(m_control->red(), sent[0]);
        QCOMPARE(m_control->green(), sent[1]);
        QCOMPARE(m_control->blue(), sent[2]);
        QCOMPARE(m_control->alpha(), sent[3]);
        QVERIFY(m_control->hue() == hue && m_wheel->hue() == hue);
        QVERIFY(m_control->saturation() == saturation && m_wheel->saturation() == saturation);
        QVERIFY(m_control->value() == value && m_wheel->value() == value);
        QVERIFY(slider(1)->realValue() == green);
        QVERIFY(slider(3)->realValue() == alpha);
    }
}

/// With a host that stores bytes the hue goes the way it goes without one.
void tst_ColorControl::echoDuringADragDoesNotTurnTheHue()
{
    ColorControl undisturbed(nullptr);
    const std::unique_ptr<Slider> reference(undisturbed.createRedSlider(Qt::Horizontal));
    reference->setFixedSize(300, 30);
    for (ColorControl *control : {&undisturbed, m_control.data()})
        control->setColorRGBA(0.011F, 0.013F, 0.02F, 1);
    m_client->onColor = [this](const std::array<float, 4> &color) {
        m_control->setColorRGBA(truncatedTo(color[0], 255), truncatedTo(color[1], 255),
                                truncatedTo(color[2], 255), truncatedTo(color[3], 255));
    };
    const QPoint handle(11, 15);

    press(slider(0), handle);
    press(reference.get(), handle);
    for (int x = 11; x < 30; ++x) {
        move(slider(0), QPoint(x, 15));
        move(reference.get(), QPoint(x, 15));
        QVERIFY(slider(0)->realValue() == reference->realValue());
        QVERIFY(m_control->hue() == undisturbed.hue());
        QVERIFY(m_wheel->hue() == undisturbed.hue());
        QVERIFY(slider(1)->realValue() == double(0.013F));
    }
    QVERIFY(reference->realValue() > 0.05);
    QCOMPARE(m_control->green(), truncatedTo(0.013F, 255));
}

void tst_ColorControl::justOutsideTheDistanceIsTaken()
{
    slider(0)->setRealValue(0.5);
    const float inside = 0.5F + 1.0F / 255;
    const float outside = 0.5F + 1.0F / 255 + 3e-6F;

    m_control->setColorRGBA(inside, 0, 0, 1);
    QCOMPARE(m_control->red(), inside);
    QVERIFY(slider(0)->realValue() == 0.5);

    m_control->setColorRGBA(outside, 0, 0, 1);
    QCOMPARE(m_control->red(), outside);
    QVERIFY(slider(0)->realValue() == double(outside));
    QCOMPARE(m_control->value(), double(outside));
}

void tst_ColorControl::memoryEndsWithAnotherColour()
{
    slider(0)->setRealValue(0.5);

    m_control->setColorRGBA(0.9F, 0, 0, 1);
    m_control->setColorRGBA(0.501F, 0, 0, 1);
    QVERIFY(slider(0)->realValue() == double(0.501F));

    m_control->setColorRGBA(0.502F, 0, 0, 1); // nothing was chosen by the user since
    QVERIFY(slider(0)->realValue() == double(0.502F));

    slider(0)->setRealValue(0.5);
    m_control->setColorRGBA(0.501F, 0, 0, 0.9F); // one channel suffices
    QVERIFY(slider(0)->realValue() == double(0.501F));
}

void tst_ColorControl::editAfterAnEchoStartsFromTheHostsNumbers()
{
    slider(0)->setRealValue(0.5);
    m_control->setColorRGBA(0.503F, 0, 0, 1);

    slider(1)->setRealValue(0.25);

    QCOMPARE(m_client->last, (std::array<float, 4>{0.503F, 0.25F, 0, 1}));
    QVERIFY(slider(0)->realValue() == double(0.503F));
}

void tst_ColorControl::ringValueEcho()
{
    slider(0)->setRealValue(0.5);
    m_client->take();

    m_wheel->setRingValue(0.5F + 0.9F / 255);
    QCOMPARE(m_control->value(), 0.5);
    QCOMPARE(m_client->take(), QString());

    m_wheel->setRingValue(0.51F);
    QCOMPARE(m_control->value(), double(0.51F));
    QCOMPARE(m_client->take(), QStringLiteral("changed"));
    m_wheel->setRingValue(0.511F); // the user's choice is gone: taken exactly
    QCOMPARE(m_control->value(), double(0.511F));
    QCOMPARE(m_control->red(), 0.511F);
    QVERIFY(slider(0)->realValue() == double(0.511F));
}

void tst_ColorControl::wheelSettersGoThroughTheControl()
{
    m_control->setColorRGBA(0, 0, 0, 0.25F);
    m_client->take();

    m_wheel->setHsv(1.0 / 3, 1, 0.5);
    QCOMPARE(m_control->green(), 0.5F);
    QCOMPARE(m_control->alpha(), 0.25F);
    QCOMPARE(shown(), QStringLiteral("0 500 0 250"));
    QCOMPARE(m_client->take(), QStringLiteral("changed"));

    m_wheel->setHsv(1.0 / 3, 1, 0.5);
    m_wheel->setRingValue(0.5F);
    QCOMPARE(m_client->take(), QString());
    m_wheel->setRingValue(0);
    QCOMPARE(m_control->green(), 0.0F);
    QCOMPARE(m_control->hue(), 1.0 / 3);
    QCOMPARE(m_control->saturation(), 1.0);
}

void tst_ColorControl::blockedControl()
{
    m_control->blockSignals(true);

    press(slider(0), QPoint(200, 15));
    move(slider(0), QPoint(250, 15));
    release(slider(0), QPoint(250, 15));
    slider(1)->setRealValue(0.25);
    m_control->setColorRGBA(m_control->red(), 0.25F, 0.75F, 1);

    QCOMPARE(m_client->take(), QString());
    QVERIFY(m_control->red() > 0.7F);
    QVERIFY(!m_control->isInteracting());
    QCOMPARE(shown().section(QLatin1Char(' '), 1), QStringLiteral("250 750 1000"));
    QCOMPARE(m_wheel->hue(), m_control->hue());
}

void tst_ColorControl::blockedSliderIsFollowed_data()
{
    QTest::addColumn<int>("road");
    QTest::addColumn<QString>("calls");

    const QString complete = QStringLiteral("changed color check");
    QTest::newRow("setRealValue") << 0 << complete;
    QTest::newRow("setValue") << 1 << complete;
    QTest::newRow("key") << 2 << complete;
    QTest::newRow("mouse wheel") << 3 << complete;
    QTest::newRow("drag") << 4 << QStringLiteral("started changed color check finished");
    QTest::newRow("cancelled drag") << 5
                                    << QStringLiteral("started changed color changed color "
                                                      "finished");
    QTest::newRow("real range") << 6 << complete;
}

void tst_ColorControl::blockedSliderIsFollowed()
{
    QFETCH(int, road);
    Slider *const red = slider(0);
    red->blockSignals(true);

    if (road == 0)
        red->setRealValue(0.5);
    else if (road == 1)
        red->setValue(500);
    else if (road == 2)
        QTest::keyClick(red, Qt::Key_End);
    else if (road == 3)
        rollWheel(red);
    else if (road < 6)
        press(red, QPoint(200, 15));
    else
        red->setRealRange(0.5, 1);
    if (road == 5)
        QTest::keyClick(red, Qt::Key_Escape);
    if (road == 4 || road == 5)
        release(red, QPoint(200, 15));

    QTEST(m_client->take(), "calls");
    QCOMPARE(double(m_control->red()), double(float(red->realValue())));
    QCOMPARE(m_wheel->value(), red->realValue());
}

void tst_ColorControl::blockedWhileDragging()
{
    press(slider(0), QPoint(200, 15));
    m_client->take();
    m_control->blockSignals(true);
    move(slider(0), QPoint(250, 15));
    release(slider(0), QPoint(250, 15));
    m_control->blockSignals(false);
    QCOMPARE(m_client->take(), QString());

    // Nothing is late after blocking, and no check point comes for changes that nobody heard of.
    m_control->blockSignals(true);
    press(slider(0), QPoint(100, 15));
    m_control->blockSignals(false);
    release(slider(0), QPoint(100, 15));
    QCOMPARE(m_client->take(), QStringLiteral("finished"));
}

void tst_ColorControl::clientMaySetAnotherColour()
{
    m_client->onColor = [this](const std::array<float, 4> &color) {
        m_control->setColorRGBA(std::min(color[0], 0.5F), 0.25F, color[2], color[3]);
    };
    press(slider(0), QPoint(250, 15));

    QCOMPARE(m_control->red(), 0.5F);
    QCOMPARE(slider(0)->realValue(), 0.5);
    QCOMPARE(slider(1)->realValue(), 0.25);
    QCOMPARE(m_wheel->value(), 0.5);
    move(slider(0), QPoint(100, 15)); // the drag goes on from the pointer
    QVERIFY(slider(0)->realValue() < 0.4);
    release(slider(0), QPoint(100, 15));
    QCOMPARE(m_client->last[1], 0.25F);
}

void tst_ColorControl::clientMaySetFromChanged()
{
    bool once = true;
    connect(m_control, &ColorControl::changed, this, [&] {
        if (std::exchange(once, false))
            m_control->setColorRGBA(0, 0.5F, 0, 1);
    });

    slider(0)->setRealValue(1);

    QCOMPARE(m_client->last, (std::array<float, 4>{0, 0.5F, 0, 1})); // the colour of then
    QCOMPARE(shown(), QStringLiteral("0 500 0 1000"));
    QCOMPARE(m_client->take(), QStringLiteral("changed changed color check"));
}

void tst_ColorControl::clientMayDelete_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<bool>("byDrag");

    for (const char *victim : {"slider", "other slider", "wheel", "control", "client", "window"}) {
        for (const bool byDrag : {false, true}) {
            QTest::newRow(qPrintable(QLatin1String(victim)
                                     + (byDrag ? QLatin1String(", drag") : QLatin1String(", set"))))
                << QString::fromLatin1(victim) << byDrag;
        }
    }
}

void tst_ColorControl::clientMayDelete()
{
    QFETCH(QString, victim);
    QFETCH(bool, byDrag);
    const QPointer<Slider> red = slider(0);
    const QPointer<ColorWheel> wheel = m_wheel;
    int calls = 0;
    m_client->onColor = [&, victim](const std::array<float, 4> &) {
        ++calls;
        destroy(victim);
    };

    if (byDrag) {
        press(red, QPoint(200, 15));
        if (red)
            move(red, QPoint(100, 15));
        if (red)
            release(red, QPoint(100, 15));
    } else {
        red->setRealValue(0.5);
    }

    QVERIFY(calls >= 1);
    QVERIFY(!m_control || !m_control->isInteracting());
    if (m_client && m_control)
        QCOMPARE(m_client->take().count(QStringLiteral("finished")), byDrag ? 1 : 0);
    if (!wheel)
        return;
    WheelPointer pointer(wheel); // alone, or deleting what is left
    pointer.press({60, 90});
    if (wheel)
        pointer.release();
    QVERIFY(!m_control || !m_control->isInteracting());
}

/// The control goes with its client.
void tst_ColorControl::destroy(const QString &victim)
{
    if (victim == QStringLiteral("slider"))
        delete slider(0);
    else if (victim == QStringLiteral("other slider"))
        delete slider(1);
    else if (victim == QStringLiteral("wheel"))
        delete m_wheel;
    else if (victim == QStringLiteral("window"))
        m_window.reset();
    else
        delete m_control;
    if (victim == QStringLiteral("client"))
        m_client.reset();
}

void tst_ColorControl::checkPointMayDelete_data()
{
    clientMayDelete_data();
}

void tst_ColorControl::checkPointMayDelete()
{
    QFETCH(QString, victim);
    QFETCH(bool, byDrag);
    const QPointer<Slider> red = slider(0);
    m_client->onCheckPoint = [this, victim] { destroy(victim); };

    if (byDrag) {
        press(red, QPoint(200, 15));
        release(red, QPoint(200, 15));
    } else {
        red->setRealValue(0.5);
    }

    QVERIFY(!m_control || !m_control->isInteracting());
    if (m_client && m_control)
        QCOMPARE(m_client->take().count(QStringLiteral("finished")), byDrag ? 1 : 0);
}

void tst_ColorControl::signalMayDeleteTheControl_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("changed") << 0;
    QTest::newRow("interactionStarted") << 1;
    QTest::newRow("interactionFinished") << 2;
}

void tst_ColorControl::signalMayDeleteTheControl()
{
    QFETCH(int, signal);
    const auto deleteControl = [this] { delete m_control; };
    if (signal == 0)
        connect(m_control, &ColorControl::changed, this, deleteControl);
    else if (signal == 1)
        connect(m_control, &ColorControl::interactionStarted, this, deleteControl);
    else
        connect(m_control, &ColorControl::interactionFinished, this, deleteControl);

    press(slider(0), QPoint(200, 15));
    release(slider(0), QPoint(200, 15));

    QVERIFY(!m_control);
    QVERIFY(slider(0)->realValue() > 0.5); // goes on alone
}

void tst_ColorControl::clientMayChangeInTheCall()
{
    ColorClient second;
    m_client->onColor = [&](const std::array<float, 4> &) { m_control->setClient(&second); };

    slider(0)->setRealValue(0.5);

    QCOMPARE(m_client->take(), QStringLiteral("changed color"));
    QCOMPARE(second.take(), QString()); // it heard of no edit
    m_control->setClient(nullptr);
}

void tst_ColorControl::clientChangedDuringADrag()
{
    ColorClient second;
    press(slider(0), QPoint(200, 15));
    m_control->setClient(&second);
    release(slider(0), QPoint(200, 15));
    QCOMPARE(second.take(), QString());

    press(slider(0), QPoint(100, 15));
    m_control->setClient(&second); // no change
    release(slider(0), QPoint(100, 15));
    QCOMPARE(second.take(), QStringLiteral("color check"));
    m_control->setClient(nullptr);
}

void tst_ColorControl::widgetsOutliveTheControl()
{
    m_control->setColorRGBA(0.25F, 0.5F, 0.75F, 1);
    press(slider(1), QPoint(200, 15));
    m_client->take();

    delete m_control;
    release(slider(1), QPoint(200, 15));
    slider(0)->setRealValue(0.5);
    m_wheel->setHsv(0.5, 0.5, 0.5);
    m_wheel->setRingValue(0.25F);

    QCOMPARE(m_client->take(), QString());
    QCOMPARE(slider(0)->realValue(), 0.5);
    QCOMPARE(slider(2)->realValue(), 0.75);
    QCOMPARE(m_wheel->value(), 0.25);
}

void tst_ColorControl::controlOutlivesItsWidgets()
{
    m_window.reset();

    m_control->setColorRGBA(0.25F, 0.5F, 0.75F, 1);

    QCOMPARE(m_control->green(), 0.5F);
    QCOMPARE(m_client->take(), QStringLiteral("changed"));
}

void tst_ColorControl::dyingWidgetEndsItsDrag()
{
    press(slider(0), QPoint(200, 15));
    m_client->take();

    delete slider(0);

    QVERIFY(!m_control->isInteracting());
    QCOMPARE(m_client->take(), QStringLiteral("finished")); // the edit was not completed
}

void tst_ColorControl::manyRounds()
{
    for (int round = 0; round < 1000; ++round) {
        ColorClient client;
        auto control = std::make_unique<ColorControl>(&client);
        auto wheel = std::unique_ptr<ColorWheel>(control->createColorWheel());
        auto red = std::unique_ptr<Slider>(control->createRedSlider(Qt::Horizontal));
        auto alpha = std::unique_ptr<Slider>(control->createAlphaSlider(Qt::Vertical));
        red->setRealValue(0.5);
        if (round % 3 == 0)
            control.reset();
        else if (round % 3 == 1)
            red.reset();
        else
            wheel.reset();
        alpha->setRealValue(0.25);
        QCOMPARE(client.take(), round % 3 == 0 ? QStringLiteral("color check")
                                               : QStringLiteral("color check color check"));
    }
}

void tst_ColorControl::gradientsShowTheMove()
{
    m_control->setColorRGBA(0.2F, 0.4F, 0.6F, 0.5F);

    const auto colorAt = [this](int channel, int x) {
        return slider(channel)->grab().toImage().pixelColor(
            qRound(x * slider(channel)->devicePixelRatioF()), 15);
    };
    const auto isNear = [](const QColor &seen, int red, int green, int blue) {
        return std::abs(seen.red() - red) <= 2 && std::abs(seen.green() - green) <= 2
               && std::abs(seen.blue() - blue) <= 2;
    };

    QVERIFY(isNear(colorAt(0, 4), 0, 102, 153));
    QVERIFY(isNear(colorAt(0, 295), 255, 102, 153));
    QVERIFY(isNear(colorAt(1, 4), 51, 0, 153));
    QVERIFY(isNear(colorAt(2, 295), 51, 102, 255));
    QVERIFY(isNear(colorAt(3, 295), 51, 102, 153)); // opaque at its end
    slider(1)->setRealValue(1);
    QVERIFY(isNear(colorAt(0, 4), 0, 255, 153));
    QVERIFY(isNear(colorAt(3, 295), 51, 255, 153));
}

void tst_ColorControl::updatesOnlyWhatChanged()
{
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_control->setColorRGBA(0.5F, 0.5F, 0.5F, 1);
    std::array<std::unique_ptr<PaintCounter>, 4> counters;
    for (std::size_t i = 0; i < counters.size(); ++i)
        counters[i] = std::make_unique<PaintCounter>(slider(int(i)));
    PaintCounter wheel(m_wheel);
    const auto painted = [&] {
        QString text = QString::number(wheel.take());
        for (const auto &counter : counters)
            text += QString::number(counter->take());
        return text;
    };
    painted();

    m_control->setColorRGBA(0.5F, 0.5F, 0.5F, 1); // wheel, red, green, blue, alpha
    QCOMPARE(painted(), QStringLiteral("00000"));
    slider(3)->setRealValue(0.5);
    QCOMPARE(painted(), QStringLiteral("00001"));
    slider(0)->setRealValue(0.25);
    QCOMPARE(painted(), QStringLiteral("11111"));
    m_control->setColorRGBA(0.25F + 0.5F / 255, 0.5F, 0.5F, 0.5F); // an echo
    QCOMPARE(painted(), QStringLiteral("00000"));
    m_control->setColorRGBA(0.5F, 0.5F, 0.5F, 0.5F);
    painted();
    m_wheel->setHsv(0.25, 0, double(0.5F)); // the hue of a grey
    QVERIFY(painted().endsWith(QStringLiteral("0000")));
}

QTEST_MAIN(tst_ColorControl)
#include "tst_ColorControl.moc"
