#include "core/ColorWheel.h"
#include "core/KitCounters_p.h"
#include "core/WheelGeometry_p.h"

#include "support/WheelPointer.h"

#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

using namespace Tessark::UI;

Q_DECLARE_METATYPE(Tessark::UI::WheelPart)

class tst_ColorWheelPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyPixelHasItsColor_data();
    void everyPixelHasItsColor();
    void oddSizes_data();
    void oddSizes();
    void fractionsOfPixels_data();
    void fractionsOfPixels();
    void disabledFades_data();
    void disabledFades();
    void cornersStayTransparent_data();
    void cornersStayTransparent();
    void edgesAreSmooth_data();
    void edgesAreSmooth();
    void smallWheels();
    void dotShowsTheColor();
    void barStandsOutOnTheRing_data();
    void barStandsOutOnTheRing();
    void focusMarkComesWithTheKeyboard();
    void styleSheetBackground();
    void rotatedPainter();

    void changedColorsAreShown_data();
    void changedColorsAreShown();
    void imagesAreMadeWhenPainted();
    void imagesOfAModeAreMadeOnce_data();
    void imagesOfAModeAreMadeOnce();
    void imagesOfSizesAndRatios();
    void dragsMakeNoImages_data();
    void dragsMakeNoImages();
    void anglesAreHalved_data();
    void anglesAreHalved();
    void invisibleChangesPaintNothing();
    void changesOfOnePassArePaintedOnce();

private:
    std::unique_ptr<ColorWheel> m_wheel; // 160 x 160, of the colour kColor
};

