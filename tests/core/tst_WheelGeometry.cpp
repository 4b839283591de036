#include "core/ColorWheel.h"
#include "core/WheelGeometry_p.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

using namespace Tessark::UI;

Q_DECLARE_METATYPE(Tessark::UI::WheelPart)
Q_DECLARE_METATYPE(Tessark::UI::PointerKind)

class tst_WheelGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void radiiAt160();
    void radiiFollowTheFormulas();
    void smallWheelsAreDiscs_data();
    void smallWheelsAreDiscs();
    void nothingBelowFourPixels();
    void centerOfAnOblongWheel();

    void everyPixelBelongsToOnePart_data();
    void everyPixelBelongsToOnePart();
    void partsEndWhereTheySay_data();
    void partsEndWhereTheySay();
    void partsPresent();

    void discHues_data();
    void discHues();
    void discOutsideClamps();
    void discMiddleHasNoHue();
    void discComesBack();

    void valueRing_data();
    void valueRing();
    void valueRingGap_data();
    void valueRingGap();
    void valueRingStepOfAPixel();
    void valueRingComesBack();
    void hueRingComesBack();
    void turnsTheShortWay_data();
    void turnsTheShortWay();

    void triangleCornersLie();
    void triangleColors_data();
    void triangleColors();
    void triangleComesBack();
    void triangleOutsideTakesTheNearestPoint();
    void triangleEdgeSlides();
    void triangleBlackKeepsSaturation();

    void markers_data();
    void markers();
};

namespace {

constexpr double kPi = 3.14159265358979323846;

WheelGeometry squareWheel(ColorWheel::DisplayMode mode, double side = 160)
{
    return wheelGeometry(mode, QSizeF(side, side));
}

/// The other way round: a triangle's colour by its barycentric weights in floating angles.
QPointF triangleCorner(const WheelGeometry &wheel, double degrees)
{
    return {wheel.center.x() + wheel.triangleRadius * std::cos(degrees * kPi / 180),
            wheel.center.y() - wheel.triangleRadius * std::sin(degrees * kPi / 180)};
}

double lengthOf(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

double hueDistance(double left, double right)
{
    const double distance = std::abs(left - right);
    return std::min(distance, 1 - distance);
}

/// Calls test(wheel) for sizes 40..400 of the mode, squares and oblongs.
void forEachWheel(ColorWheel::DisplayMode mode,
                  const std::function<void(const WheelGeometry &)> &test)
{
    for (int side = 40; side <= 400; side += 9) {
        test(wheelGeometry(mode, QSizeF(side, side)));
        test(wheelGeometry(mode, QSizeF(side + 37, side)));
        test(wheelGeometry(mode, QSizeF(side, 2 * side)));
    }
}

/// Calls test(hue, fraction) over a grid.
void forEachPair(const std::function<void(double, double)> &test)
{
    for (int i = 0; i < 97; ++i) {
        for (int j = 0; j <= 50; ++j)
            test(i / 97.0, j / 50.0);
    }
}

} // namespace

void tst_WheelGeometry::radiiAt160()
{
    const WheelGeometry disc = squareWheel(ColorWheel::HueSaturationDisc);
    QCOMPARE(disc.center, QPointF(80, 80));
    QCOMPARE(disc.outerRadius, 77.0);
    QCOMPARE(disc.discRadius, 77.0);
    QCOMPARE(disc.ring, WheelPart::None);

    const WheelGeometry both = squareWheel(ColorWheel::DiscAndValueRing);
    QCOMPARE(both.outerRadius, 77.0);
    QCOMPARE(both.ringInnerRadius, 63.0);
    QCOMPARE(both.discRadius, 59.0);
    QCOMPARE(both.ring, WheelPart::ValueRing);

    const WheelGeometry triangle = squareWheel(ColorWheel::HueRingTriangle);
    QCOMPARE(triangle.outerRadius, 77.0);
    QCOMPARE(triangle.ringInnerRadius, 58.0);
    QCOMPARE(triangle.triangleRadius, 56.0);
    QCOMPARE(triangle.ring, WheelPart::HueRing);
}

void tst_WheelGeometry::radiiFollowTheFormulas()
{
    for (int side = 40; side <= 400; ++side) {
        const double outer = side / 2.0 - 3;
        const WheelGeometry both = squareWheel(ColorWheel::DiscAndValueRing, side);
        const double width =
            std::min(std::max(std::round(0.09 * side), std::min(8.0, side / 8.0)), 24.0);
        const double gap =
            std::min(std::max(std::round(0.025 * side), std::min(3.0, side / 20.0)), 6.0);
        QCOMPARE(both.outerRadius, outer);
        QCOMPARE(both.ringInnerRadius, outer - width);
        QCOMPARE(both.discRadius, outer - width - gap);
        QVERIFY(both.discRadius > 0);

        const WheelGeometry triangle = squareWheel(ColorWheel::HueRingTriangle, side);
        const double hueWidth =
            std::min(std::max(std::round(0.12 * side), std::min(10.0, side / 7.0)), 28.0);
        QCOMPARE(triangle.outerRadius, outer);
        QCOMPARE(triangle.ringInnerRadius, outer - hueWidth);
        QCOMPARE(triangle.triangleRadius, outer - hueWidth - 2);
        QVERIFY(triangle.triangleRadius > 0);

        QCOMPARE(squareWheel(ColorWheel::HueSaturationDisc, side).discRadius, outer);
    }
}

void tst_WheelGeometry::smallWheelsAreDiscs_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("disc") << 0;
    QTest::newRow("triangle") << 1;
    QTest::newRow("disc and ring") << 2;
}

