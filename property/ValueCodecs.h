#pragma once

#include "property/PropertyExport.h"
#include "property/TextureChoice.h"

#include <QColor>
#include <QGenericMatrix>
#include <QMetaType>
#include <QPointF>
#include <QString>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

namespace Tessark::PropertyUI {

/// The matrix of a "transform2D" value; Qt's own QMatrix3x3 is of float. A default one is the
/// identity.
using DoubleMatrix3x3 = QGenericMatrix<3, 3, double>;

// Text forms of composite values, the same in every locale.
//
// Writing joins the numbers by single spaces, each with at most six significant digits and a full
// stop as decimal point. Reading splits the text at every single space, so that a doubled, leading
// or trailing space makes an empty part, and takes each part as a single-precision number, also for
// points and matrices of doubles; a part that is no number or out of range counts as 0. No reader
// reports an error: a wrong number of parts gives the value named at each function.

/// x and y.
TESSARK_PROPERTY_EXPORT QString QPointF_toString(const QPointF &point);

/// Two parts, or one for both; otherwise (0, 0).
TESSARK_PROPERTY_EXPORT QPointF QPointF_fromString(const QString &text);

/// x and y.
TESSARK_PROPERTY_EXPORT QString QVector2D_toString(const QVector2D &vector);

/// Two parts, or one for both; otherwise (0, 0).
TESSARK_PROPERTY_EXPORT QVector2D QVector2D_fromString(const QString &text);

/// x, y and z.
TESSARK_PROPERTY_EXPORT QString QVector3D_toString(const QVector3D &vector);

/// Three parts, or one for all; otherwise (0, 0, 0).
TESSARK_PROPERTY_EXPORT QVector3D QVector3D_fromString(const QString &text);

/// x, y, z and w.
TESSARK_PROPERTY_EXPORT QString QVector4D_toString(const QVector4D &vector);

/// Four parts, or one for all; otherwise (0, 0, 0, 0).
TESSARK_PROPERTY_EXPORT QVector4D QVector4D_fromString(const QString &text);

/// Four parts are red, green, blue and alpha as fractions, three parts an opaque colour, one number
/// a grey whose alpha is that number too. Any other text is a colour name or hash notation that
/// QColor knows, or gives an invalid colour. Fractions outside 0..1 get QColor's own handling.
TESSARK_PROPERTY_EXPORT QColor QColor_fromString(const QString &text);

/// The nine elements row by row.
TESSARK_PROPERTY_EXPORT QString QMatrix3x3_toString(const QGenericMatrix<3, 3, double> &matrix);

/// Nine parts, row by row; otherwise the identity, for a single number too.
TESSARK_PROPERTY_EXPORT QGenericMatrix<3, 3, double> QMatrix3x3_fromString(const QString &text);

/// The choice's name; its image and icon have no text form.
TESSARK_PROPERTY_EXPORT QString TextureChoice_toString(const TextureChoice &choice);

/// A choice with the whole text as name, without image and icon.
TESSARK_PROPERTY_EXPORT TextureChoice TextureChoice_fromString(const QString &text);

} // namespace Tessark::PropertyUI

Q_DECLARE_METATYPE(Tessark::PropertyUI::DoubleMatrix3x3)
