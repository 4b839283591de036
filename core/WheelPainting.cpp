#include "core/WheelPainting_p.h"

#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Tessark::UI {

namespace {

constexpr double kDisabledOpacity = 0.35;
/// The disc is drawn no darker than this, so that its hues can be told apart even at black.
constexpr double kLeastDiscValue = 0.25;

constexpr double kMarkerRadius = 6; // of its black line, which is 1 wide
constexpr double kMarkerWhiteRadius = 5;
constexpr double kMarkerColorRadius = 3;
constexpr double kBarWidth = 3; // of the white bar across the ring, in a black edge
constexpr double kBarEdge = 1;
constexpr double kFocusWidth = 2;

/// Ratios of device pixels to logical pixels that images are made for.
constexpr double kSmallestRatio = 0.5;
constexpr double kLargestRatio = 8;

/// The part in the middle, which the round marker stands on.
WheelPart areaOf(const WheelGeometry &wheel)
{
    return wheel.discRadius > 0 ? WheelPart::Disc : WheelPart::Triangle;
}

/// How the painter's device pixels lie under the wheel.
struct PixelGrid
{
    double ratio = 1;
    bool isAligned = false; // no painter that turns the wheel, nor draws it in an extreme size
    bool isOddWide = false; // the wheel's centre is in the middle of a pixel
    bool isOddHigh = false;
    QPointF shift; // to the nearest place where that is so, in logical pixels
};

bool isOdd(double pixels)
{
    return std::fmod(std::round(pixels), 2) != 0;
}

double nearestOnGrid(double position, bool isOddPlace)
{
    const double offset = isOddPlace ? 0.5 : 0;
    return std::round(position - offset) + offset;
}

/// Whether the centre is in the middle of a pixel follows from the wheel's size alone, so that wheels
/// of one size share images wherever they stand. With whole ratios the shift is 0.
PixelGrid pixelGridOf(const QPainter &painter, const WheelGeometry &wheel)
{
    PixelGrid grid;
    const QTransform transform = painter.deviceTransform();
    const bool isPlain =
        transform.type() <= QTransform::TxScale && qFuzzyCompare(transform.m11(), transform.m22());
    const double ratio = isPlain ? transform.m11() : painter.device()->devicePixelRatioF();
    grid.ratio = std::clamp(ratio, kSmallestRatio, kLargestRatio);
    grid.isOddWide = isOdd(2 * wheel.center.x() * grid.ratio);
    grid.isOddHigh = isOdd(2 * wheel.center.y() * grid.ratio);
    grid.isAligned = isPlain && grid.ratio == ratio;
    if (grid.isAligned) {
        const QPointF center = transform.map(wheel.center);
        const QPointF onGrid(nearestOnGrid(center.x(), grid.isOddWide),
                             nearestOnGrid(center.y(), grid.isOddHigh));
        grid.shift = (onGrid - center) / ratio;
    }
    return grid;
}

class WheelPainter
{
public:
    WheelPainter(QPainter *painter, const WheelGeometry &wheel, const WheelPicture &picture)
        : m_painter(painter)
        , m_wheel(wheel)
        , m_picture(picture)
    {
        painter->setRenderHint(QPainter::Antialiasing);
    }

    void paintLayers(WheelImages *images, const PixelGrid &grid);
    void paintMarkers();
    void paintFocusMark();

private:
    void paintTinted(const WheelImageSpec &spec);
    void paintTriangle();
    WheelImageSpec specOf(WheelLayer layer, double outerRadius, double innerRadius = 0) const;
    void paintImage(const WheelImageSpec &spec);
    void paintDot(const QPointF &center);
    void paintBar(const QPointF &middle);
    void fillCircle(const QPointF &center, double radius, const QColor &color);
    void drawBar(const QPointF &middle, double beyond, double width, const QColor &color);