namespace {

const Hsv kColor{0.58, 0.67, 0.6};
const QColor kLight(239, 239, 239);
const QColor kDark(45, 45, 48);

/// The wheel on a background.
QImage paint(ColorWheel *wheel, double ratio, const QColor &background)
{
    QImage image((QSizeF(wheel->size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(background);
    wheel->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

double lengthOf(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

bool isNearMarker(const WheelGeometry &wheel, const QPointF &point)
{
    for (const WheelPart part : {WheelPart::Disc, WheelPart::Triangle}) {
        if (hasPart(wheel, part) && lengthOf(point - markerOf(wheel, part, kColor)) < 8)
            return true;
    }
    if (wheel.ring == WheelPart::None)
        return false;
    return lengthOf(point - markerOf(wheel, wheel.ring, kColor)) < wheel.side * 0.1;
}

/// How far a point is inside the triangle.
double insideTriangle(const WheelGeometry &wheel, const QPointF &point)
{
    const auto corners = triangleCorners(wheel);
    double inside = HUGE_VAL;
    for (int i = 0; i < 3; ++i) {
        const QPointF along = corners[std::size_t(i + 1) % 3] - corners[std::size_t(i)];
        const QPointF to = point - corners[std::size_t(i)];
        inside = std::min(inside, (along.x() * to.y() - along.y() * to.x()) / lengthOf(along));
    }
    return inside;
}

/// The colour that a point well inside a part is to have; nothing near edges and outside the parts.
std::optional<Hsv> expectedAt(const WheelGeometry &wheel, const QPointF &point, double margin)
{
    const double radius = distanceFromCenter(wheel, point);
    const double angle = angleAt(wheel, point);
    if (wheel.discRadius > 0 && radius < wheel.discRadius - margin)
        return Hsv{angle / 360, radius / wheel.discRadius, std::max(kColor.value, 0.25)};
    if (wheel.triangleRadius > 0 && insideTriangle(wheel, point) > margin)
        return triangleColorAt(wheel, point, kColor);
    const bool isOnRing =
        radius > wheel.ringInnerRadius + margin && radius < wheel.outerRadius - margin;
    if (wheel.ring == WheelPart::HueRing && isOnRing)
        return Hsv{angle / 360, 1, 1};
    if (wheel.ring == WheelPart::ValueRing && isOnRing) {
        const double turn = valueRingTurnAt(angle);
        const double rim = margin / radius * 180 / M_PI;
        if (turn > rim && turn < kValueRingTurn - rim)
            return Hsv{kColor.hue, kColor.saturation, valueOfTurn(turn)};
    }
    return std::nullopt;
}

int distanceOf(QRgb actual, const Rgb &expected)
{
    const auto distance = [](int byte, double fraction) {
        return int(std::ceil(std::abs(byte - fraction * 255) - 0.5));
    };
    return std::max({distance(qRed(actual), expected.red), distance(qGreen(actual), expected.green),
                     distance(qBlue(actual), expected.blue)});
}

struct Comparison
{
    int worst = 0; // distance of a colour, of 255
    int pixels = 0;
};

/// Compares the picture with the colours, mixed with the background as opaque as given.
Comparison compare(const QImage &picture, const WheelGeometry &wheel, const QColor &background,
                   double opacity)
{
    const double ratio = picture.devicePixelRatio();
    const Rgb behind{double(background.redF()), double(background.greenF()),
                     double(background.blueF())};
    Comparison comparison;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QPointF point((x + 0.5) / ratio, (y + 0.5) / ratio);
            if (isNearMarker(wheel, point))
                continue;
            const std::optional<Hsv> hsv = expectedAt(wheel, point, 1.5 / std::min(ratio, 1.5));
            if (!hsv)
                continue;
            const Rgb color = rgbOf(*hsv);
            const auto mixed = [opacity](double front, double back) {
                return front * opacity + back * (1 - opacity);
            };
            const Rgb expected{mixed(color.red, behind.red), mixed(color.green, behind.green),
                               mixed(color.blue, behind.blue)};
            comparison.worst =
                std::max(comparison.worst, distanceOf(picture.pixel(x, y), expected));
            ++comparison.pixels;
        }
    }
    return comparison;
}

/// Rows of every mode with every ratio on every background.
void addPictureRows()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QColor>("background");

    const char *const modes[] = {"disc", "triangle", "disc and ring"};
    for (int mode = 0; mode < 3; ++mode) {
        for (const double ratio : {1.0, 1.25, 2.0, 3.0}) {
            for (const QColor &background : {kLight, kDark}) {
                QTest::addRow("%s at %.2f on %s", modes[mode], ratio,
                              background == kLight ? "light" : "dark")
                    << mode << ratio << background;
            }
        }
    }
}

void addModeRows()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("disc") << 0;
    QTest::newRow("triangle") << 1;
    QTest::newRow("disc and ring") << 2;
}

/// How many images the action makes.
int imagesOf(const std::function<void()> &action)
{
    const int before = kitCounters().imagesMade;
    action();
    return kitCounters().imagesMade - before;
}

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    int take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_paints, 0);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_paints = 0;
};

} // namespace

void tst_ColorWheelPainting::init()
{
    QPixmapCache::clear();
    m_wheel = std::make_unique<ColorWheel>();
    m_wheel->resize(160, 160);
    m_wheel->setHsv(kColor.hue, kColor.saturation, kColor.value);
}

void tst_ColorWheelPainting::everyPixelHasItsColor_data()
{
    addPictureRows();
}

void tst_ColorWheelPainting::everyPixelHasItsColor()
{
    QFETCH(int, mode);
    QFETCH(double, ratio);
    QFETCH(QColor, background);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));

    const QImage picture = paint(m_wheel.get(), ratio, background);

    const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());
    const Comparison comparison = compare(picture, wheel, background, 1);
    QVERIFY2(comparison.worst <= 2, qPrintable(QString::number(comparison.worst)));
    QVERIFY(comparison.pixels > 9000 * ratio * ratio);
}

void tst_ColorWheelPainting::oddSizes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");

    for (const QSize &size : {QSize(161, 161), QSize(161, 160), QSize(160, 203), QSize(301, 163),
                              QSize(40, 40), QSize(41, 41), QSize(47, 60)}) {
        for (int mode = 0; mode < 3; ++mode) {
            for (const double ratio : {1.0, 2.0}) {
                QTest::addRow("mode %d, %d x %d at %.0f", mode, size.width(), size.height(), ratio)
                    << mode << size << ratio;
            }
        }
    }
}

