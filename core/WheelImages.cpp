#include "core/WheelImages_p.h"

#include "core/KitCounters_p.h"

#include <QImage>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

namespace Tessark::UI {

namespace {

constexpr double kPi = 3.14159265358979323846;

/// The ends of the value ring's arc, in radians from 3 o'clock counter-clockwise.
constexpr double kBrightEnd = -kPi / 3;
constexpr double kDarkEnd = 4 * kPi / 3;

/// A pixel's middle, counted from the image's centre, y upwards.
struct Pixel
{
    float x = 0;
    float y = 0;
    float radius = 0;
};

/// An image that its pixels are set in.
class Canvas
{
public:
    explicit Canvas(const WheelImageSpec &spec)
        : m_image(extentOf(spec.outerRadius, spec.isOddWide),
                  extentOf(spec.outerRadius, spec.isOddHigh), QImage::Format_ARGB32_Premultiplied)
        , m_outer(float(spec.outerRadius) + 1)
        , m_inner(float(spec.innerRadius) - 1)
        , m_width(m_image.width())
        , m_height(m_image.height())
    {
        m_image.fill(Qt::transparent);
        m_pixels = reinterpret_cast<QRgb *>(m_image.bits()); // 32 bits: no padding between lines
    }

    int width() const { return m_width; }
    int height() const { return m_height; }

    /// Calls draw(column, row, pixel) for the pixels of the columns and rows that the disc or ring
    /// of the radii touches.
    template <typename Draw>
    void forEachPixel(int firstColumn, int rows, Draw draw) const
    {
        const float least = m_inner > 0 ? m_inner * m_inner : 0;
        const float most = m_outer * m_outer;
        for (int row = 0; row < rows; ++row) {
            const float y = float(m_height) / 2 - float(row) - 0.5f;
            for (int column = firstColumn; column < m_width; ++column) {
                const float x = float(column) + 0.5f - float(m_width) / 2;
                const float square = x * x + y * y;
                if (square >= least && square <= most)
                    draw(column, row, Pixel{x, y, std::sqrt(square)});
            }
        }
    }

    void set(int column, int row, QRgb color) { m_pixels[row * m_width + column] = color; }

    /// Sets the pixel at the same place counted from the other side or from below.
    void setMirroredInX(int column, int row, QRgb color) { set(m_width - 1 - column, row, color); }
    void setMirroredInY(int column, int row, QRgb color) { set(column, m_height - 1 - row, color); }

    QImage takeImage() { return std::move(m_image); }

private:
    static int extentOf(double radius, bool isOdd)
    {
        const int pixels = int(std::ceil(2 * (radius + 1)));
        return pixels % 2 == int(isOdd) ? pixels : pixels + 1;
    }

    QImage m_image;
    QRgb *m_pixels = nullptr;
    float m_outer;
    float m_inner;
    int m_width;
    int m_height;
};

/// Counts how many angles an image takes, which is most of its cost.
class AngleMeter
{
public:
    ~AngleMeter() { kitCounters().anglesOfImages += m_angles; }