void tst_WheelGeometry::smallWheelsAreDiscs()
{
    QFETCH(int, mode);

    for (int side = 4; side < 40; ++side) {
        const WheelGeometry wheel = squareWheel(ColorWheel::DisplayMode(mode), side);
        QCOMPARE(wheel.discRadius, side / 2.0 - 1);
        QCOMPARE(wheel.ring, WheelPart::None);
        QCOMPARE(wheel.triangleRadius, 0.0);
        const double half = side / 2.0;
        QCOMPARE(partAt(wheel, {0, half}, PointerKind::Mouse), WheelPart::Disc);
        QCOMPARE(partAt(wheel, {-0.1, half}, PointerKind::Mouse), WheelPart::None);
    }
}

void tst_WheelGeometry::nothingBelowFourPixels()
{
    for (const double side : {0.0, 1.0, 2.0, 3.0, 3.9}) {
        for (int mode = 0; mode < 3; ++mode) {
            const WheelGeometry wheel = squareWheel(ColorWheel::DisplayMode(mode), side);
            QCOMPARE(partAt(wheel, wheel.center, PointerKind::Mouse), WheelPart::None);
            QCOMPARE(wheel.discRadius, 0.0);
            QCOMPARE(wheel.ring, WheelPart::None);
            QCOMPARE(wheel.triangleRadius, 0.0);
        }
    }
}

void tst_WheelGeometry::centerOfAnOblongWheel()
{
    const WheelGeometry wide = wheelGeometry(ColorWheel::DiscAndValueRing, QSizeF(301, 160));
    QCOMPARE(wide.center, QPointF(150.5, 80));
    QCOMPARE(wide.side, 160.0);
    QCOMPARE(wide.outerRadius, 77.0);

    const WheelGeometry high = wheelGeometry(ColorWheel::DiscAndValueRing, QSizeF(160, 999));
    QCOMPARE(high.center, QPointF(80, 499.5));
    QCOMPARE(high.outerRadius, 77.0);
}

void tst_WheelGeometry::everyPixelBelongsToOnePart_data()
{
    smallWheelsAreDiscs_data();
}

/// No dead zone: within the outermost reach every pixel is taken, and by the part that it shows.
void tst_WheelGeometry::everyPixelBelongsToOnePart()
{
    QFETCH(int, mode);
    const WheelGeometry wheel = squareWheel(ColorWheel::DisplayMode(mode));

    std::map<WheelPart, int> pixels;
    for (int y = 0; y < 160; ++y) {
        for (int x = 0; x < 160; ++x) {
            const QPointF point(x + 0.5, y + 0.5);
            const WheelPart part = partAt(wheel, point, PointerKind::Mouse);
            ++pixels[part];
            const double radius = lengthOf(point - QPointF(80, 80));
            QCOMPARE(part == WheelPart::None, radius > 80);
            QVERIFY(part == WheelPart::None || hasPart(wheel, part));
        }
    }
    QCOMPARE(int(pixels.size()), mode == ColorWheel::HueSaturationDisc ? 2 : 3);
}