/// The centre may lie in the middle of a pixel.
void tst_ColorWheelPainting::oddSizes()
{
    QFETCH(int, mode);
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    m_wheel->resize(size);

    const QImage picture = paint(m_wheel.get(), ratio, kLight);

    const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());
    const Comparison comparison = compare(picture, wheel, kLight, 1);
    QVERIFY2(comparison.worst <= 2, qPrintable(QString::number(comparison.worst)));
}

void tst_ColorWheelPainting::fractionsOfPixels_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("enabled");

    for (int mode = 0; mode < 3; ++mode) {
        QTest::addRow("mode %d, enabled", mode) << mode << true;
        QTest::addRow("mode %d, disabled", mode) << mode << false;
    }
}

/// The centre may lie anywhere in a pixel; then the whole wheel moves by less than one, in one piece.
void tst_ColorWheelPainting::fractionsOfPixels()
{
    QFETCH(int, mode);
    QFETCH(bool, enabled);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    m_wheel->setEnabled(enabled);
    for (const int side : {121, 122, 123, 124}) {
        for (const double ratio : {1.25, 1.5, 1.75}) {
            m_wheel->resize(side, side);
            const QImage picture = paint(m_wheel.get(), ratio, kLight);
            const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());
            const Comparison comparison = compare(picture, wheel, kLight, enabled ? 1 : 0.35);
            QVERIFY2(
                comparison.worst <= 5,
                qPrintable(
                    QStringLiteral("%1 at %2: %3").arg(side).arg(ratio).arg(comparison.worst)));
        }
    }
}

void tst_ColorWheelPainting::disabledFades_data()
{
    addPictureRows();
}

void tst_ColorWheelPainting::disabledFades()
{
    QFETCH(int, mode);
    QFETCH(double, ratio);
    QFETCH(QColor, background);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    m_wheel->setEnabled(false);

    const QImage picture = paint(m_wheel.get(), ratio, background);

    const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());
    const Comparison comparison = compare(picture, wheel, background, 0.35);
    QVERIFY2(comparison.worst <= 2, qPrintable(QString::number(comparison.worst)));
    if (ratio < 2)
        return; // no pixel lies on the marker's line alone
    const WheelPart area = mode == 1 ? WheelPart::Triangle : WheelPart::Disc;
    const QPointF line = markerOf(wheel, area, kColor) + QPointF(4, 0);
    QCOMPARE(picture.pixel((line * ratio - QPointF(0.5, 0.5)).toPoint()),
             m_wheel->palette().color(QPalette::Disabled, QPalette::Mid).rgb());
}

void tst_ColorWheelPainting::cornersStayTransparent_data()
{
    addModeRows();
}

/// Nothing is painted outside the wheel, nor in the gap of the value ring or beside the triangle.
void tst_ColorWheelPainting::cornersStayTransparent()
{
    QFETCH(int, mode);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    const QImage picture = paint(m_wheel.get(), 2, Qt::transparent);
    const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());

    int transparent = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QPointF point((x + 0.5) / 2, (y + 0.5) / 2);
            if (distanceFromCenter(wheel, point) < 79)
                continue;
            QCOMPARE(qAlpha(picture.pixel(x, y)), 0);
            ++transparent;
        }
    }
    QVERIFY(transparent > 1000);
    if (mode == ColorWheel::DiscAndValueRing)
        QCOMPARE(qAlpha(picture.pixel(160, 300)), 0);
    if (mode == ColorWheel::HueRingTriangle)
        QCOMPARE(qAlpha(picture.pixel(160, 250)), 0);
}

void tst_ColorWheelPainting::edgesAreSmooth_data()
{
    addModeRows();
}

