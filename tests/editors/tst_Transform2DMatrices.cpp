#include "property/editors/Transform2DPropertyEditor.h"

#include "support/TransformNumbers.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

using namespace Tessark::PropertyUI;
using namespace TestSupport;
using Editor = Transform2DPropertyEditor;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class Random
{
public:
    double between(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_engine);
    }

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_engine); }

    /// As many small ones as large ones: each decade is as likely.
    double scale() { return std::clamp(std::pow(10.0, between(-4.0, 0.7)), 0.0001, 5.0); }

    Numbers transform()
    {
        return {between(-1, 1), between(-1, 1), between(-180, 180), scale(), scale()};
    }

private:
    std::mt19937_64 m_engine{20240229};
};

} // namespace

/// The arithmetic of the transform editor, through its static functions.
class tst_Transform2DMatrices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knownMatrices_data();
    void knownMatrices();
    void elementsStandInStoredOrder();
    void pointsAreMovedTurnedAndResized();
    void matrixIsTheProduct();
    void numbersAreTheInverseProduct();
    void identityHasNoNegativeZero();
    void onlyTheEpsilonIsNotInverted();
    void scaleZeroGivesInfinity();
    void negativeScalesReadBackPositive();
    void lastRowOfAMatrix();
    void outputsMayBeLeftOut();
    void transformsComeBack();
    void constantsShortenRotations_data();
    void constantsShortenRotations();
    void constantsTurnMatricesShort();
    void equalScalesComeBackEqual();
    void rotationsAboutAnAxis_data();
    void rotationsAboutAnAxis();
};

void tst_Transform2DMatrices::knownMatrices_data()
{
    QTest::addColumn<QVector<double>>("numbers");
    QTest::addColumn<QVector<double>>("elements");

    QTest::newRow("identity") << QVector<double>{0, 0, 0, 1, 1}
                              << QVector<double>{1, 0, 0, 0, 1, 0, 0, 0, 1};
    QTest::newRow("offset") << QVector<double>{0.1, 0.2, 0, 1, 1}
                            << QVector<double>{1, 0, -0.1, 0, 1, -0.2, 0, 0, 1};
    QTest::newRow("scale") << QVector<double>{0, 0, 0, 2, 1}
                           << QVector<double>{0.5, 0, 0.25, 0, 1, 0, 0, 0, 1};
    QTest::newRow("all") << QVector<double>{0.1, 0.2, 30, 2, 4}
                         << QVector<double>{0.433013, -0.25, 0.415192, 0.125, 0.216506,
                                            0.273446, 0,     0,        1};
    QTest::newRow("quarter turn") << QVector<double>{0, 0, 90, 1, 1}
                                  << QVector<double>{0, -1, 1, 1, 0, 0, 0, 0, 1};
}

void tst_Transform2DMatrices::knownMatrices()
{
    QFETCH(QVector<double>, numbers);
    QFETCH(QVector<double>, elements);
    Numbers expected{};
    std::copy(numbers.begin(), numbers.end(), expected.begin());

    const DoubleMatrix3x3 matrix = matrixOf(expected);
    const Numbers back = numbersOf(matrix);

    for (int i = 0; i < 9; ++i)
        QVERIFY(std::abs(elementsOf(matrix).at(i) - elements.at(i)) <= 5e-7);
    for (std::size_t i = 0; i < 5; ++i)
        QVERIFY(std::abs(back[i] - expected[i]) <= 1.1e-7);
}

void tst_Transform2DMatrices::elementsStandInStoredOrder()
{
    const DoubleMatrix3x3 matrix = matrixOf({0.1, 0.2, 30, 2, 4});
    const DoubleMatrix3x3 moved = matrixOf({0.1, 0.2, 0, 1, 1});

    // In Qt's indexing the translation stands in row 2.
    for (int i = 0; i < 9; ++i)
        QCOMPARE(matrix(i % 3, i / 3), matrix.constData()[i]);
    QVERIFY(std::abs(matrix(1, 0) + 0.25) < 1e-6);
    QVERIFY(std::abs(matrix(2, 0) - 0.415192) < 1e-6);
    QVERIFY(std::abs(matrix(2, 1) - 0.273446) < 1e-6);
    QCOMPARE(QMatrix3x3_toString(moved), QStringLiteral("1 0 0 0 1 0 -0.1 -0.2 1"));
}