    /// In -pi..pi.
    float angleOf(const Pixel &pixel)
    {
        ++m_angles;
        return std::atan2(pixel.y, pixel.x);
    }

private:
    int m_angles = 0;
};

/// The share of a pixel inside an edge that is so far outside its middle.
float coverage(float distance)
{
    return std::clamp(distance + 0.5f, 0.0f, 1.0f);
}

/// The same for a layer laid over another one with the same edge: half a pixel wider, so that no line
/// of the layer below shines through where both are half transparent.
float coverageOfCover(float distance)
{
    return std::clamp(distance + 1, 0.0f, 1.0f);
}

int byteOf(float fraction)
{
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): quick, and never negative
    return int(fraction * 255 + 0.5f);
}

/// Premultiplied.
QRgb grey(float value, float alpha)
{
    const int level = byteOf(value * alpha);
    return qRgba(level, level, level, byteOf(alpha));
}

float bounded(float fraction)
{
    return std::clamp(fraction, 0.0f, 1.0f);
}

/// The premultiplied colour of an angle in 0..pi, where the hue is between red and cyan.
QRgb upperHue(float angle, float saturation, float alpha)
{
    const float sextants = angle * float(3 / kPi);
    const float white = (1 - saturation) * alpha;
    const float color = saturation * alpha;
    return qRgba(byteOf(white + color * bounded(2 - sextants)),
                 byteOf(white + color * bounded(sextants)),
                 byteOf(white + color * bounded(sextants - 2)), byteOf(alpha));
}

/// The colour of the hue and saturation as far away below the horizontal.
QRgb mirrored(QRgb color)
{
    return qRgba(qRed(color), qBlue(color), qGreen(color), qAlpha(color));
}

/// Draws a surface of hues: the upper half and the middle row are computed, the lower half is their
/// mirror image with green and blue exchanged.
template <typename Inside, typename SaturationOf>
QImage hueImage(const WheelImageSpec &spec, Inside distanceInside, SaturationOf saturationOf)
{
    Canvas canvas(spec);
    AngleMeter meter;
    canvas.forEachPixel(0, (canvas.height() + 1) / 2, [&](int column, int row, const Pixel &pixel) {
        const float alpha = coverage(distanceInside(pixel.radius));
        if (alpha <= 0)
            return;
        const QRgb color = upperHue(meter.angleOf(pixel), saturationOf(pixel.radius), alpha);
        canvas.set(column, row, color);
        canvas.setMirroredInY(column, row, mirrored(color));
    });
    return canvas.takeImage();
}

QImage discImage(const WheelImageSpec &spec)
{
    const float outer = float(spec.outerRadius);
    return hueImage(
        spec, [=](float radius) { return outer - radius; },
        [=](float radius) { return std::min(radius / outer, 1.0f); });
}

QImage hueRingImage(const WheelImageSpec &spec)
{
    const float outer = float(spec.outerRadius);
    const float inner = float(spec.innerRadius);
    return hueImage(
        spec, [=](float radius) { return std::min(outer - radius, radius - inner); },
        [](float) { return 1.0f; });
}

/// The right half, from the middle of the arc to its bright end at 5 o'clock; the value of the left
/// half is what the mirrored place lacks.
QImage valueRingImage(const WheelImageSpec &spec)
{
    const float outer = float(spec.outerRadius);
    const float inner = float(spec.innerRadius);
    const float brightEnd = float(kBrightEnd);
    const float arc = float(kDarkEnd - kBrightEnd);
    const float sine = std::sin(-brightEnd);
    const float cosine = std::cos(-brightEnd);
    Canvas canvas(spec);
    AngleMeter meter;
    canvas.forEachPixel(
        canvas.width() / 2, canvas.height(), [&](int column, int row, const Pixel &pixel) {
            const float fromEnd = pixel.x * sine + pixel.y * cosine;
            const float alpha =
                coverage(std::min({outer - pixel.radius, pixel.radius - inner, fromEnd}));
            if (alpha <= 0)
                return;
            const float darkness = bounded((meter.angleOf(pixel) - brightEnd) / arc);
            canvas.set(column, row, grey(1 - darkness, alpha));
            canvas.setMirroredInX(column, row, grey(darkness, alpha));
        });
    return canvas.takeImage();
}

/// Around the disc there is nothing but the gap, so the two share an image.
QImage discAndRingImage(const WheelImageSpec &spec)
{
    WheelImageSpec discSpec = spec;
    discSpec.outerRadius = spec.discRadius;
    discSpec.innerRadius = 0;
    const QImage disc = discImage(discSpec);
    QImage image = valueRingImage(spec);
    QPainter painter(&image);
    painter.drawImage((image.width() - disc.width()) / 2, (image.height() - disc.height()) / 2,
                      disc);
    return image;
}

QImage triangleImage(const WheelImageSpec &spec)
{
    const float radius = float(spec.outerRadius);
    const float height = 1.5f * radius;
    const float halfRoot = float(std::sqrt(3.0) / 2);
    Canvas canvas(spec);
    canvas.forEachPixel(0, canvas.height(), [&](int column, int row, const Pixel &pixel) {
        // The distances from the edges opposite to the corners of hue, white and black.
        const float fromHue = radius / 2 + pixel.y;
        const float fromWhite = radius / 2 + halfRoot * pixel.x - pixel.y / 2;
        const float fromBlack = radius / 2 - halfRoot * pixel.x - pixel.y / 2;
        const float alpha = coverageOfCover(std::min({fromHue, fromWhite, fromBlack}));
        if (alpha <= 0)
            return;
        const float hueWeight = bounded(fromHue / height);
        const float whiteWeight = std::clamp(fromWhite / height, 0.0f, 1 - hueWeight);
        const int white = byteOf(whiteWeight * alpha);
        canvas.set(column, row, qRgba(white, white, white, byteOf((1 - hueWeight) * alpha)));
    });
    return canvas.takeImage();
}

QImage makeImage(const WheelImageSpec &spec)
{
    ++kitCounters().imagesMade;
    switch (spec.layer) {
    case WheelLayer::Disc:
        return discImage(spec);
    case WheelLayer::DiscAndRing:
        return discAndRingImage(spec);
    case WheelLayer::HueRing:
        return hueRingImage(spec);
    case WheelLayer::Triangle:
        break;
    }
    return triangleImage(spec);
}

QString cacheKeyOf(const WheelImageSpec &spec)
{
    return QStringLiteral("Tessark wheel %1 %2 %3 %4 %5%6")
        .arg(int(spec.layer))
        .arg(spec.outerRadius)
        .arg(spec.innerRadius)
        .arg(spec.discRadius)
        .arg(int(spec.isOddWide))
        .arg(int(spec.isOddHigh));
}

/// A factor for each byte of a row of pixels, in 256ths; alpha stays.
std::vector<quint16> factorsOf(QRgb color, int pixels)
{
    const QRgb opaque = color | 0xff000000;
    std::array<uchar, sizeof(QRgb)> bytes{};
    std::memcpy(bytes.data(), &opaque, sizeof(QRgb)); // in the order in which pixels have them
    std::array<quint16, sizeof(QRgb)> pixelFactors{};
    std::transform(bytes.begin(), bytes.end(), pixelFactors.begin(),
                   [](uchar byte) { return quint16((byte * 256 + 127) / 255); });
    std::vector<quint16> factors;
    factors.reserve(pixelFactors.size() * std::size_t(pixels));
    for (int i = 0; i < pixels; ++i)
        factors.insert(factors.end(), pixelFactors.begin(), pixelFactors.end());
    return factors;
}

/// In 16 bits, so that compilers do many at once.
void multiply(const uchar *from, const quint16 *factors, uchar *to, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        to[i] = uchar(quint16(from[i] * factors[i] + 128) >> 8);
}

/// Where the disc ends and the ring may begin, or outside of the disc where there is no ring.
double edgeBetween(const WheelImageSpec &spec)
{
    return spec.layer == WheelLayer::DiscAndRing ? (spec.discRadius + spec.innerRadius) / 2
                                                 : spec.outerRadius + 1;
}

/// The layers that are multiplied, as they were last asked for.
class TintedImage
{
public:
    /// Only what changed is multiplied anew: the one part that the user drags, usually.
    const QImage &show(const QImage &source, const WheelImageSpec &spec, const WheelTint &tint)
    {
        const bool isOther = m_image.size() != source.size() || !(m_spec == spec);
        if (isOther) {
            m_image = QImage(source.size(), QImage::Format_ARGB32_Premultiplied);
            m_image.fill(Qt::transparent);
            m_spec = spec;
        }
        const int discValue = byteOf(float(tint.discValue));
        if (isOther || discValue != m_discValue)
            multiplyDisc(source, qRgb(discValue, discValue, discValue));
        if (spec.layer == WheelLayer::DiscAndRing && (isOther || tint.ringColor != m_ringColor))
            multiplyRing(source, tint.ringColor);
        m_discValue = discValue;
        m_ringColor = tint.ringColor;
        return m_image;
    }

private:
    void multiplyDisc(const QImage &source, QRgb color)
    {
        const int middle = source.width() / 2;
        const Rows rows = rowsOf(source, color);
        for (int row = 0; row < source.height(); ++row) {
            const int half = halfWidth(edgeBetween(m_spec), row);
            rows.multiply(row, middle - half, middle + half);
        }
    }

