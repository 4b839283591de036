#include "host/ValueParts_p.h"

#include "host/ValueCheck_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>
#include <property/editors/Transform2DPropertyEditor.h>

#include <QRgba64>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr double kPartTolerance = 1e-9; // relative, and absolute below 1
constexpr int kTransformParts = 5;
constexpr int kColorSteps = std::numeric_limits<quint16>::max(); // what QColor tells apart

const QStringList &imageFormats()
{
    static const QStringList s_formats{QStringLiteral("png"), QStringLiteral("jpeg"),
                                       QStringLiteral("tiff"), QStringLiteral("bmp")};
    return s_formats;
}

/// A vector that stands there as text, as itself.
QVariant withoutText(ValueKind kind, const QVariant &value)
{
    if (value.userType() != QMetaType::QString)
        return value;
    switch (kind) {
    case ValueKind::Vector2:
        return QVector2D_fromString(value.toString());
    case ValueKind::Vector3:
        return QVector3D_fromString(value.toString());
    case ValueKind::Vector4:
        return QVector4D_fromString(value.toString());
    default:
        return value;
    }
}

QVector<double> partsOfColor(const QVariant &value)
{
    const QColor color = value.userType() == QMetaType::QString
                             ? QColor_fromString(value.toString())
                             : value.value<QColor>();
    if (!color.isValid())
        return {};
    return {double(color.redF()), double(color.greenF()), double(color.blueF()),
            double(color.alphaF())};
}

QVariant colorOfParts(const QVector<double> &parts)
{
    const auto channel = [&parts](int part) {
        return static_cast<quint16>(
            std::lround(std::clamp(parts.at(part), 0.0, 1.0) * kColorSteps));
    };
    return QColor(QRgba64::fromRgba64(channel(0), channel(1), channel(2), channel(3)));
}

QVector<double> partsOfTransform(const QVariant &value)
{
    const auto matrix = value.userType() == QMetaType::QString
                            ? QMatrix3x3_fromString(value.toString())
                            : value.value<DoubleMatrix3x3>();
    QVector<double> parts(kTransformParts);
    Transform2DPropertyEditor::MatrixToXfrm(matrix, &parts[0], &parts[1], &parts[2], &parts[3],
                                            &parts[4]);
    const auto isFinite = [](double part) { return std::isfinite(part); };
    return std::all_of(parts.cbegin(), parts.cend(), isFinite) ? parts : QVector<double>();
}

QVariant transformOfParts(const QVector<double> &parts)
{
    DoubleMatrix3x3 matrix;
    Transform2DPropertyEditor::XfrmToMatrix(parts.at(0), parts.at(1), parts.at(2), parts.at(3),
                                            parts.at(4), matrix);
    return QVariant::fromValue(matrix);
}

QVector<double> partsOfImageFormat(const QVariant &value)
{
    const auto format = value.value<ImageFormatDesc>();
    const auto index = imageFormats().indexOf(format.format);
    if (index < 0 && !format.format.isEmpty())
        return {};
    return {double(index), double(format.compressionRate)};
}

QVariant imageFormatOfParts(const QVector<double> &parts)
{
    ImageFormatDesc format;
    format.format = imageFormats().value(static_cast<int>(parts.at(0)));
    format.compressionRate = static_cast<int>(parts.at(1));
    return QVariant::fromValue(format);
}

} // namespace

QVector<double> numbersOf(const Property &property, const QVariant &value)
{
    return components(withoutText(typeTraits(property.type).kind, value));
}

QVector<double> partsOf(const Property &property, const QVariant &value)
{
    if (!value.isValid())
        return {};
    const ValueKind kind = typeTraits(property.type).kind;
    switch (kind) {
    case ValueKind::Color:
    case ValueKind::OpaqueColor:
        return partsOfColor(value);
    case ValueKind::Matrix:
        return partsOfTransform(value);
    case ValueKind::ImageFormat:
        return partsOfImageFormat(value);
    case ValueKind::Integer:
    case ValueKind::Number:
        return {};
    default:
        break;
    }
    const QVector<double> numbers = numbersOf(property, value);
    return numbers.size() == componentNames(kind).size() ? numbers : QVector<double>();
}

QVariant valueOfParts(const Property &property, const QVector<double> &parts)
{
    switch (typeTraits(property.type).kind) {
    case ValueKind::Color:
    case ValueKind::OpaqueColor:
        return colorOfParts(parts);
    case ValueKind::Matrix:
        return transformOfParts(parts);
    case ValueKind::ImageFormat:
        return imageFormatOfParts(parts);
    default:
        return valueOfNumbers(property, parts);
    }
}

bool isSamePart(double left, double right)
{
    const double size = std::max({1.0, std::abs(left), std::abs(right)});
    return std::abs(left - right) <= kPartTolerance * size;
}

} // namespace Tessark::PropertyHost
