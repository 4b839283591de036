#include "property/ValueCodecs.h"

#include "property/ColorFractions_p.h"

#include <QStringList>

#include <array>
#include <cstddef>
#include <initializer_list>

namespace Tessark::PropertyUI {

namespace {

constexpr int kSignificantDigits = 6;
constexpr int kMatrixSize = 3;
constexpr int kMatrixEntries = kMatrixSize * kMatrixSize;

// Known by name from the moment the library is loaded.
[[maybe_unused]] const int s_textureChoiceType =
    qRegisterMetaType<TextureChoice>("Tessark::PropertyUI::TextureChoice");

QString joined(std::initializer_list<double> numbers)
{
    QStringList parts;
    for (const double number : numbers)
        parts.append(QString::number(number, 'g', kSignificantDigits));
    return parts.join(QLatin1Char(' '));
}

/// Single precision on purpose, whatever the type read.
float numberIn(const QString &part)
{
    bool ok = false;
    const float number = part.toFloat(&ok);
    return ok ? number : 0.0F; // an overflow gives infinity and false
}

QStringList partsOf(const QString &text)
{
    // Empty parts stay, so that doubled spaces change the number of parts.
    return text.split(QLatin1Char(' '));
}

/// The numbers of a text of count parts, or the same one count times for a text of one part;
/// otherwise zeros.
template <std::size_t count>
std::array<float, count> components(const QString &text)
{
    const QStringList parts = partsOf(text);
    std::array<float, count> result{};
    if (parts.size() == 1) {
        result.fill(numberIn(parts.first()));
    } else if (parts.size() == static_cast<int>(count)) {
        for (std::size_t i = 0; i < count; ++i)
            result[i] = numberIn(parts.at(static_cast<int>(i)));
    }
    return result;
}

QColor colorOf(const QStringList &parts, float alpha)
{
    return colorOfFractions(numberIn(parts.at(0)), numberIn(parts.at(1)), numberIn(parts.at(2)),
                            alpha);
}

} // namespace

QString QPointF_toString(const QPointF &point)
{
    return joined({point.x(), point.y()});
}

QPointF QPointF_fromString(const QString &text)
{
    const auto [x, y] = components<2>(text);
    return {x, y};
}

QString QVector2D_toString(const QVector2D &vector)
{
    return joined({vector.x(), vector.y()});
}

QVector2D QVector2D_fromString(const QString &text)
{
    const auto [x, y] = components<2>(text);
    return {x, y};
}

QString QVector3D_toString(const QVector3D &vector)
{
    return joined({vector.x(), vector.y(), vector.z()});
}

QVector3D QVector3D_fromString(const QString &text)
{
    const auto [x, y, z] = components<3>(text);
    return {x, y, z};
}

QString QVector4D_toString(const QVector4D &vector)
{
    return joined({vector.x(), vector.y(), vector.z(), vector.w()});
}

QVector4D QVector4D_fromString(const QString &text)
{
    const auto [x, y, z, w] = components<4>(text);
    return {x, y, z, w};
}

QColor QColor_fromString(const QString &text)
{
    const QStringList parts = partsOf(text);
    if (parts.size() == 4)
        return colorOf(parts, numberIn(parts.at(3)));
    if (parts.size() == 3)
        return colorOf(parts, 1.0F);
    if (parts.size() == 1) {
        bool isNumber = false;
        parts.first().toFloat(&isNumber);
        const float grey = numberIn(parts.first());
        if (isNumber) // its alpha is the same number, deliberately not opaque
            return colorOfFractions(grey, grey, grey, grey);
    }
    QColor color;
    color.setNamedColor(text);
    return color;
}

QString QMatrix3x3_toString(const QGenericMatrix<3, 3, double> &matrix)
{
    return joined({matrix(0, 0), matrix(0, 1), matrix(0, 2), matrix(1, 0), matrix(1, 1),
                   matrix(1, 2), matrix(2, 0), matrix(2, 1), matrix(2, 2)});
}

QGenericMatrix<3, 3, double> QMatrix3x3_fromString(const QString &text)
{
    const QStringList parts = partsOf(text);
    QGenericMatrix<3, 3, double> matrix; // the identity
    if (parts.size() != kMatrixEntries)
        return matrix;
    for (int i = 0; i < kMatrixEntries; ++i)
        matrix(i / kMatrixSize, i % kMatrixSize) = numberIn(parts.at(i));
    return matrix;
}

QString TextureChoice_toString(const TextureChoice &choice)
{
    return choice.name;
}

TextureChoice TextureChoice_fromString(const QString &text)
{
    TextureChoice choice;
    choice.name = text;
    return choice;
}

} // namespace Tessark::PropertyUI