    void multiplyRing(const QImage &source, QRgb color)
    {
        const int middle = source.width() / 2;
        const Rows rows = rowsOf(source, color);
        for (int row = 0; row < source.height(); ++row) {
            const int inner = halfWidth(edgeBetween(m_spec), row);
            const int outer = halfWidth(m_spec.outerRadius + 1, row);
            rows.multiply(row, middle - outer, middle - inner);
            rows.multiply(row, middle + inner, middle + outer);
        }
    }

    /// Multiplies columns of a row.
    struct Rows
    {
        const uchar *from;
        uchar *to;
        qsizetype stride;
        std::vector<quint16> factors;

        void multiply(int row, int begin, int end) const
        {
            constexpr int kBytes = sizeof(QRgb);
            const auto first = row * stride + qsizetype(begin) * kBytes;
            UI::multiply(from + first, factors.data(), to + first, (end - begin) * kBytes);
        }
    };

    Rows rowsOf(const QImage &source, QRgb color)
    {
        return {source.constBits(), m_image.bits(), source.bytesPerLine(),
                factorsOf(color, source.width())};
    }

    /// Half the columns of a row whose middles are in a circle; never beyond the image.
    int halfWidth(double radius, int row) const
    {
        const double y = row + 0.5 - m_image.height() / 2.0;
        const double square = radius * radius - y * y;
        // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative
        const int columns = square > 0 ? int(std::sqrt(square) + 0.5) : 0;
        return std::min(columns, m_image.width() / 2);
    }

