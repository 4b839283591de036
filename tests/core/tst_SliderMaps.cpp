#include "core/SliderMaps_p.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <vector>

using namespace Tessark::UI;

class tst_SliderMaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void powersAreTheLiterals();

    void logEndsAreExactPowers();
    void logFollowsTheFormula();
    void logPositionsComeBack();
    void logPositionsComeBackFromAMillion_data();
    void logPositionsComeBackFromAMillion();
    void logErrorStaysWithinHalfAStep_data();
    void logErrorStaysWithinHalfAStep();
    void logPositionsNeverFall();
    void logRoundsHalvesUp();
    void logClampsValues_data();
    void logClampsValues();
    void logOfOnePoint();

    void linearEndsAreExact();
    void linearFollowsTheFormula();
    void linearPositionsComeBack();
    void linearErrorStaysWithinHalfAStep();
    void linearRoundsHalvesUp();
    void linearClampsValues_data();
    void linearClampsValues();
    void linearOfOnePoint();
    void linearOverAllNumbers();

    void positionsOutsideTheRangeClamp();
    void rangesOverAllIntegers();
};

namespace {

constexpr int kExponents[] = {-300, -38, -6, -3, -2, -1, 0, 1, 2, 3, 6, 38, 300};
constexpr int kPositions[] = {1, 2, 3, 7, 10, 100, 999, 1000, 10007};

/// Calls test(scale, range) for every pair of exponents and every number of positions, from
/// different first positions.
template <typename Test>
void forEachLogMap(Test test)
{
    for (const int low : kExponents) {
        for (const int high : kExponents) {
            if (low >= high)
                continue;
            for (const int positions : kPositions) {
                const int first = positions % 3 == 0 ? -positions / 2 : 0;
                test(LogScale{low, high}, PositionRange{first, first + positions});
            }
        }
    }
}

int countOf(PositionRange range)
{
    return range.maximum - range.minimum;
}

/// The positions that do not come back from their values.
template <typename Scale>
int missesOf(const Scale &scale, PositionRange range)
{
    int misses = 0;
    for (int p = range.minimum; p <= range.maximum; ++p)
        misses += positionOf(scale, range, realAt(scale, range, p)) != p;
    return misses;
}

double randomBetween(double low, double high)
{
    return low + (high - low) * QRandomGenerator::global()->generateDouble();
}

} // namespace

void tst_SliderMaps::powersAreTheLiterals()
{
    for (int exponent = -300; exponent <= 300; ++exponent) {
        const QByteArray literal = "1e" + QByteArray::number(exponent);
        QCOMPARE(powerOfTen(exponent), std::strtod(literal.constData(), nullptr));
    }
    QVERIFY(powerOfTen(-300) == 1e-300);
    QVERIFY(powerOfTen(-5) == 1e-5);
    QVERIFY(powerOfTen(0) == 1.0);
    QVERIFY(powerOfTen(23) == 1e23);
    QVERIFY(powerOfTen(300) == 1e300);
}

void tst_SliderMaps::logEndsAreExactPowers()
{
    forEachLogMap([](const LogScale &scale, PositionRange range) {
        QVERIFY(realAt(scale, range, range.minimum) == powerOfTen(scale.minimumExponent));
        QVERIFY(realAt(scale, range, range.maximum) == powerOfTen(scale.maximumExponent));
    });
}

void tst_SliderMaps::logFollowsTheFormula()
{
    forEachLogMap([](const LogScale &scale, PositionRange range) {
        const long double decades = scale.maximumExponent - scale.minimumExponent;
        const int stride = qMax(countOf(range) / 50, 1);
        for (int p = range.minimum; p <= range.maximum; p += stride) {
            const long double exponent =
                scale.minimumExponent + decades * (p - range.minimum) / countOf(range);
            const long double expected = std::pow(10.0L, exponent);
            const long double found = static_cast<long double>(realAt(scale, range, p));
            QVERIFY(std::fabs(found / expected - 1) < 1e-12L);
        }
    });
}

void tst_SliderMaps::logPositionsComeBack()
{
    int cases = 0;
    int misses = 0;
    forEachLogMap([&](const LogScale &scale, PositionRange range) {
        cases += countOf(range) + 1;
        misses += missesOf(scale, range);
    });

    QVERIFY(cases > 900000);
    QCOMPARE(misses, 0);
}

void tst_SliderMaps::logPositionsComeBackFromAMillion_data()
{
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");

    QTest::newRow("one decade") << 0 << 1;
    QTest::newRow("one decade at the upper end") << 299 << 300;
    QTest::newRow("one decade at the lower end") << -300 << -299;
    QTest::newRow("all decades") << -300 << 300;
}

void tst_SliderMaps::logPositionsComeBackFromAMillion()
{
    QFETCH(int, low);
    QFETCH(int, high);

    QCOMPARE(missesOf(LogScale{low, high}, PositionRange{0, 1000000}), 0);
}