void tst_Transform2DMatrices::pointsAreMovedTurnedAndResized()
{
    const DoubleMatrix3x3 matrix = matrixOf({0.1, 0.2, 90, 2, 4});
    const double *const e = matrix.constData();

    // (0.8, 0.7) moves to (0.7, 0.5), which a quarter turn about the middle takes to (0.5, 0.7)
    // and the division of the distances by 2 and 4 to (0.5, 0.55).
    const double u = e[0] * 0.8 + e[1] * 0.7 + e[2];
    const double v = e[3] * 0.8 + e[4] * 0.7 + e[5];

    QVERIFY(std::abs(u - 0.5) < 1e-9);
    QVERIFY(std::abs(v - 0.55) < 1e-9);
}

void tst_Transform2DMatrices::matrixIsTheProduct()
{
    Random random;
    double worst = 0;
    for (int i = 0; i < 20000; ++i) {
        Numbers numbers = random.transform();
        for (const std::size_t scale : {3U, 4U})
            numbers[scale] *= random.below(2) ? 1 : -1;
        worst = std::max(worst, errorOf(matrixOf(numbers), productOf(numbers)));
    }

    qInfo("worst error of an element, by its row: %g", worst);
    QVERIFY(worst <= 1e-12);
}

void tst_Transform2DMatrices::numbersAreTheInverseProduct()
{
    Random random;
    double worst = 0;
    for (int i = 0; i < 20000; ++i) {
        QVector<double> e;
        for (int k = 0; k < 9; ++k)
            e.append(random.between(-3, 3));
        const Numbers numbers = numbersOf(matrixFrom(e));

        const Long angle = std::atan2(Long(e[3]), Long(e[4]));
        const Long scaleX = 1 / std::hypot(Long(e[0]), Long(e[1]));
        const Long scaleY = 1 / std::hypot(Long(e[3]), Long(e[4]));
        const LongMatrix back = translation(0.5L, 0.5L) * rotation(-angle) * scaling(scaleX, scaleY)
                                * translation(-0.5L, -0.5L);
        Long offsets[2] = {};
        for (std::size_t row = 0; row < 2; ++row)
            offsets[row] = -(back[row][0] * e[2] + back[row][1] * e[5] + back[row][2] * e[8]);
        const Long expected[] = {offsets[0], offsets[1], angle * 57.2957795131L, scaleX, scaleY};
        const Long size = std::max({1.0L, scaleX, scaleY}); // the summands' size
        for (std::size_t k = 0; k < 5; ++k) {
            const Long magnitude = k < 2 ? size : std::abs(expected[k]);
            const Long error = std::abs(numbers[k] - expected[k]) / magnitude;
            worst = std::max(worst, double(error));
        }
    }

    qInfo("worst error of a number: %g", worst);
    QVERIFY(worst <= 1e-12);
}

void tst_Transform2DMatrices::identityHasNoNegativeZero()
{
    const DoubleMatrix3x3 matrix = matrixOf(kIdentity);

    QVERIFY(matrix == DoubleMatrix3x3());
    for (const double element : elementsOf(matrix))
        QVERIFY(!std::signbit(element));
}

void tst_Transform2DMatrices::onlyTheEpsilonIsNotInverted()
{
    const double epsilon = std::numeric_limits<double>::epsilon();
    QCOMPARE(epsilon, 2.220446049250313e-16);

    QCOMPARE(matrixOf({0, 0, 0, epsilon, 1}).constData()[0], epsilon);
    QCOMPARE(matrixOf({0, 0, 0, 1, epsilon}).constData()[4], epsilon);
    for (const double other :
         {std::nextafter(epsilon, 0.0), std::nextafter(epsilon, 1.0), -epsilon})
        QCOMPARE(matrixOf({0, 0, 0, other, 1}).constData()[0], 1 / other);
}