    QPainter *m_painter;
    const WheelGeometry &m_wheel;
    const WheelPicture &m_picture;
    WheelImages *m_images = nullptr;
    PixelGrid m_grid;
};

void WheelPainter::paintLayers(WheelImages *images, const PixelGrid &grid)
{
    m_images = images;
    m_grid = grid;
    // The painter counts device pixels from the wheel's centre meanwhile, so that no image is scaled.
    const QTransform before = m_painter->transform();
    m_painter->translate(m_wheel.center);
    m_painter->scale(1 / grid.ratio, 1 / grid.ratio);
    m_painter->setPen(Qt::NoPen);
    switch (m_wheel.ring) {
    case WheelPart::ValueRing: {
        WheelImageSpec spec =
            specOf(WheelLayer::DiscAndRing, m_wheel.outerRadius, m_wheel.ringInnerRadius);
        spec.discRadius = m_wheel.discRadius * grid.ratio;
        paintTinted(spec);
        break;
    }
    case WheelPart::HueRing:
        paintImage(specOf(WheelLayer::HueRing, m_wheel.outerRadius, m_wheel.ringInnerRadius));
        paintTriangle();
        break;
    default:
        paintTinted(specOf(WheelLayer::Disc, m_wheel.discRadius));
        break;
    }
    m_painter->setTransform(before);
}

void WheelPainter::paintMarkers()
{
    const WheelPart area = areaOf(m_wheel);
    if (m_wheel.ring != WheelPart::None)
        paintBar(markerOf(m_wheel, m_wheel.ring, m_picture.hsv));
    if (hasPart(m_wheel, area))
        paintDot(markerOf(m_wheel, area, m_picture.hsv));
}

void WheelPainter::paintFocusMark()
{
    m_painter->setPen(QPen(m_picture.focusColor, kFocusWidth));
    m_painter->setBrush(Qt::NoBrush);
    const double radius = m_wheel.side / 2 - kFocusWidth / 2;
    m_painter->drawEllipse(m_wheel.center, radius, radius);
}

void WheelPainter::paintTinted(const WheelImageSpec &spec)
{
    const Hsv &hsv = m_picture.hsv;
    WheelTint tint;
    tint.discValue = std::max(hsv.value, kLeastDiscValue);
    tint.ringColor = colorOf({hsv.hue, hsv.saturation, 1}).rgb();
    const QImage &image = m_images->tintedImage(spec, tint);
    m_painter->drawImage(QPointF(-image.width() / 2.0, -image.height() / 2.0), image);
}

void WheelPainter::paintTriangle()
{
    std::array<QPointF, 3> corners = triangleCorners(m_wheel);
    for (QPointF &corner : corners)
        corner = (corner - m_wheel.center) * m_grid.ratio;
    m_painter->setBrush(colorOf({m_picture.hsv.hue, 1, 1}));
    m_painter->drawConvexPolygon(corners.data(), int(corners.size()));
    paintImage(specOf(WheelLayer::Triangle, m_wheel.triangleRadius));
}

WheelImageSpec WheelPainter::specOf(WheelLayer layer, double outerRadius, double innerRadius) const
{
    WheelImageSpec spec;
    spec.layer = layer;
    spec.outerRadius = outerRadius * m_grid.ratio;
    spec.innerRadius = innerRadius * m_grid.ratio;
    spec.isOddWide = m_grid.isOddWide;
    spec.isOddHigh = m_grid.isOddHigh;
    return spec;
}

void WheelPainter::paintImage(const WheelImageSpec &spec)
{
    const QPixmap image = m_images->image(spec);
    m_painter->drawPixmap(QPointF(-image.width() / 2.0, -image.height() / 2.0), image);
}

/// Visible on every colour, since white is beside black.
void WheelPainter::paintDot(const QPointF &center)
{
    if (m_picture.showsFocus)
        fillCircle(center, kMarkerRadius + kFocusWidth, m_picture.focusColor);
    if (m_picture.isEnabled) {
        fillCircle(center, kMarkerRadius, Qt::black);
        fillCircle(center, kMarkerWhiteRadius, Qt::white);
        fillCircle(center, kMarkerColorRadius, colorOf(m_picture.hsv));
    } else {
        fillCircle(center, kMarkerWhiteRadius, m_picture.disabledMarkerColor);
        fillCircle(center, kMarkerColorRadius, colorOf(m_picture.hsv));
    }
}

void WheelPainter::paintBar(const QPointF &middle)
{
    if (m_picture.isEnabled) {
        drawBar(middle, kBarEdge, kBarWidth + 2 * kBarEdge, Qt::black);
        drawBar(middle, 0, kBarWidth, Qt::white);
    } else {
        drawBar(middle, 0, kBarWidth, m_picture.disabledMarkerColor);
    }
}

void WheelPainter::fillCircle(const QPointF &center, double radius, const QColor &color)
{
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(color);
    m_painter->drawEllipse(center, radius, radius);
}

/// Across the ring, and so far beyond it on both sides.
void WheelPainter::drawBar(const QPointF &middle, double beyond, double width, const QColor &color)
{
    const QPointF outwards = (middle - m_wheel.center) / ringRadius(m_wheel);
    m_painter->setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap));
    m_painter->drawLine(m_wheel.center + outwards * (m_wheel.ringInnerRadius - beyond),
                        m_wheel.center + outwards * (m_wheel.outerRadius + beyond));
}