void tst_SliderMaps::logErrorStaysWithinHalfAStep_data()
{
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::addColumn<double>("bound"); // relative, with 1000 positions

    QTest::newRow("one decade") << 0 << 1 << 0.00115196;
    QTest::newRow("six decades") << -3 << 3 << 0.00693167;
    QTest::newRow("all decades") << -300 << 300 << std::pow(10.0, 0.3) - 1;
}

void tst_SliderMaps::logErrorStaysWithinHalfAStep()
{
    QFETCH(int, low);
    QFETCH(int, high);
    QFETCH(double, bound);
    const LogScale scale{low, high};
    const PositionRange range{0, 1000};
    QVERIFY(std::fabs(std::pow(10.0, (high - low) / 2000.0) - 1 - bound) < 1e-8);

    double worst = 0;
    for (int i = 0; i < 100000; ++i) {
        const double value = std::pow(10.0, randomBetween(low, high));
        const double shown = realAt(scale, range, positionOf(scale, range, value));
        worst = qMax(worst, qMax(value / shown, shown / value) - 1);
    }

    QVERIFY2(worst <= bound + 1e-8, qPrintable(QString::number(worst, 'g', 9)));
    QVERIFY2(worst > 0.9 * bound, qPrintable(QString::number(worst, 'g', 9)));
}

void tst_SliderMaps::logPositionsNeverFall()
{
    const LogScale scale{-6, 6};
    const PositionRange range{0, 1000000};
    std::vector<double> values(100000);
    for (double &value : values)
        value = std::pow(10.0, randomBetween(-7, 7));
    for (int p = 0; p < 1000; ++p) { // neighbours in the last bit, around the borders of positions
        const double value = std::pow(10.0, -6 + 12 * (p + 0.5) / 1000000);
        values.insert(values.end(),
                      {std::nextafter(value, 0.0), value, std::nextafter(value, 1e9)});
    }
    std::sort(values.begin(), values.end());

    int last = INT_MIN;
    for (const double value : values) {
        const int position = positionOf(scale, range, value);
        QVERIFY(position >= last);
        last = position;
    }
}

void tst_SliderMaps::logRoundsHalvesUp()
{
    QCOMPARE(positionOf(LogScale{0, 2}, PositionRange{0, 1}, 10.0), 1);
    QCOMPARE(positionOf(LogScale{0, 2}, PositionRange{0, 1}, std::nextafter(10.0, 0.0) * 0.9999999),
             0);
    QCOMPARE(positionOf(LogScale{-2, 2}, PositionRange{-3, 0}, 1.0), -1);
}

void tst_SliderMaps::logClampsValues_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("position");

    QTest::newRow("below the minimum") << 0.099 << 5;
    QTest::newRow("least positive number") << 5e-324 << 5;
    QTest::newRow("zero") << 0.0 << 5;
    QTest::newRow("negative zero") << -0.0 << 5;
    QTest::newRow("negative") << -7.0 << 5;
    QTest::newRow("minus infinity") << -HUGE_VAL << 5;
    QTest::newRow("above the maximum") << 1001.0 << 45;
    QTest::newRow("largest number") << DBL_MAX << 45;
    QTest::newRow("infinity") << HUGE_VAL << 45;
}

void tst_SliderMaps::logClampsValues()
{
    QFETCH(double, value);

    QTEST(positionOf(LogScale{-1, 3}, PositionRange{5, 45}, value), "position");
}

void tst_SliderMaps::logOfOnePoint()
{
    const LogScale scale{2, 2};

    QCOMPARE(realAt(scale, PositionRange{0, 0}, 0), 100.0);
    QCOMPARE(positionOf(scale, PositionRange{0, 0}, 5.0), 0);
    QCOMPARE(positionOf(scale, PositionRange{3, 9}, 1e6), 3);
    QCOMPARE(realAt(scale, PositionRange{3, 9}, 6), 100.0);
    QCOMPARE(positionOf(LogScale{0, 1}, PositionRange{4, 4}, 10.0), 4);
}

void tst_SliderMaps::linearEndsAreExact()
{
    for (int i = 0; i < 10000; ++i) {
        const double low = randomBetween(-1e6, 1e6);
        const LinearScale scale{low, low + randomBetween(0, 1e3)};
        const PositionRange range{0, 1 + i};

        QVERIFY(realAt(scale, range, 0) == scale.minimum);
        QVERIFY(realAt(scale, range, 1 + i) == scale.maximum);
        QCOMPARE(positionOf(scale, range, scale.minimum), 0);
        QCOMPARE(positionOf(scale, range, scale.maximum), 1 + i);
    }
}

void tst_SliderMaps::linearFollowsTheFormula()
{
    QCOMPARE(realAt(LinearScale{0, 1}, PositionRange{0, 1000}, 250), 0.25);
    QCOMPARE(realAt(LinearScale{0, 255}, PositionRange{0, 1000}, 100), 25.5);
    QCOMPARE(realAt(LinearScale{-1, 1}, PositionRange{-10, 10}, 5), 0.5);
    QCOMPARE(positionOf(LinearScale{0, 1}, PositionRange{0, 1000}, 0.2504), 250);
    QCOMPARE(positionOf(LinearScale{-180, 180}, PositionRange{0, 360}, 90.4), 270);
    QCOMPARE(positionOf(LinearScale{-1, 1}, PositionRange{-10, 10}, 0.5), 5);
}