void tst_Transform2DMatrices::scaleZeroGivesInfinity()
{
    const DoubleMatrix3x3 turned = matrixOf({0.1, 0.2, 30, 0, 2});
    const DoubleMatrix3x3 plain = matrixOf({0, 0, 0, 1, 0});

    QCOMPARE(turned.constData()[0], kInfinity);
    QCOMPARE(turned.constData()[1], -kInfinity);
    QCOMPARE(plain.constData()[4], kInfinity);
    // What the other scale makes stays as it is.
    for (const int i : {3, 4, 5})
        QCOMPARE(turned.constData()[i], matrixOf({0.1, 0.2, 30, 1, 2}).constData()[i]);
    for (const int i : {0, 1, 2})
        QCOMPARE(plain.constData()[i], DoubleMatrix3x3().constData()[i]);
}

void tst_Transform2DMatrices::negativeScalesReadBackPositive()
{
    const Numbers negativeX = numbersOf(matrixOf({0, 0, 30, -2, 4}));
    const Numbers negativeY = numbersOf(matrixOf({0, 0, 30, 2, -4}));

    QVERIFY(std::abs(negativeX[2] - 30) < 1e-7);
    QVERIFY(std::abs(negativeX[3] - 2) < 1e-12);
    QVERIFY(std::abs(negativeX[4] - 4) < 1e-12);
    QVERIFY(std::abs(negativeY[2] + 150) < 1e-7);
    QVERIFY(std::abs(negativeY[3] - 2) < 1e-12);
    QVERIFY(std::abs(negativeY[4] - 4) < 1e-12);
}

void tst_Transform2DMatrices::lastRowOfAMatrix()
{
    const QVector<double> e = elementsOf(matrixOf({0.1, 0.2, 30, 2, 4}));
    QVector<double> ignored = e;
    ignored[6] = 5;
    ignored[7] = kNaN;
    QVector<double> doubled = e;
    doubled[8] = 2;

    QVERIFY(numbersOf(matrixFrom(ignored)) == numbersOf(matrixFrom(e)));
    QVERIFY(numbersOf(matrixFrom(doubled)) != numbersOf(matrixFrom(e)));
}

void tst_Transform2DMatrices::outputsMayBeLeftOut()
{
    double rotation = 0;

    Editor::MatrixToXfrm(matrixOf({0, 0, 30, 1, 1}), nullptr, nullptr, &rotation, nullptr, nullptr);
    Editor::MatrixToXfrm(DoubleMatrix3x3(), nullptr, nullptr, nullptr, nullptr, nullptr);

    QVERIFY(std::abs(rotation - 30) < 1e-7);
}

// Scales and rotations are compared with themselves, however small they are. An offset is a
// difference of numbers of the size of the scale, so that it comes back with an error of their
// rounding, whatever its own size: it is compared with itself or with 0.0001, the smallest offset
// that a field can show, if it is smaller than that.
void tst_Transform2DMatrices::transformsComeBack()
{
    constexpr int kCount = 100000;
    constexpr double kSmallestOffset = 0.0001;
    constexpr double kShortening = 0.01745329251 * 57.2957795131; // of every rotation
    Random random;
    double offset = 0;
    double relativeOffset = 0;
    double plainRotation = 0;
    double rotation = 0;
    double scale = 0;
    for (int i = 0; i < kCount; ++i) {
        const Numbers in = random.transform();
        const Numbers out = numbersOf(matrixOf(in));
        for (const std::size_t k : {0U, 1U}) {
            const double error = std::abs(out[k] - in[k]);
            offset = std::max(offset, error);
            relativeOffset =
                std::max(relativeOffset, error / std::max(std::abs(in[k]), kSmallestOffset));
        }
        plainRotation = std::max(plainRotation, std::abs(out[2] / in[2] - 1));
        rotation = std::max(rotation, std::abs(out[2] / (in[2] * kShortening) - 1));
        for (const std::size_t k : {3U, 4U})
            scale = std::max(scale, std::abs(out[k] / in[k] - 1));
    }

    qInfo("offset: %g absolute, %g relative to itself or 0.0001", offset, relativeOffset);
    qInfo("rotation: %g relative, %g beside the shortening; scale: %g relative", plainRotation,
          rotation, scale);
    QVERIFY(offset <= 1e-13);
    QVERIFY(relativeOffset <= 1e-9);
    QVERIFY(plainRotation <= 1e-9);
    QVERIFY(rotation <= 1e-14);
    QVERIFY(scale <= 1e-14);
}

