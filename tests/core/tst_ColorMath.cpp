#include "core/ColorMath_p.h"

#include <QColor>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Tessark::UI;

class tst_ColorMath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedColors_data();
    void namedColors();
    void agreesWithQColor();
    void colorsComeBack();
    void hueOfGreyIsKept();
    void hueAndSaturationOfBlackAreKept();
    void hueStaysBelowOneTurn();
    void wrapsHues_data();
    void wrapsHues();
    void comparesAllThreeNumbers();
    void echoes_data();
    void echoes();
};

namespace {

double distanceOf(const Rgb &left, const Rgb &right)
{
    return std::max({std::abs(left.red - right.red), std::abs(left.green - right.green),
                     std::abs(left.blue - right.blue)});
}

} // namespace

void tst_ColorMath::namedColors_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<double>("saturation");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::addColumn<double>("blue");

    QTest::newRow("red") << 0.0 << 1.0 << 1.0 << 1.0 << 0.0 << 0.0;
    QTest::newRow("yellow") << 1.0 / 6 << 1.0 << 1.0 << 1.0 << 1.0 << 0.0;
    QTest::newRow("green") << 1.0 / 3 << 1.0 << 1.0 << 0.0 << 1.0 << 0.0;
    QTest::newRow("cyan") << 0.5 << 1.0 << 1.0 << 0.0 << 1.0 << 1.0;
    QTest::newRow("blue") << 2.0 / 3 << 1.0 << 1.0 << 0.0 << 0.0 << 1.0;
    QTest::newRow("magenta") << 5.0 / 6 << 1.0 << 1.0 << 1.0 << 0.0 << 1.0;
    QTest::newRow("dark pale orange") << 1.0 / 12 << 0.5 << 0.5 << 0.5 << 0.375 << 0.25;
}

void tst_ColorMath::namedColors()
{
    QFETCH(double, hue);
    QFETCH(double, saturation);
    QFETCH(double, value);
    QFETCH(double, red);
    QFETCH(double, green);
    QFETCH(double, blue);

    const Rgb rgb = rgbOf({hue, saturation, value});
    QVERIFY(distanceOf(rgb, {red, green, blue}) < 1e-15);

    const Hsv hsv = hsvOf({red, green, blue}, {0.123, 0.456, 0.789});
    QVERIFY(std::abs(hsv.hue - hue) < 1e-15);
    QVERIFY(std::abs(hsv.saturation - saturation) < 1e-15);
    QVERIFY(std::abs(hsv.value - value) < 1e-15);
}

void tst_ColorMath::agreesWithQColor()
{
    for (int hue = 0; hue < 360; hue += 7) {
        for (int saturation = 0; saturation <= 255; saturation += 15) {
            for (int value = 0; value <= 255; value += 15) {
                const QColor expected = QColor::fromHsv(hue, saturation, value);
                const Rgb rgb = rgbOf({hue / 360.0, saturation / 255.0, value / 255.0});
                const Rgb theirs{double(expected.redF()), double(expected.greenF()),
                                 double(expected.blueF())};
                QVERIFY2(distanceOf(rgb, theirs) < 1e-4, qPrintable(expected.name()));
            }
        }
    }
}

void tst_ColorMath::colorsComeBack()
{
    double worst = 0;
    for (double hue = 0; hue < 1; hue += 0.0123) {
        for (double saturation = 0; saturation <= 1; saturation += 0.0571) {
            for (double value = 0; value <= 1; value += 0.0571) {
                const Hsv hsv{hue, saturation, value};
                const Rgb rgb = rgbOf(hsv);
                worst = std::max(worst, distanceOf(rgbOf(hsvOf(rgb, hsv)), rgb));
            }
        }
    }
    QVERIFY2(worst < 1e-15, qPrintable(QString::number(worst)));
}

void tst_ColorMath::hueOfGreyIsKept()
{
    QVERIFY(hsvOf({0.3, 0.3, 0.3}, {0.7, 0.9, 0.1}) == (Hsv{0.7, 0, 0.3}));
    QVERIFY(hsvOf({1, 1, 1}, {0.7, 0.9, 0.1}) == (Hsv{0.7, 0, 1}));
}

void tst_ColorMath::hueAndSaturationOfBlackAreKept()
{
    QVERIFY(hsvOf({0, 0, 0}, {0.7, 0.9, 0.1}) == (Hsv{0.7, 0.9, 0}));
}

/// A red with the least trace of blue is just below a full turn.
void tst_ColorMath::hueStaysBelowOneTurn()
{
    const Hsv hsv = hsvOf({1, 0, 1e-300}, {});
    QVERIFY(hsv.hue >= 0 && hsv.hue < 1);
    QVERIFY(distanceOf(rgbOf(hsv), {1, 0, 0}) < 1e-15);
}

void tst_ColorMath::wrapsHues_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<double>("wrapped");

    QTest::newRow("within") << 0.25 << 0.25;
    QTest::newRow("one turn") << 1.0 << 0.0;
    QTest::newRow("over") << 2.75 << 0.75;
    QTest::newRow("negative") << -0.25 << 0.75;
    QTest::newRow("barely negative") << -1e-20 << 0.0;
    QTest::newRow("huge") << 1e300 << 0.0;
}

void tst_ColorMath::wrapsHues()
{
    QFETCH(double, hue);

    QTEST(wrappedHue(hue), "wrapped");
}

void tst_ColorMath::comparesAllThreeNumbers()
{
    QVERIFY((Rgb{1, 2, 3}) == (Rgb{1, 2, 3}));
    QVERIFY((Rgb{1, 2, 3}) != (Rgb{0, 2, 3}));
    QVERIFY((Rgb{1, 2, 3}) != (Rgb{1, 0, 3}));
    QVERIFY((Rgb{1, 2, 3}) != (Rgb{1, 2, 0}));
    QVERIFY((Hsv{1, 2, 3}) == (Hsv{1, 2, 3}));
    QVERIFY((Hsv{1, 2, 3}) != (Hsv{0, 2, 3}));
    QVERIFY((Hsv{1, 2, 3}) != (Hsv{1, 0, 3}));
    QVERIFY((Hsv{1, 2, 3}) != (Hsv{1, 2, 0}));
}

void tst_ColorMath::echoes_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<bool>("expected");

    QTest::newRow("the same") << 0.5 << true;
    QTest::newRow("rounded to 8 bits") << std::round(0.5 * 255) / 255 << true;
    QTest::newRow("truncated to 8 bits") << std::floor(0.5 * 255) / 255 << true;
    QTest::newRow("one step below") << 0.5 - 1.0 / 255 << true;
    QTest::newRow("one step above") << 0.5 + 1.0 / 255 << true;
    QTest::newRow("just more than a step") << 0.5 + 1.0 / 255 + 2e-6 << false;
    QTest::newRow("two steps") << 0.5 - 2.0 / 255 << false;
}

void tst_ColorMath::echoes()
{
    QFETCH(double, fraction);

    QTEST(isEcho(fraction, 0.5), "expected");
}

QTEST_APPLESS_MAIN(tst_ColorMath)
#include "tst_ColorMath.moc"
