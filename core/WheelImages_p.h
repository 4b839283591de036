#pragma once

#include <QImage>
#include <QPixmap>

#include <array>

namespace Tessark::UI {

/// The layers of a wheel that are images. None of them depends on the colour shown.
enum class WheelLayer {
    Disc,        // hue and saturation at full value
    DiscAndRing, // the disc; around it the value ring in greys
    HueRing,
    Triangle, // over the full hue: white and black of the triangle's other two corners
};

/// An image of a layer, in device pixels. The wheel's centre is the image's centre.
struct WheelImageSpec
{
    WheelLayer layer = WheelLayer::Disc;
    double outerRadius = 0;
    double innerRadius = 0; // of rings
    double discRadius = 0;  // of a disc in a ring
    // Whether the centre is in the middle of a pixel rather than between two.
    bool isOddWide = false;
    bool isOddHigh = false;
};

bool operator==(const WheelImageSpec &left, const WheelImageSpec &right);

/// What the layers that show more than one value are multiplied with.
struct WheelTint
{
    double discValue = 1;
    QRgb ringColor = 0;
};

/// The images that one wheel uses. They are made when first asked for, once in the process, and live
/// as long as any wheel uses them, and for a while longer in the cache of pixmaps.
class WheelImages
{
public:
    QPixmap image(const WheelImageSpec &spec);

    /// The layer Disc or DiscAndRing in the colours of a moment. All wheels share it: to be painted
    /// before the next call. Multiplying takes less than to lay translucent images over filled shapes.
    const QImage &tintedImage(const WheelImageSpec &spec, const WheelTint &tint);

    void clear();

private:
    struct Handle
    {
        WheelImageSpec spec;
        QPixmap pixmap;
    };
    std::array<Handle, 4> m_handles; // one per layer
};

} // namespace Tessark::UI