void tst_Transform2DMatrices::constantsShortenRotations_data()
{
    QTest::addColumn<double>("degrees");
    QTest::newRow("half turn") << 180.0;
    QTest::newRow("half turn back") << -180.0;
    QTest::newRow("quarter turn") << 90.0;
    QTest::newRow("smallest of the field") << 0.01;
    QTest::newRow("tiny") << 1e-300;
    QTest::newRow("none") << 0.0;
}

// 1 - 0.01745329251 * 57.2957795131 is 5.69400323119e-10; nothing else is lost.
void tst_Transform2DMatrices::constantsShortenRotations()
{
    QFETCH(double, degrees);

    const double back = numbersOf(matrixOf({0.3, -0.2, degrees, 2, 3}))[2];

    const double lost = degrees - back;
    QVERIFY(std::abs(lost - degrees * 5.69400323119e-10) <= std::abs(degrees) * 1e-15);
    if (degrees == 180.0)
        QVERIFY(std::abs(lost - 1.0249206e-7) < 1e-13);
}

// Against the true matrix of a half turn, the one made is 1.78979323846e-9 radians short. That moves
// a point by as much for each unit of its distance from the middle, divided by the scale.
void tst_Transform2DMatrices::constantsTurnMatricesShort()
{
    const Long kShort = 1.78979323846264338e-9L;
    const Long kPi = 3.14159265358979323846264338327950288L;
    for (const double scale : {1.0, 0.0001}) {
        const Numbers numbers{1, 1, 180, scale, scale};
        const LongMatrix exact = translation(0.5L, 0.5L) * scaling(1 / Long(scale), 1 / Long(scale))
                                 * rotation(kPi) * translation(-1.5L, -1.5L);
        const DoubleMatrix3x3 matrix = matrixOf(numbers);

        // The origin stands (-1.5, -1.5) from the middle once it is moved.
        const Long x = matrix.constData()[2] - exact[0][2];
        const Long y = matrix.constData()[5] - exact[1][2];
        const Long expected = 1.5L * kShort / Long(scale);
        QVERIFY(std::abs(std::abs(x) - expected) <= 1e-6L * expected);
        QVERIFY(std::abs(std::abs(y) - expected) <= 1e-6L * expected);
    }
}

// Exactly, because a folded row unfolds when the scales of its value differ.
void tst_Transform2DMatrices::equalScalesComeBackEqual()
{
    Random random;
    int unequal = 0;
    for (int i = 0; i < 20000; ++i) {
        Numbers numbers = random.transform();
        numbers[4] = numbers[3];
        const Numbers back = numbersOf(matrixOf(numbers));
        unequal += back[3] != back[4];
    }

    QCOMPARE(unequal, 0);
}

void tst_Transform2DMatrices::rotationsAboutAnAxis_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QVector<double>>("elements");

    const double c = std::cos(0.5);
    const double s = std::sin(0.5);
    const QVector<double> identity{1, 0, 0, 0, 1, 0, 0, 0, 1};
    QTest::newRow("first") << 0 << QVector<double>{1, 0, 0, 0, c, -s, 0, s, c};
    QTest::newRow("second") << 1 << QVector<double>{c, 0, s, 0, 1, 0, -s, 0, c};
    QTest::newRow("third") << 2 << QVector<double>{c, -s, 0, s, c, 0, 0, 0, 1};
    QTest::newRow("none before") << -1 << identity;
    QTest::newRow("none behind") << 3 << identity;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << identity;
    QTest::newRow("highest") << std::numeric_limits<int>::max() << identity;
}

void tst_Transform2DMatrices::rotationsAboutAnAxis()
{
    QFETCH(int, axis);
    DoubleMatrix3x3 matrix;
    matrix.fill(77);

    Editor::MatrixCalculateRotation(0.5, axis, matrix);

    QTEST(elementsOf(matrix), "elements");
}

QTEST_MAIN(tst_Transform2DMatrices)
#include "tst_Transform2DMatrices.moc"
