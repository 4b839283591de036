#pragma once

#include "property/ValueCodecs.h"

namespace Tessark::PropertyUI {

/// A transform of normalised texture coordinates: moved by minus the offset, then turned and
/// resized about the middle of the texture, (0.5, 0.5). The default one changes nothing.
struct Transform2D
{
    double offsetX = 0.0; // fractions of the texture
    double offsetY = 0.0;
    double rotation = 0.0; // degrees
    double scaleX = 1.0;   // coordinates are divided by it
    double scaleY = 1.0;
};

// The elements of a matrix are taken in the order in which it stores them. In rows of three they are
// the matrix that a column (u, v, 1) is multiplied with, which is the transpose of what
// QGenericMatrix calls rows and columns.

/// A scale of 0 gives infinities and NaNs, not an error.
DoubleMatrix3x3 matrixOf(const Transform2D &transform);

/// The inverse of matrixOf() for positive scales. The scales are never negative, the rotation is
/// within a half turn; a singular matrix gives infinities or NaNs. Elements 6 and 7 are ignored.
Transform2D transformOf(const DoubleMatrix3x3 &matrix);

/// A right-handed rotation by the angle in radians about axis 0, 1 or 2; the identity for others.
DoubleMatrix3x3 axisRotation(double angle, int axis);

} // namespace Tessark::PropertyUI