void tst_WheelGeometry::partsEndWhereTheySay_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<PointerKind>("pointer");
    QTest::addColumn<double>("radius");
    QTest::addColumn<WheelPart>("part");

    const auto mouse = PointerKind::Mouse;
    const auto finger = PointerKind::Finger;
    QTest::newRow("disc, last") << 0 << mouse << 80.0 << WheelPart::Disc;
    QTest::newRow("disc, beyond") << 0 << mouse << 80.1 << WheelPart::None;
    QTest::newRow("triangle, last") << 1 << mouse << 56.9 << WheelPart::Triangle;
    QTest::newRow("hue ring, first") << 1 << mouse << 57.0 << WheelPart::HueRing;
    QTest::newRow("hue ring, last") << 1 << mouse << 80.0 << WheelPart::HueRing;
    QTest::newRow("hue ring, beyond") << 1 << mouse << 80.1 << WheelPart::None;
    QTest::newRow("disc in a ring, last") << 2 << mouse << 61.0 << WheelPart::Disc;
    QTest::newRow("value ring, first") << 2 << mouse << 61.1 << WheelPart::ValueRing;
    QTest::newRow("value ring, last") << 2 << mouse << 80.0 << WheelPart::ValueRing;
    QTest::newRow("value ring, beyond") << 2 << mouse << 80.1 << WheelPart::None;
    QTest::newRow("value ring by finger, last") << 2 << finger << 87.0 << WheelPart::ValueRing;
    QTest::newRow("value ring by finger, beyond") << 2 << finger << 87.1 << WheelPart::None;
    QTest::newRow("hue ring by finger, last") << 1 << finger << 87.0 << WheelPart::HueRing;
    QTest::newRow("disc by finger, beyond") << 0 << finger << 80.1 << WheelPart::None;
}

void tst_WheelGeometry::partsEndWhereTheySay()
{
    QFETCH(int, mode);
    QFETCH(PointerKind, pointer);
    QFETCH(double, radius);

    const WheelGeometry wheel = squareWheel(ColorWheel::DisplayMode(mode));
    QTEST(partAt(wheel, wheel.center + QPointF(radius, 0), pointer), "part");
    QTEST(partAt(wheel, wheel.center - QPointF(0, radius), pointer), "part");
}

void tst_WheelGeometry::partsPresent()
{
    const auto partsOf = [](const WheelGeometry &wheel) {
        QString parts;
        for (const auto &[part, letter] : {std::pair(WheelPart::None, 'n'),
                                           {WheelPart::Disc, 'd'},
                                           {WheelPart::ValueRing, 'v'},
                                           {WheelPart::HueRing, 'h'},
                                           {WheelPart::Triangle, 't'}}) {
            if (hasPart(wheel, part))
                parts += QLatin1Char(letter);
        }
        return parts;
    };
    QCOMPARE(partsOf(squareWheel(ColorWheel::HueSaturationDisc)), QStringLiteral("d"));
    QCOMPARE(partsOf(squareWheel(ColorWheel::HueRingTriangle)), QStringLiteral("ht"));
    QCOMPARE(partsOf(squareWheel(ColorWheel::DiscAndValueRing)), QStringLiteral("dv"));
    QCOMPARE(partsOf(squareWheel(ColorWheel::DiscAndValueRing, 20)), QStringLiteral("d"));
    QCOMPARE(partsOf(squareWheel(ColorWheel::DiscAndValueRing, 2)), QString());
}

void tst_WheelGeometry::discHues_data()
{
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<double>("hue");
    QTest::addColumn<double>("saturation");

    QTest::newRow("3 o'clock") << QPointF(59, 0) << 0.0 << 1.0;
    QTest::newRow("12 o'clock") << QPointF(0, -29.5) << 0.25 << 0.5;
    QTest::newRow("9 o'clock") << QPointF(-59, 0) << 0.5 << 1.0;
    QTest::newRow("6 o'clock") << QPointF(0, 14.75) << 0.75 << 0.25;
    QTest::newRow("half past one") << QPointF(10, -10) << 0.125 << std::sqrt(200.0) / 59;
}