void tst_SliderMaps::linearPositionsComeBack()
{
    constexpr double kEnds[] = {-1e300, -360, -1, -1e-300, 0, 1e-300, 0.1, 1, 255, 1e9, 1e300};
    int misses = 0;
    for (const double low : kEnds) {
        for (const double high : kEnds) {
            if (low >= high)
                continue;
            for (const int positions : kPositions)
                misses += missesOf(LinearScale{low, high}, PositionRange{-5, positions - 5});
        }
    }

    QCOMPARE(misses, 0);
    QCOMPARE(missesOf(LinearScale{0, 1}, PositionRange{0, 1000000}), 0);
}

void tst_SliderMaps::linearErrorStaysWithinHalfAStep()
{
    const LinearScale scale{-20, 80};
    const PositionRange range{0, 1000};

    double worst = 0;
    for (int i = 0; i < 100000; ++i) {
        const double value = randomBetween(-20, 80);
        const double shown = realAt(scale, range, positionOf(scale, range, value));
        worst = qMax(worst, std::fabs(value - shown));
    }

    QVERIFY(worst <= 0.05 + 1e-12);
    QVERIFY(worst > 0.049);
}

void tst_SliderMaps::linearRoundsHalvesUp()
{
    QCOMPARE(positionOf(LinearScale{0, 1}, PositionRange{0, 1}, 0.5), 1);
    QCOMPARE(positionOf(LinearScale{0, 1}, PositionRange{0, 1}, std::nextafter(0.5, 0.0)), 0);
    QCOMPARE(positionOf(LinearScale{-1, 1}, PositionRange{-3, 0}, 0.0), -1);
}

void tst_SliderMaps::linearClampsValues_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("position");

    QTest::newRow("below the minimum") << -1.5 << 5;
    QTest::newRow("minus infinity") << -HUGE_VAL << 5;
    QTest::newRow("lowest number") << -DBL_MAX << 5;
    QTest::newRow("above the maximum") << 1.5 << 45;
    QTest::newRow("infinity") << HUGE_VAL << 45;
}

void tst_SliderMaps::linearClampsValues()
{
    QFETCH(double, value);

    QTEST(positionOf(LinearScale{-1, 1}, PositionRange{5, 45}, value), "position");
}

void tst_SliderMaps::linearOfOnePoint()
{
    const LinearScale scale{2.5, 2.5};

    QCOMPARE(realAt(scale, PositionRange{0, 0}, 0), 2.5);
    QCOMPARE(positionOf(scale, PositionRange{0, 0}, 2.5), 0);
    QCOMPARE(positionOf(scale, PositionRange{3, 9}, 7.0), 3);
    QCOMPARE(realAt(scale, PositionRange{3, 9}, 6), 2.5);
}

void tst_SliderMaps::linearOverAllNumbers()
{
    const LinearScale scale{-DBL_MAX, DBL_MAX};
    const PositionRange range{0, 1000};

    QCOMPARE(realAt(scale, range, 500), 0.0);
    QCOMPARE(positionOf(scale, range, 0.0), 500);
    QCOMPARE(positionOf(scale, range, DBL_MAX), 1000);
    QCOMPARE(missesOf(scale, range), 0);
}

void tst_SliderMaps::positionsOutsideTheRangeClamp()
{
    const PositionRange range{10, 20};

    QCOMPARE(realAt(LogScale{0, 1}, range, 9), 1.0);
    QCOMPARE(realAt(LogScale{0, 1}, range, INT_MIN), 1.0);
    QCOMPARE(realAt(LogScale{0, 1}, range, INT_MAX), 10.0);
    QCOMPARE(realAt(LinearScale{3, 4}, range, INT_MIN), 3.0);
    QCOMPARE(realAt(LinearScale{3, 4}, range, 21), 4.0);
}

void tst_SliderMaps::rangesOverAllIntegers()
{
    const PositionRange range{INT_MIN, INT_MAX};

    QCOMPARE(positionOf(LogScale{-1, 1}, range, 10.0), INT_MAX);
    QCOMPARE(positionOf(LogScale{-1, 1}, range, 0.1), INT_MIN);
    QCOMPARE(positionOf(LinearScale{0, 1}, range, 1.0), INT_MAX);
    QCOMPARE(positionOf(LinearScale{0, 1}, range, 0.0), INT_MIN);
    QVERIFY(std::fabs(realAt(LogScale{-1, 1}, range, 0) - 1) < 1e-8);
    QVERIFY(std::fabs(realAt(LinearScale{0, 1}, range, 0) - 0.5) < 1e-8);
}

QTEST_APPLESS_MAIN(tst_SliderMaps)
#include "tst_SliderMaps.moc"