    QImage m_image;
    WheelImageSpec m_spec;
    int m_discValue = 0;
    QRgb m_ringColor = 0;
};

} // namespace

KitCounters &kitCounters()
{
    static KitCounters counters;
    return counters;
}

bool operator==(const WheelImageSpec &left, const WheelImageSpec &right)
{
    return left.layer == right.layer && left.outerRadius == right.outerRadius
           && left.innerRadius == right.innerRadius && left.discRadius == right.discRadius
           && left.isOddWide == right.isOddWide && left.isOddHigh == right.isOddHigh;
}

QPixmap WheelImages::image(const WheelImageSpec &spec)
{
    Handle &handle = m_handles[std::size_t(spec.layer)];
    if (!handle.pixmap.isNull() && handle.spec == spec)
        return handle.pixmap;
    handle.spec = spec;
    const QString key = cacheKeyOf(spec);
    if (!QPixmapCache::find(key, &handle.pixmap)) {
        handle.pixmap = QPixmap::fromImage(makeImage(spec));
        QPixmapCache::insert(key, handle.pixmap);
    }
    return handle.pixmap;
}

const QImage &WheelImages::tintedImage(const WheelImageSpec &spec, const WheelTint &tint)
{
    static TintedImage s_tinted; // a wheel is done with it before another one paints
    return s_tinted.show(image(spec).toImage(), spec, tint);
}

void WheelImages::clear()
{
    m_handles = {};
}

} // namespace Tessark::UI