void tst_WheelGeometry::discHues()
{
    QFETCH(QPointF, offset);

    const WheelGeometry wheel = squareWheel(ColorWheel::DiscAndValueRing);
    const Hsv hsv = discColorAt(wheel, wheel.center + offset, {0.9, 0.9, 0.3});

    QTEST(hsv.hue, "hue");
    QTEST(hsv.saturation, "saturation");
    QCOMPARE(hsv.value, 0.3);
}

void tst_WheelGeometry::discOutsideClamps()
{
    const WheelGeometry wheel = squareWheel(ColorWheel::DiscAndValueRing);
    for (const double radius : {59.0, 60.0, 1000.0, 1e9}) {
        const Hsv hsv = discColorAt(wheel, wheel.center + QPointF(0, -radius), {});
        QCOMPARE(hsv.saturation, 1.0);
        QCOMPARE(hsv.hue, 0.25);
    }
}

void tst_WheelGeometry::discMiddleHasNoHue()
{
    const WheelGeometry wheel = squareWheel(ColorWheel::DiscAndValueRing);
    const Hsv previous{0.4, 0.9, 0.3};
    for (const QPointF &offset : {QPointF(0, 0), QPointF(1, 0), QPointF(0, -1), QPointF(-0.7, 0.7)})
        QVERIFY(discColorAt(wheel, wheel.center + offset, previous) == (Hsv{0.4, 0, 0.3}));
    QVERIFY(discColorAt(wheel, wheel.center + QPointF(-1.1, 0), previous).hue == 0.5);
}

void tst_WheelGeometry::discComesBack()
{
    double worstHue = 0;
    double worstSaturation = 0;
    for (const auto mode : {ColorWheel::HueSaturationDisc, ColorWheel::DiscAndValueRing}) {
        const WheelGeometry wheel = squareWheel(mode);
        forEachPair([&](double hue, double saturation) {
            if (saturation < 0.02)
                return;
            const Hsv hsv{hue, saturation, 0.5};
            const Hsv back = discColorAt(wheel, discPointOf(wheel, hsv), {});
            worstHue = std::max(worstHue, hueDistance(back.hue, hue));
            worstSaturation = std::max(worstSaturation, std::abs(back.saturation - saturation));
        });
    }
    QVERIFY2(worstHue < 2e-15, qPrintable(QString::number(worstHue)));
    QVERIFY2(worstSaturation < 2e-15, qPrintable(QString::number(worstSaturation)));
}

void tst_WheelGeometry::valueRing_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("value");

    QTest::newRow("7 o'clock") << 240.0 << 0.0;
    QTest::newRow("9 o'clock") << 180.0 << 0.2;
    QTest::newRow("12 o'clock") << 90.0 << 0.5;
    QTest::newRow("3 o'clock") << 0.0 << 0.8;
    QTest::newRow("5 o'clock") << 300.0 << 1.0;
}

void tst_WheelGeometry::valueRing()
{
    QFETCH(double, angle);
    QFETCH(double, value);

    QVERIFY(std::abs(valueOfTurn(valueRingTurnAt(angle)) - value) < 1e-15);
    QVERIFY(std::abs(turnBetween(angleOfValue(value), angle)) < 1e-12);
}

void tst_WheelGeometry::valueRingGap_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("turn");

    QTest::newRow("on the arc") << 90.0 << 150.0;
    QTest::newRow("beside the bright end") << 299.0 << 300.0;
    QTest::newRow("just right of the bottom") << 270.1 << 300.0;
    QTest::newRow("just left of the bottom") << 269.9 << 0.0;
    QTest::newRow("beside the dark end") << 241.0 << 0.0;
}

void tst_WheelGeometry::valueRingGap()
{
    QFETCH(double, angle);

    QTEST(nearestValueRingTurnAt(angle), "turn");
}

void tst_WheelGeometry::valueRingStepOfAPixel()
{
    const WheelGeometry wheel = squareWheel(ColorWheel::DiscAndValueRing);
    const double pixel = 360 / (2 * kPi * ringRadius(wheel)) / kValueRingTurn;
    QVERIFY(std::abs(pixel - 0.0028) < 0.0001);
}

