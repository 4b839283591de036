#include "core/ColorWheel.h"

#include "core/ColorLink_p.h"
#include "core/ColorMath_p.h"

#include <QColor>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace Tessark::UI {

namespace {

constexpr int kHintSide = 160;
constexpr int kSmallestHintSide = 64;

/// The fraction clamped to 0..1; NaN gives the fallback.
double boundedFraction(double fraction, double fallback)
{
    return std::isnan(fraction) ? fallback : std::clamp(fraction, 0.0, 1.0);
}

} // namespace

/// What the wheel shows, and how.
struct WheelView
{
    Hsv hsv;
    ColorWheel::DisplayMode displayMode = ColorWheel::HueSaturationDisc;
    ColorWheel::InteractionMode interactionMode = ColorWheel::Absolute;
    bool wheelNeedsFocus = true;
    bool isUserChoice = false; // hsv is what the user chose last: an echo of it changes nothing
    QPointer<ColorLink> link;
};

ColorWheel::ColorWheel(QWidget *parent)
    : QWidget(parent)
    , m_view(std::make_unique<WheelView>())
{
    setFocusPolicy(Qt::StrongFocus);
}

ColorWheel::~ColorWheel() = default;

void ColorWheel::setDisplayMode(DisplayMode mode)
{
    const bool isKnown = mode == HueRingTriangle || mode == DiscAndValueRing;
    m_view->displayMode = isKnown ? mode : HueSaturationDisc;
    update();
}

ColorWheel::DisplayMode ColorWheel::displayMode() const
{
    return m_view->displayMode;
}

void ColorWheel::setInteractionMode(InteractionMode mode)
{
    m_view->interactionMode = mode == Relative ? Relative : Absolute;
}

ColorWheel::InteractionMode ColorWheel::interactionMode() const
{
    return m_view->interactionMode;
}

float ColorWheel::ringValue() const
{
    return float(m_view->hsv.value);
}

double ColorWheel::hue() const
{
    return m_view->hsv.hue;
}

double ColorWheel::saturation() const
{
    return m_view->hsv.saturation;
}

double ColorWheel::value() const
{
    return m_view->hsv.value;
}

QColor ColorWheel::color() const
{
    const Rgb rgb = rgbOf(m_view->hsv);
    return QColor::fromRgbF(float(rgb.red), float(rgb.green), float(rgb.blue));
}

bool ColorWheel::wheelNeedsFocus() const
{
    return m_view->wheelNeedsFocus;
}

void ColorWheel::setWheelNeedsFocus(bool needsFocus)
{
    m_view->wheelNeedsFocus = needsFocus;
}

QSize ColorWheel::sizeHint() const
{
    return QSize(kHintSide, kHintSide);
}

QSize ColorWheel::minimumSizeHint() const
{
    return QSize(kSmallestHintSide, kSmallestHintSide);
}

bool ColorWheel::hasHeightForWidth() const
{
    return true;
}

int ColorWheel::heightForWidth(int width) const
{
    return width;
}

void ColorWheel::setRingValue(float value)
{
    if (std::isnan(value))
        return;
    const double bounded = std::clamp(double(value), 0.0, 1.0);
    if (m_view->link) {
        m_view->link->showRingValue(bounded);
        return;
    }
    if (m_view->isUserChoice && isEcho(bounded, m_view->hsv.value))
        return;
    showFromControl({m_view->hsv.hue, m_view->hsv.saturation, bounded});
}

void ColorWheel::setHsv(double hue, double saturation, double value)
{
    const Hsv &old = m_view->hsv;
    const Hsv wanted{std::isfinite(hue) ? wrappedHue(hue) : old.hue,
                     boundedFraction(saturation, old.saturation),
                     boundedFraction(value, old.value)};
    if (m_view->link)
        m_view->link->showHsv(wanted);
    else
        showFromControl(wanted);
}

void ColorWheel::bind(ColorLink *link)
{
    m_view->link = link;
}

void ColorWheel::showFromControl(const Hsv &hsv)
{
    if (hsv == m_view->hsv)
        return;
    m_view->hsv = hsv;
    m_view->isUserChoice = false;
    update();
}

} // namespace Tessark::UI