/// Around the outer edge there are pixels of all degrees of opacity.
void tst_ColorWheelPainting::edgesAreSmooth()
{
    QFETCH(int, mode);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    const QImage picture = paint(m_wheel.get(), 1, Qt::transparent);

    bool seen[4] = {};
    for (int x = 20; x < 140; ++x) {
        for (int y = 0; y < 80; ++y) {
            const int alpha = qAlpha(picture.pixel(x, y));
            if (alpha > 0 && alpha < 255)
                seen[alpha / 64] = true;
        }
    }
    for (const bool degree : seen)
        QVERIFY(degree);
}

void tst_ColorWheelPainting::smallWheels()
{
    for (int mode = 0; mode < 3; ++mode) {
        m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
        for (int side = 0; side < 45; ++side) {
            m_wheel->resize(side, side);
            QImage picture(50, 50, QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::transparent);
            m_wheel->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
            int painted = 0;
            for (int y = 0; y < 50; ++y) {
                for (int x = 0; x < 50; ++x)
                    painted += qAlpha(picture.pixel(x, y)) > 0 ? 1 : 0;
            }
            QCOMPARE(painted > 0, side >= 4);
        }
    }
}

void tst_ColorWheelPainting::dotShowsTheColor()
{
    m_wheel->setDisplayMode(ColorWheel::DiscAndValueRing);
    const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());

    const QImage picture = paint(m_wheel.get(), 3, kLight);

    const QPointF dot = markerOf(wheel, WheelPart::Disc, kColor);
    const auto colorAt = [&](double radius) {
        return picture.pixelColor(((dot + QPointF(0, radius)) * 3 - QPointF(0.5, 0.5)).toPoint());
    };
    QVERIFY(distanceOf(colorAt(0).rgb(), rgbOf(kColor)) <= 1);
    QVERIFY(distanceOf(colorAt(2).rgb(), rgbOf(kColor)) <= 1);
    QCOMPARE(colorAt(4), QColor(Qt::white));
    QCOMPARE(colorAt(5.5), QColor(Qt::black));
}

void tst_ColorWheelPainting::barStandsOutOnTheRing_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<WheelPart>("ring");

    QTest::newRow("hue ring") << 1 << WheelPart::HueRing;
    QTest::newRow("value ring") << 2 << WheelPart::ValueRing;
}

void tst_ColorWheelPainting::barStandsOutOnTheRing()
{
    QFETCH(int, mode);
    QFETCH(WheelPart, ring);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    m_wheel->setHsv(0.5, 0.5, 0.2); // both bars lie across, at 9 o'clock
    const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());

    const QImage picture = paint(m_wheel.get(), 2, kLight);

    const QPointF middle = markerOf(wheel, ring, {0.5, 0.5, 0.2});
    const auto colorAt = [&](double down) {
        return picture.pixel(((middle + QPointF(0, down)) * 2 - QPointF(0.5, 0.5)).toPoint());
    };
    for (const double sign : {-1.0, 1.0}) {
        QVERIFY(distanceOf(colorAt(sign * 0.5), {1, 1, 1}) <= 2);
        QVERIFY(distanceOf(colorAt(sign * 1.1), {1, 1, 1}) <= 2);
        QVERIFY(distanceOf(colorAt(sign * 2), {0, 0, 0}) <= 2);
    }
}

void tst_ColorWheelPainting::focusMarkComesWithTheKeyboard()
{
    m_wheel->setDisplayMode(ColorWheel::DiscAndValueRing);
    QPalette palette = m_wheel->palette();
    palette.setColor(QPalette::Highlight, Qt::blue);
    m_wheel->setPalette(palette);
    m_wheel->show();
    m_wheel->activateWindow();
    m_wheel->setFocus(Qt::MouseFocusReason);
    QVERIFY(QTest::qWaitForWindowActive(m_wheel.get()));
    const auto markAt = [this](const QPointF &point) {
        const QImage picture = paint(m_wheel.get(), 1, kLight);
        return distanceOf(picture.pixel(point.toPoint()), {0, 0, 1}) <= 5;
    };
    const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());
    const QPointF besideDot = markerOf(wheel, WheelPart::Disc, kColor) + QPointF(6.5, -0.5);

    m_wheel->setAttribute(Qt::WA_KeyboardFocusChange, false);
    QVERIFY(!markAt({80, 0}));
    QVERIFY(!markAt(besideDot));

    m_wheel->setAttribute(Qt::WA_KeyboardFocusChange, true);
    QVERIFY(markAt({80, 0}) && markAt({80, 1}));
    QVERIFY(markAt(besideDot));

    m_wheel->clearFocus();
    QVERIFY(!markAt({80, 0}));
}

