#include "core/WheelGeometry_p.h"

#include "core/ColorWheel.h"

#include <algorithm>
#include <cmath>

namespace Tessark::UI {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kDarkEnd = 240; // 7 o'clock

constexpr double kSmallestSide = 4;        // below it there is nothing
constexpr double kSmallestSideOfRing = 40; // below it there is only a disc
constexpr double kFocusMargin = 3;
constexpr double kFingerMargin = 10;
constexpr double kColorlessRadius = 1; // of the disc's middle, where the hue is not to be chosen
constexpr double kBlackCorner = 1e-9;  // a value that is 0 but for rounding

/// A share of the side in whole pixels, within bounds; where the bounds cross, the upper one counts.
double share(double side, double fraction, double least, double most)
{
    return std::min(std::max(std::round(fraction * side), least), most);
}

double radians(double degrees)
{
    return degrees * kPi / (kFullTurn / 2);
}

double wrappedAngle(double angle)
{
    return wrappedHue(angle / kFullTurn) * kFullTurn;
}

double dot(const QPointF &left, const QPointF &right)
{
    return left.x() * right.x() + left.y() * right.y();
}

QPointF nearestOfSegment(const QPointF &point, const QPointF &begin, const QPointF &end)
{
    const QPointF along = end - begin;
    const double share = dot(point - begin, along) / dot(along, along);
    return begin + along * std::clamp(share, 0.0, 1.0);
}

/// How much of the hue, the white and the black corner a point is made of; the sum is 1.
using Weights = std::array<double, 3>;

/// The directions of the triangle's corners from its middle, y upwards.
const std::array<QPointF, 3> &cornerDirections()
{
    static const double halfRoot = std::sqrt(3.0) / 2;
    static const std::array<QPointF, 3> directions{QPointF(0, 1), QPointF(halfRoot, -0.5),
                                                   QPointF(-halfRoot, -0.5)};
    return directions;
}

/// Of a point of the plane in units of the triangle's radius, y upwards.
Weights weightsAt(const QPointF &point)
{
    Weights weights{};
    for (std::size_t i = 0; i < weights.size(); ++i)
        weights[i] = (1 + 2 * dot(point, cornerDirections()[i])) / 3;
    return weights;
}

bool isInside(const Weights &weights)
{
    return std::all_of(weights.begin(), weights.end(), [](double weight) { return weight >= 0; });
}

QPointF nearestOfTriangle(const QPointF &point)
{
    const auto &corners = cornerDirections();
    QPointF nearest;
    double least = HUGE_VAL;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QPointF candidate =
            nearestOfSegment(point, corners[i], corners[(i + 1) % corners.size()]);
        const double distance = dot(point - candidate, point - candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace

WheelGeometry wheelGeometry(int displayMode, const QSizeF &size)
{
    WheelGeometry wheel;
    wheel.side = std::min(size.width(), size.height());
    wheel.center = QPointF(size.width() / 2, size.height() / 2);
    if (wheel.side < kSmallestSide)
        return wheel;
    if (wheel.side < kSmallestSideOfRing) {
        wheel.outerRadius = wheel.discRadius = wheel.side / 2 - 1;
        wheel.discReach = wheel.side / 2;
        return wheel;
    }
    const double side = wheel.side;
    wheel.outerRadius = side / 2 - kFocusMargin;
    if (displayMode == ColorWheel::HueRingTriangle) {
        wheel.ring = WheelPart::HueRing;
        const double width = share(side, 0.12, std::min(10.0, side / 7), 28);
        wheel.ringInnerRadius = wheel.outerRadius - width;
        wheel.triangleRadius = wheel.ringInnerRadius - 2;
    } else if (displayMode == ColorWheel::DiscAndValueRing) {
        wheel.ring = WheelPart::ValueRing;
        const double width = share(side, 0.09, std::min(8.0, side / 8), 24);
        const double gap = share(side, 0.025, std::min(3.0, side / 20), 6);
        wheel.ringInnerRadius = wheel.outerRadius - width;
        wheel.discRadius = wheel.ringInnerRadius - gap;
        wheel.discReach = wheel.discRadius + gap / 2;
    } else {
        wheel.discRadius = wheel.outerRadius;
        wheel.discReach = wheel.discRadius + kFocusMargin;
    }
    return wheel;
}

WheelPart partAt(const WheelGeometry &wheel, const QPointF &point, PointerKind pointer)
{
    const double radius = distanceFromCenter(wheel, point);
    if (wheel.discRadius > 0 && radius <= wheel.discReach)
        return WheelPart::Disc;
    if (wheel.triangleRadius > 0 && radius < wheel.ringInnerRadius - 1)
        return WheelPart::Triangle;
    const double margin = pointer == PointerKind::Finger ? kFingerMargin : kFocusMargin;
    return radius <= wheel.outerRadius + margin ? wheel.ring : WheelPart::None;
}

bool hasPart(const WheelGeometry &wheel, WheelPart part)
{
    switch (part) {
    case WheelPart::None:
        return false;
    case WheelPart::Disc:
        return wheel.discRadius > 0;
    case WheelPart::Triangle:
        return wheel.triangleRadius > 0;
    default:
        return wheel.ring == part;
    }
}

double distanceFromCenter(const WheelGeometry &wheel, const QPointF &point)
{
    return std::hypot(point.x() - wheel.center.x(), point.y() - wheel.center.y());
}

double angleAt(const WheelGeometry &wheel, const QPointF &point)
{
    const double angle = std::atan2(wheel.center.y() - point.y(), point.x() - wheel.center.x());
    return wrappedHue(angle / (2 * kPi)) * kFullTurn;
}

QPointF pointAt(const WheelGeometry &wheel, double angle, double radius)
{
    return QPointF(wheel.center.x() + radius * std::cos(radians(angle)),
                   wheel.center.y() - radius * std::sin(radians(angle)));
}

double turnBetween(double from, double to)
{
    return wrappedAngle(to - from + kFullTurn / 2) - kFullTurn / 2;
}

Hsv discColorAt(const WheelGeometry &wheel, const QPointF &point, const Hsv &previous)
{
    const double radius = distanceFromCenter(wheel, point);
    if (radius <= kColorlessRadius)
        return {previous.hue, 0, previous.value};
    return {angleAt(wheel, point) / kFullTurn, std::min(radius / wheel.discRadius, 1.0),
            previous.value};
}

QPointF discPointOf(const WheelGeometry &wheel, const Hsv &hsv)
{
    return pointAt(wheel, hsv.hue * kFullTurn, hsv.saturation * wheel.discRadius);
}

double valueRingTurnAt(double angle)
{
    return wrappedAngle(kDarkEnd - angle);
}

double valueOfTurn(double turn)
{
    return std::clamp(turn / kValueRingTurn, 0.0, 1.0);
}

double angleOfValue(double value)
{
    return kDarkEnd - kValueRingTurn * value;
}

double nearestValueRingTurnAt(double angle)
{
    const double turn = valueRingTurnAt(angle);
    if (turn <= kValueRingTurn)
        return turn;
    return turn <= (kValueRingTurn + kFullTurn) / 2 ? kValueRingTurn : 0;
}

double ringRadius(const WheelGeometry &wheel)
{
    return (wheel.outerRadius + wheel.ringInnerRadius) / 2;
}

QPointF ringPointAt(const WheelGeometry &wheel, double angle)
{
    return pointAt(wheel, angle, ringRadius(wheel));
}

std::array<QPointF, 3> triangleCorners(const WheelGeometry &wheel)
{
    std::array<QPointF, 3> corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QPointF &direction = cornerDirections()[i];
        corners[i] = wheel.center + QPointF(direction.x(), -direction.y()) * wheel.triangleRadius;
    }
    return corners;
}

Hsv triangleColorAt(const WheelGeometry &wheel, const QPointF &point, const Hsv &previous)
{
    const QPointF inPixels(point.x() - wheel.center.x(), wheel.center.y() - point.y());
    QPointF inRadii = inPixels / wheel.triangleRadius;
    Weights weights = weightsAt(inRadii);
    if (!isInside(weights))
        weights = weightsAt(nearestOfTriangle(inRadii));
    const double hueWeight = std::max(weights[0], 0.0);
    const double value = std::clamp(hueWeight + weights[1], 0.0, 1.0);
    if (value <= kBlackCorner)
        return {previous.hue, previous.saturation, 0};
    return {previous.hue, std::min(hueWeight / value, 1.0), value};
}

QPointF trianglePointOf(const WheelGeometry &wheel, const Hsv &hsv)
{
    const std::array<QPointF, 3> corners = triangleCorners(wheel);
    return corners[0] * (hsv.saturation * hsv.value)
           + corners[1] * ((1 - hsv.saturation) * hsv.value) + corners[2] * (1 - hsv.value);
}

QPointF markerOf(const WheelGeometry &wheel, WheelPart part, const Hsv &hsv)
{
    switch (part) {
    case WheelPart::Disc:
        return discPointOf(wheel, hsv);
    case WheelPart::Triangle:
        return trianglePointOf(wheel, hsv);
    case WheelPart::ValueRing:
        return ringPointAt(wheel, angleOfValue(hsv.value));
    case WheelPart::HueRing:
        return ringPointAt(wheel, hsv.hue * kFullTurn);
    case WheelPart::None:
        break;
    }
    return wheel.center;
}

} // namespace Tessark::UI