void tst_WheelGeometry::valueRingComesBack()
{
    double worst = 0;
    const WheelGeometry wheel = squareWheel(ColorWheel::DiscAndValueRing);
    for (int i = 0; i <= 10000; ++i) {
        const double value = i / 10000.0;
        const QPointF point = ringPointAt(wheel, angleOfValue(value));
        const double back = valueOfTurn(nearestValueRingTurnAt(angleAt(wheel, point)));
        worst = std::max(worst, std::abs(back - value));
    }
    QVERIFY2(worst < 2e-15, qPrintable(QString::number(worst)));
}

void tst_WheelGeometry::hueRingComesBack()
{
    double worst = 0;
    const WheelGeometry wheel = squareWheel(ColorWheel::HueRingTriangle);
    for (int i = 0; i < 10000; ++i) {
        const double hue = i / 10000.0;
        const double back = angleAt(wheel, ringPointAt(wheel, hue * 360)) / 360;
        worst = std::max(worst, hueDistance(back, hue));
    }
    QVERIFY2(worst < 2e-15, qPrintable(QString::number(worst)));
}

void tst_WheelGeometry::turnsTheShortWay_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("turn");

    QTest::newRow("none") << 10.0 << 10.0 << 0.0;
    QTest::newRow("forward") << 10.0 << 100.0 << 90.0;
    QTest::newRow("back") << 100.0 << 10.0 << -90.0;
    QTest::newRow("over the full turn") << 350.0 << 20.0 << 30.0;
    QTest::newRow("back over it") << 20.0 << 350.0 << -30.0;
    QTest::newRow("half a turn") << 0.0 << 180.0 << -180.0;
}

void tst_WheelGeometry::turnsTheShortWay()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, turn);

    QVERIFY(std::abs(turnBetween(from, to) - turn) < 1e-12);
}

void tst_WheelGeometry::triangleCornersLie()
{
    const WheelGeometry wheel = squareWheel(ColorWheel::HueRingTriangle);
    const auto corners = triangleCorners(wheel);
    QVERIFY(lengthOf(corners[0] - triangleCorner(wheel, 90)) < 1e-12);
    QVERIFY(lengthOf(corners[1] - triangleCorner(wheel, -30)) < 1e-12);
    QVERIFY(lengthOf(corners[2] - triangleCorner(wheel, 210)) < 1e-12);
}

void tst_WheelGeometry::triangleColors_data()
{
    QTest::addColumn<double>("hueWeight");
    QTest::addColumn<double>("whiteWeight");
    QTest::addColumn<double>("saturation");
    QTest::addColumn<double>("value");

    QTest::newRow("full hue") << 1.0 << 0.0 << 1.0 << 1.0;
    QTest::newRow("white") << 0.0 << 1.0 << 0.0 << 1.0;
    QTest::newRow("half way to white") << 0.5 << 0.5 << 0.5 << 1.0;
    QTest::newRow("half way to black") << 0.5 << 0.0 << 1.0 << 0.5;
    QTest::newRow("grey") << 0.0 << 0.5 << 0.0 << 0.5;
    QTest::newRow("middle") << 1.0 / 3 << 1.0 / 3 << 0.5 << 2.0 / 3;
}

void tst_WheelGeometry::triangleColors()
{
    QFETCH(double, hueWeight);
    QFETCH(double, whiteWeight);
    QFETCH(double, saturation);
    QFETCH(double, value);

    const WheelGeometry wheel = squareWheel(ColorWheel::HueRingTriangle);
    const QPointF point = triangleCorner(wheel, 90) * hueWeight
                          + triangleCorner(wheel, -30) * whiteWeight
                          + triangleCorner(wheel, 210) * (1 - hueWeight - whiteWeight);
    const Hsv hsv = triangleColorAt(wheel, point, {0.7, 0.1, 0.2});
    QVERIFY(std::abs(hsv.saturation - saturation) < 1e-14);
    QVERIFY(std::abs(hsv.value - value) < 1e-14);
    QCOMPARE(hsv.hue, 0.7);
    QVERIFY(lengthOf(trianglePointOf(wheel, {0.7, saturation, value}) - point) < 1e-12);
}