void tst_ColorWheelPainting::styleSheetBackground()
{
    m_wheel->setStyleSheet(
        QStringLiteral("Tessark--UI--ColorWheel { background: rgb(10, 200, 30); }"));

    const QImage picture = paint(m_wheel.get(), 1, kLight);

    QCOMPARE(picture.pixelColor(1, 1), QColor(10, 200, 30));
}

/// Turned by a host's painter the wheel has no grid of pixels to lie on; it is painted all the same.
void tst_ColorWheelPainting::rotatedPainter()
{
    m_wheel->setDisplayMode(ColorWheel::DiscAndValueRing);
    QImage picture(160, 160, QImage::Format_ARGB32_Premultiplied);
    picture.fill(kLight);
    {
        QPainter painter(&picture);
        painter.translate(160, 0);
        painter.rotate(90);
        m_wheel->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    }
    const Rgb red = rgbOf({0, 40 / 59.0, kColor.value}); // at 3 o'clock, now at 6
    QVERIFY(distanceOf(picture.pixel(80, 120), red) < 8);
}

void tst_ColorWheelPainting::changedColorsAreShown_data()
{
    addModeRows();
}

/// Whatever was painted before, and by whichever wheel.
void tst_ColorWheelPainting::changedColorsAreShown()
{
    QFETCH(int, mode);
    ColorWheel other;
    for (ColorWheel *wheel : {m_wheel.get(), &other})
        wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    const auto worst = [this] {
        m_wheel->setHsv(kColor.hue, kColor.saturation, kColor.value);
        const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());
        return compare(paint(m_wheel.get(), 2, kLight), wheel, kLight, 1).worst;
    };

    QVERIFY(worst() <= 2);
    m_wheel->setHsv(kColor.hue + 0.3, kColor.saturation, kColor.value);
    paint(m_wheel.get(), 2, kLight);
    QVERIFY(worst() <= 2);
    m_wheel->setHsv(kColor.hue, kColor.saturation, 0.9);
    paint(m_wheel.get(), 2, kLight);
    QVERIFY(worst() <= 2);
    for (const int side : {160, 120}) {
        other.resize(side, side);
        other.setHsv(0.9, 0.4, 0.8);
        paint(&other, 2, kLight);
        QVERIFY(worst() <= 2);
    }
}

void tst_ColorWheelPainting::imagesAreMadeWhenPainted()
{
    const int images = imagesOf([] {
        ColorWheel wheel;
        wheel.setDisplayMode(ColorWheel::DiscAndValueRing);
        wheel.setHsv(0.1, 0.2, 0.3);
        wheel.resize(100, 100);
        wheel.resize(120, 120);
        QCoreApplication::processEvents();
    });
    QCOMPARE(images, 0);
}

void tst_ColorWheelPainting::imagesOfAModeAreMadeOnce_data()
{
    addModeRows();
}

void tst_ColorWheelPainting::imagesOfAModeAreMadeOnce()
{
    QFETCH(int, mode);
    const auto paintNew = [mode] {
        ColorWheel wheel;
        wheel.setDisplayMode(ColorWheel::DisplayMode(mode));
        wheel.resize(160, 160);
        paint(&wheel, 2, kLight);
    };

    // The disc is an image of its own or shares one with its ring.
    QCOMPARE(imagesOf(paintNew), mode == ColorWheel::HueRingTriangle ? 2 : 1);
    QCOMPARE(imagesOf(paintNew), 0);
}

