#pragma once

#include <QVariant>
#include <QVector>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// The numbers of a value or bound of the property, in order; those of a vector in its text form too.
/// None when it is not numeric.
QVector<double> numbersOf(const PropertyUI::Property &property, const QVariant &value);

/// What the fields of an editor hold one by one: the components of vectors, points and rectangles, the
/// sides of sizes, red, green, blue and alpha of colours, offset x and y, rotation in degrees, scale x
/// and y of transforms, the index of an image format and its rate. None for values that are edited as
/// a whole.
QVector<double> partsOf(const PropertyUI::Property &property, const QVariant &value);

/// The value that consists of these parts, or an invalid variant when there is none.
QVariant valueOfParts(const PropertyUI::Property &property, const QVector<double> &parts);

/// True when the parts differ by no more than taking a value apart may change them.
bool isSamePart(double left, double right);

} // namespace Tessark::PropertyHost