void tst_WheelGeometry::triangleComesBack()
{
    double worstValue = 0;
    double worstSaturation = 0;
    forEachWheel(ColorWheel::HueRingTriangle, [&](const WheelGeometry &wheel) {
        forEachPair([&](double saturation, double value) {
            const Hsv hsv{0.5, saturation, value};
            const Hsv back = triangleColorAt(wheel, trianglePointOf(wheel, hsv), hsv);
            worstValue = std::max(worstValue, std::abs(back.value - value));
            // Near black a saturation is as fine as its share of the value.
            worstSaturation =
                std::max(worstSaturation, std::abs(back.saturation - saturation) * value);
        });
    });
    QVERIFY2(worstValue < 1e-14, qPrintable(QString::number(worstValue)));
    QVERIFY2(worstSaturation < 1e-14, qPrintable(QString::number(worstSaturation)));
}

/// Compared with a search over the triangle's edges and its inside.
void tst_WheelGeometry::triangleOutsideTakesTheNearestPoint()
{
    const WheelGeometry wheel = squareWheel(ColorWheel::HueRingTriangle);
    const auto corners = triangleCorners(wheel);
    for (int x = -40; x < 200; x += 13) {
        for (int y = -40; y < 200; y += 13) {
            const QPointF point(x, y);
            const Hsv hsv = triangleColorAt(wheel, point, {});
            const double distance = lengthOf(trianglePointOf(wheel, hsv) - point);
            double least = HUGE_VAL;
            for (int i = 0; i <= 200; ++i) {
                for (int j = 0; i + j <= 200; ++j) {
                    const QPointF candidate = corners[0] * (i / 200.0) + corners[1] * (j / 200.0)
                                              + corners[2] * ((200 - i - j) / 200.0);
                    least = std::min(least, lengthOf(candidate - point));
                }
            }
            QVERIFY2(distance < least + 1e-9, qPrintable(QString::number(distance - least)));
        }
    }
}

/// Along the edge between the hue and the white corner the value stays 1, however far outside.
void tst_WheelGeometry::triangleEdgeSlides()
{
    const WheelGeometry wheel = squareWheel(ColorWheel::HueRingTriangle);
    const QPointF outwards(std::cos(kPi / 6), -std::sin(kPi / 6));
    for (const double distance : {1.0, 20.0, 5000.0}) {
        for (int i = 0; i <= 10; ++i) {
            const QPointF edge = trianglePointOf(wheel, {0, i / 10.0, 1});
            const Hsv hsv = triangleColorAt(wheel, edge + outwards * distance, {});
            QVERIFY(std::abs(hsv.value - 1) < 1e-12);
            QVERIFY(std::abs(hsv.saturation - i / 10.0) < 1e-10);
        }
    }
}

void tst_WheelGeometry::triangleBlackKeepsSaturation()
{
    const WheelGeometry wheel = squareWheel(ColorWheel::HueRingTriangle);
    const QPointF black = triangleCorner(wheel, 210);
    for (const QPointF &outside : {QPointF(0, 0), QPointF(-1, 0.5), QPointF(-50, 20)})
        QVERIFY(triangleColorAt(wheel, black + outside, {0.2, 0.6, 0.5}) == (Hsv{0.2, 0.6, 0}));
}

void tst_WheelGeometry::markers_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<WheelPart>("part");
    QTest::addColumn<QPointF>("expected");

    // Of hue 1/4, saturation 1/2 and value 1/2.
    QTest::newRow("disc") << 2 << WheelPart::Disc << QPointF(80, 80 - 29.5);
    QTest::newRow("value ring") << 2 << WheelPart::ValueRing << QPointF(80, 10);
    QTest::newRow("hue ring") << 1 << WheelPart::HueRing << QPointF(80, 80 - 67.5);
    QTest::newRow("triangle") << 1 << WheelPart::Triangle << QPointF(80 - 7 * std::sqrt(3), 87);
    QTest::newRow("none") << 1 << WheelPart::None << QPointF(80, 80);
}

void tst_WheelGeometry::markers()
{
    QFETCH(int, mode);
    QFETCH(WheelPart, part);
    QFETCH(QPointF, expected);

    const WheelGeometry wheel = squareWheel(ColorWheel::DisplayMode(mode));
    const QPointF marker = markerOf(wheel, part, {0.25, 0.5, 0.5});
    QVERIFY2(lengthOf(marker - expected) < 1e-12,
             qPrintable(QStringLiteral("%1, %2").arg(marker.x()).arg(marker.y())));
}

QTEST_APPLESS_MAIN(tst_WheelGeometry)
#include "tst_WheelGeometry.moc"
