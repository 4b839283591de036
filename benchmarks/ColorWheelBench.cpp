// Measures the paint of a colour wheel beside the least that it could be, its images and its markers
// alone, and beside Qt's dial; its first paint; and a step of a drag. Processor time, in one run.
//
//   bench-color-wheel [REPETITIONS]

#include "Measure.h"

#include <core/ColorWheel.h>
#include <core/KitCounters_p.h>
#include <core/WheelPainting_p.h>

#include <QApplication>
#include <QDial>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Tessark::UI;

namespace {

constexpr int kSide = 160;
constexpr double kRatio = 2;
constexpr int kPaints = 100;
constexpr int kDragSteps = 1000;
constexpr double kPaintTarget = 500; // microseconds

const Hsv kColor{0.58, 0.67, 0.6};

QImage canvas()
{
    QImage image(int(kSide * kRatio), int(kSide * kRatio), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(kRatio);
    image.fill(Qt::white);
    return image;
}

/// A widget that draws an image of the disc, one of the value ring, and the two markers.
class PlainLayers : public QWidget
{
public:
    PlainLayers()
        : m_wheel(wheelGeometry(ColorWheel::DiscAndValueRing, QSizeF(kSide, kSide)))
    {
        WheelImages images;
        WheelImageSpec spec;
        spec.outerRadius = m_wheel.discRadius * kRatio;
        m_disc = images.image(spec);
        // The wheel has disc and ring in one image; here they are two.
        spec.layer = WheelLayer::DiscAndRing;
        spec.outerRadius = m_wheel.outerRadius * kRatio;
        spec.innerRadius = m_wheel.ringInnerRadius * kRatio;
        spec.discRadius = m_wheel.discRadius * kRatio;
        m_ring = images.image(spec);
        {
            QPainter painter(&m_ring);
            painter.setCompositionMode(QPainter::CompositionMode_Clear);
            painter.setPen(Qt::NoPen);
            painter.setBrush(Qt::black);
            const QPointF middle(m_ring.width() / 2.0, m_ring.height() / 2.0);
            const double radius = spec.discRadius + 2;
            painter.drawEllipse(middle, radius, radius);
        }
        m_disc.setDevicePixelRatio(kRatio);
        m_ring.setDevicePixelRatio(kRatio);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (const QPixmap &image : {m_disc, m_ring})
            painter.drawPixmap(
                m_wheel.center - QPointF(image.width(), image.height()) / (2 * kRatio), image);
        WheelPicture picture;
        picture.hsv = kColor;
        paintWheelMarkers(&painter, m_wheel, picture);
    }

private:
    WheelGeometry m_wheel;
    QPixmap m_disc;
    QPixmap m_ring;
};

/// What happens to a wheel before its i-th paint.
using Change = std::function<void(ColorWheel *, int i)>;

void changeNothing(ColorWheel *, int) {}

void moveInDisc(ColorWheel *wheel, int i)
{
    wheel->setHsv(0.3 + 0.004 * i, kColor.saturation, wheel->value());
}

void moveInRing(ColorWheel *wheel, int i)
{
    wheel->setRingValue(float(0.3 + 0.004 * i));
}

void setOtherColor(ColorWheel *wheel, int i)
{
    wheel->setHsv(0.3 + 0.004 * i, kColor.saturation, 0.3 + 0.004 * i);
}

/// Microseconds of one paint.
double paintTime(QWidget *widget, QImage *image)
{
    const double seconds = secondsOf([&] {
        for (int i = 0; i < kPaints; ++i)
            widget->render(image);
    });
    return seconds * 1e6 / kPaints;
}

/// The same with a change before each; that takes next to nothing.
double paintTime(ColorWheel *wheel, const Change &change, QImage *image)
{
    const double seconds = secondsOf([&] {
        for (int i = 0; i < kPaints; ++i) {
            change(wheel, i);
            wheel->render(image);
        }
    });
    return seconds * 1e6 / kPaints;
}

void comparePaints(const char *title, ColorWheel *ours, const Change &change, QWidget *theirs,
                   int repetitions, double target)
{
    QImage image = canvas();
    for (QWidget *widget : {static_cast<QWidget *>(ours), theirs}) {
        widget->resize(kSide, kSide);
        widget->render(&image);
    }
    std::vector<double> ourTimes, theirTimes, ratios;
    for (int i = 0; i < repetitions; ++i) {
        ourTimes.push_back(paintTime(ours, change, &image));
        theirTimes.push_back(paintTime(theirs, &image));
        ratios.push_back(ourTimes.back() / theirTimes.back());
    }
    std::printf("%-44s %9.1f %9.1f %7.2f %7.2f\n", title, median(ourTimes), median(theirTimes),
                median(ratios), target);
}

void comparePaintsOfMode(const char *title, ColorWheel::DisplayMode mode, const Change &change,
                         QWidget *theirs, int repetitions, double target)
{
    ColorWheel wheel;
    wheel.setDisplayMode(mode);
    wheel.setHsv(kColor.hue, kColor.saturation, kColor.value);
    comparePaints(title, &wheel, change, theirs, repetitions, target);
}

void measureFirstPaint(int repetitions, double dialTime)
{
    std::vector<double> times;
    QImage image = canvas();
    for (int i = 0; i < repetitions; ++i) {
        QPixmapCache::clear();
        ColorWheel wheel;
        wheel.setDisplayMode(ColorWheel::DiscAndValueRing);
        wheel.resize(kSide, kSide);
        times.push_back(secondsOf([&] { wheel.render(&image); }) * 1e6);
    }
    std::printf("%-44s %9.1f %9.1f %7.2f %7.2f\n", "first paint of all : QDial", median(times),
                dialTime, median(times) / dialTime, 4.0);
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPointF &at, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at.toPoint()), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void measureDragStep(int repetitions)
{
    ColorWheel wheel;
    wheel.setDisplayMode(ColorWheel::DiscAndValueRing);
    wheel.resize(kSide, kSide);
    wheel.show();
    settle();
    QImage image = canvas();
    wheel.render(&image);
    const int imagesBefore = kitCounters().imagesMade;
    sendMouse(&wheel, QEvent::MouseButtonPress, {80, 80}, Qt::LeftButton);
    std::vector<double> stepTimes, ratios;
    const double paint = paintTime(&wheel, moveInDisc, &image);
    for (int i = 0; i < repetitions; ++i) {
        const double seconds = secondsOf([&] {
            for (int step = 0; step < kDragSteps; ++step)
                sendMouse(&wheel, QEvent::MouseMove, {80.0 + step % 50, 70.0 + step % 7},
                          Qt::LeftButton);
        });
        stepTimes.push_back(seconds * 1e6 / kDragSteps);
        wheel.render(&image);
    }
    sendMouse(&wheel, QEvent::MouseButtonRelease, {80, 80}, Qt::NoButton);
    std::printf("%-44s %9.2f %9.1f %7.4f %7.2f\n", "drag step : its paint", median(stepTimes),
                paint, median(stepTimes) / paint, 0.01);
    std::printf("%-44s %9d\n", "images made in that drag", kitCounters().imagesMade - imagesBefore);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(std::atoi(argv[1]), 1) : 21;

    std::printf("Qt %s, %d x %d at ratio %.0f, median of %d, microseconds of processor time\n",
                qVersion(), kSide, kSide, kRatio, repetitions);
    std::printf("A paint is to take %.0f at most.\n", kPaintTarget);
    std::printf("%-44s %9s %9s %7s %7s\n", "", "wheel", "other", "ratio", "target");
    PlainLayers plain;
    QDial dial;
    const auto compareBoth = [&](const char *title, const Change &change) {
        comparePaintsOfMode(title, ColorWheel::DiscAndValueRing, change, &plain, repetitions, 2);
    };
    compareBoth("painted again : images and markers", changeNothing);
    compareBoth("dragged in the disc : images and markers", moveInDisc);
    compareBoth("dragged in the ring : images and markers", moveInRing);
    compareBoth("all other colours : images and markers", setOtherColor);
    comparePaintsOfMode("disc and ring, other colours : QDial", ColorWheel::DiscAndValueRing,
                        setOtherColor, &dial, repetitions, 1);
    comparePaintsOfMode("disc, other colours : QDial", ColorWheel::HueSaturationDisc, setOtherColor,
                        &dial, repetitions, 1);
    comparePaintsOfMode("triangle, other colours : QDial", ColorWheel::HueRingTriangle,
                        setOtherColor, &dial, repetitions, 1);
    QImage image = canvas();
    measureFirstPaint(repetitions, paintTime(&dial, &image));
    measureDragStep(repetitions);
    return 0;
}
