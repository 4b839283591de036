#pragma once

#include <QPixmap>
#include <QPolygonF>

#include <array>
#include <vector>

namespace Tessark::UI {

/// The layers of a wheel that are images. None of them depends on the colour shown.
enum class WheelLayer {
    Disc,        // hue and saturation at full value
    DiscShade,   // black, to be laid over the disc with the opacity of the shade
    DiscAndRing, // the disc; around it black, as opaque as the ring's value falls short of 1
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

/// The images that one wheel uses. They are made when first asked for, once in the process, and live
/// as long as any wheel uses them, and for a while longer in the cache of pixmaps.
class WheelImages
{
public:
    QPixmap image(const WheelImageSpec &spec);

    /// The arc of the value ring, which is no image since its colour changes: as polygons, each in a
    /// few rows of pixels. To fill these takes less than to fill the arc at once.
    const std::vector<QPolygonF> &ringBands(const WheelImageSpec &spec);

    void clear();

private:
    struct Handle
    {
        WheelImageSpec spec;
        QPixmap pixmap;
    };
    std::array<Handle, 5> m_handles; // one per layer
    WheelImageSpec m_bandsSpec;
    std::vector<QPolygonF> m_bands;
};

} // namespace Tessark::UI