void tst_ColorWheelPainting::imagesOfSizesAndRatios()
{
    const QSize sizes[] = {{160, 160}, {120, 120}, {61, 61}};
    const double ratios[] = {1, 1.25, 2};
    const auto paintAll = [&] {
        for (const QSize &size : sizes) {
            for (const double ratio : ratios) {
                m_wheel->resize(size);
                paint(m_wheel.get(), ratio, kLight);
            }
        }
    };

    QCOMPARE(imagesOf(paintAll), 3 * 3);
    QCOMPARE(imagesOf(paintAll), 0);
}

void tst_ColorWheelPainting::dragsMakeNoImages_data()
{
    addModeRows();
}

void tst_ColorWheelPainting::dragsMakeNoImages()
{
    QFETCH(int, mode);
    m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
    m_wheel->show();
    paint(m_wheel.get(), 1, kLight);
    QCoreApplication::processEvents();

    const int images = imagesOf([this] {
        for (const QPointF &start : {QPointF(90, 70), QPointF(80, 10)}) {
            WheelPointer pointer(m_wheel.get());
            pointer.press(start);
            for (int i = 0; i < 500; ++i) {
                pointer.move(start + QPointF(i % 71 - 35, i % 53 - 20));
                QCoreApplication::processEvents();
            }
            pointer.release();
        }
    });

    QCOMPARE(images, 0);
}

void tst_ColorWheelPainting::anglesAreHalved_data()
{
    addModeRows();
}

void tst_ColorWheelPainting::anglesAreHalved()
{
    QFETCH(int, mode);
    for (const int side : {160, 161, 90}) {
        m_wheel->setDisplayMode(ColorWheel::DisplayMode(mode));
        m_wheel->resize(side, side);
        const WheelGeometry wheel = wheelGeometry(m_wheel->displayMode(), m_wheel->size());
        const int before = kitCounters().anglesOfImages;

        paint(m_wheel.get(), 2, kLight);

        double area = wheel.discRadius * wheel.discRadius;
        if (wheel.ring != WheelPart::None)
            area += wheel.outerRadius * wheel.outerRadius
                    - wheel.ringInnerRadius * wheel.ringInnerRadius;
        const double pixels = M_PI * area * 4;
        const int angles = kitCounters().anglesOfImages - before;
        QVERIFY2(angles <= 0.55 * pixels, qPrintable(QString::number(angles / pixels)));
        QVERIFY(angles > 0.4 * pixels);
    }
}

void tst_ColorWheelPainting::invisibleChangesPaintNothing()
{
    m_wheel->setDisplayMode(ColorWheel::DiscAndValueRing);
    m_wheel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_wheel.get()));
    PaintCounter counter(m_wheel.get());
    m_wheel->setHsv(0.2, 0, 0.5);
    counter.take();

    m_wheel->setHsv(0.7, 0, 0.5); // the hue of a grey
    QCOMPARE(counter.take(), 0);
    m_wheel->setHsv(0.7, 0, 0.5000001);
    QCOMPARE(counter.take(), 0);
    m_wheel->setHsv(0.7, 0, 0.51);
    QCOMPARE(counter.take(), 1);

    m_wheel->setHsv(0.7, 0.5, 0.5);
    counter.take();
    m_wheel->setHsv(0.71, 0.5, 0.5);
    QCOMPARE(counter.take(), 1);
    // Many steps too fine to see add up to one that is seen.
    for (int i = 1; i <= 1000; ++i)
        m_wheel->setHsv(0.71, 0.5 + i * 1e-5, 0.5);
    QCOMPARE(counter.take(), 1);
}

void tst_ColorWheelPainting::changesOfOnePassArePaintedOnce()
{
    m_wheel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_wheel.get()));
    PaintCounter counter(m_wheel.get());
    counter.take();

    for (int i = 0; i < 10; ++i)
        m_wheel->setHsv(i / 10.0, 1, 1);

    QCOMPARE(counter.take(), 1);
}

QTEST_MAIN(tst_ColorWheelPainting)
#include "tst_ColorWheelPainting.moc"