/// Puts the layers together apart and paints them as one: to let them fade, and where they do not lie
/// on the painter's grid of pixels, where they would show seams.
void paintLayersAsOne(QPainter *painter, const WheelGeometry &wheel, const WheelPicture &picture,
                      const PixelGrid &grid, WheelImages *images)
{
    const QPointF center(nearestOnGrid(wheel.center.x() * grid.ratio, grid.isOddWide),
                         nearestOnGrid(wheel.center.y() * grid.ratio, grid.isOddHigh));
    QPixmap layers(int(std::ceil(2 * center.x())), int(std::ceil(2 * center.y())));
    layers.fill(Qt::transparent);
    {
        QPainter layerPainter(&layers);
        layerPainter.translate(center);
        layerPainter.scale(grid.ratio, grid.ratio);
        layerPainter.translate(-wheel.center);
        WheelPainter(&layerPainter, wheel, picture).paintLayers(images, grid);
    }
    const QTransform before = painter->transform();
    painter->setRenderHint(QPainter::SmoothPixmapTransform, !grid.isAligned);
    painter->setOpacity(picture.isEnabled ? 1 : kDisabledOpacity);
    painter->translate(wheel.center);
    painter->scale(1 / grid.ratio, 1 / grid.ratio);
    painter->drawPixmap(-center, layers);
    painter->setOpacity(1);
    painter->setTransform(before);
}

} // namespace

QColor colorOf(const Hsv &hsv)
{
    const Rgb rgb = rgbOf(hsv);
    return QColor::fromRgbF(float(rgb.red), float(rgb.green), float(rgb.blue));
}

void paintWheel(QPainter *painter, const WheelGeometry &wheel, const WheelPicture &picture,
                WheelImages *images)
{
    if (wheel.outerRadius <= 0)
        return;
    const PixelGrid grid = pixelGridOf(*painter, wheel);
    painter->translate(grid.shift);
    WheelPainter wheelPainter(painter, wheel, picture);
    if (picture.isEnabled && grid.isAligned)
        wheelPainter.paintLayers(images, grid);
    else
        paintLayersAsOne(painter, wheel, picture, grid, images);
    if (picture.showsFocus)
        wheelPainter.paintFocusMark();
    wheelPainter.paintMarkers();
}

void paintWheelMarkers(QPainter *painter, const WheelGeometry &wheel, const WheelPicture &picture)
{
    WheelPainter(painter, wheel, picture).paintMarkers();
}

WheelTrace traceOf(const WheelGeometry &wheel, const Hsv &hsv, double ratio)
{
    constexpr double kStepsPerPixel = 16;
    const double scale = kStepsPerPixel * ratio;
    const QPointF dot = markerOf(wheel, areaOf(wheel), hsv) * scale;
    const QPointF bar = markerOf(wheel, wheel.ring, hsv) * scale;
    const bool hasDisc = wheel.discRadius > 0;
    const double shade = hasDisc ? std::max(hsv.value, kLeastDiscValue) * 255 : 0;
    // What the ring and the triangle are filled with; the disc has all hues at all times.
    const Hsv fill{hsv.hue, hasDisc ? hsv.saturation : 1, 1};
    const QRgb fillColor = wheel.ring == WheelPart::None ? 0 : colorOf(fill).rgb();
    return {std::round(dot.x()), std::round(dot.y()), std::round(bar.x()),
            std::round(bar.y()), std::round(shade),   double(colorOf(hsv).rgb()),
            double(fillColor)};
}

} // namespace Tessark::UI
