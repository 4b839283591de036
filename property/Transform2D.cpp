#include "property/Transform2D_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Tessark::PropertyUI {

namespace {

// Both rounded, and so they stay: matrices that hosts have stored were made with them. A rotation
// loses 5.7e-10 of itself on the way to a matrix and back, which is 1e-7 degrees in a half turn.
constexpr double kRadiansPerDegree = 0.01745329251;
constexpr double kDegreesPerRadian = 57.2957795131;

constexpr double kPivot = 0.5;
constexpr double kUninvertedScale = 2.220446049250313e-16;

using Elements = std::array<double, 9>;

DoubleMatrix3x3 matrixFrom(const Elements &elements)
{
    DoubleMatrix3x3 matrix(Qt::Uninitialized);
    std::copy(elements.begin(), elements.end(), matrix.data());
    return matrix;
}

/// An exact comparison and with no other number, on purpose: a scale of 0 gives an infinite factor.
double factorFor(double scale)
{
    return scale == kUninvertedScale ? scale : 1.0 / scale;
}

/// The larger square first, so that two rows of the same numbers in another order have exactly the
/// same length also where the compiler fuses a multiplication with the addition.
double scaleOfRow(double x, double y)
{
    if (std::abs(x) < std::abs(y))
        std::swap(x, y);
    return 1.0 / std::sqrt(x * x + y * y);
}

} // namespace

// In closed form, because a product of five matrices would add 0 times infinity to every element
// when a scale is 0.
DoubleMatrix3x3 matrixOf(const Transform2D &transform)
{
    const double a = factorFor(transform.scaleX);
    const double b = factorFor(transform.scaleY);
    const double angle = transform.rotation * kRadiansPerDegree;
    const double s = std::sin(angle);
    const double c = std::cos(angle);
    const double x = transform.offsetX + kPivot;
    const double y = transform.offsetY + kPivot;
    // Subtracted from 0, so that the identity has no negative zero.
    return matrixFrom({a * c, 0.0 - a * s, kPivot - a * c * x + a * s * y, //
                       b * s, b * c, kPivot - b * s * x - b * c * y,       //
                       0.0, 0.0, 1.0});
}

Transform2D transformOf(const DoubleMatrix3x3 &matrix)
{
    const double *const e = matrix.constData();
    const double angle = std::atan2(e[3], e[4]);
    const double c = std::cos(angle);
    const double s = -std::sin(-angle); // as it stands in the rotation back

    Transform2D result;
    result.rotation = angle * kDegreesPerRadian;
    result.scaleX = scaleOfRow(e[0], e[1]);
    result.scaleY = scaleOfRow(e[3], e[4]);
    // The middle of the texture, taken back through scale and rotation.
    const double cx = c * result.scaleX;
    const double cy = c * result.scaleY;
    const double sx = s * result.scaleX;
    const double sy = s * result.scaleY;
    result.offsetX = -(cx * e[2] + sy * e[5] + (kPivot - kPivot * (cx + sy)) * e[8]);
    result.offsetY = -(-sx * e[2] + cy * e[5] + (kPivot - kPivot * (cy - sx)) * e[8]);
    return result;
}

DoubleMatrix3x3 axisRotation(double angle, int axis)
{
    DoubleMatrix3x3 matrix; // the identity
    if (axis < 0 || axis > 2)
        return matrix;
    const int p = (axis + 2) % 3;
    const int q = (axis + 1) % 3;
    const double s = std::sin(angle);
    const double c = std::cos(angle);
    double *const e = matrix.data();
    e[3 * p + q] = s;
    e[3 * q + p] = -s;
    e[3 * p + p] = c;
    e[3 * q + q] = c;
    return matrix;
}

} // namespace Tessark::PropertyUI
