#pragma once

#include "property/ValueCodecs.h"
#include "property/editors/Transform2DPropertyEditor.h"

#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace TestSupport {

/// Offset X, offset Y, rotation, scale X, scale Y.
using Numbers = std::array<double, 5>;

inline constexpr Numbers kIdentity{0, 0, 0, 1, 1};

inline Tessark::PropertyUI::DoubleMatrix3x3 matrixOf(const Numbers &n)
{
    Tessark::PropertyUI::DoubleMatrix3x3 matrix;
    matrix.fill(77); // all of it must be overwritten
    Tessark::PropertyUI::Transform2DPropertyEditor::XfrmToMatrix(n[0], n[1], n[2], n[3], n[4],
                                                                 matrix);
    return matrix;
}

inline Numbers numbersOf(const Tessark::PropertyUI::DoubleMatrix3x3 &matrix)
{
    Numbers n{};
    Tessark::PropertyUI::Transform2DPropertyEditor::MatrixToXfrm(matrix, &n[0], &n[1], &n[2], &n[3],
                                                                 &n[4]);
    return n;
}

inline QVector<double> elementsOf(const Tessark::PropertyUI::DoubleMatrix3x3 &matrix)
{
    QVector<double> elements;
    for (int i = 0; i < 9; ++i)
        elements.append(matrix.constData()[i]);
    return elements;
}

inline Tessark::PropertyUI::DoubleMatrix3x3 matrixFrom(const QVector<double> &elements)
{
    Tessark::PropertyUI::DoubleMatrix3x3 matrix;
    std::copy(elements.begin(), elements.end(), matrix.data());
    return matrix;
}

using Long = long double;

/// A matrix in rows of three, in higher precision than the code under test.
using LongMatrix = std::array<std::array<Long, 3>, 3>;

inline LongMatrix operator*(const LongMatrix &left, const LongMatrix &right)
{
    LongMatrix product{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t i = 0; i < 3; ++i)
                product[row][column] += left[row][i] * right[i][column];
        }
    }
    return product;
}

inline LongMatrix translation(Long x, Long y)
{
    return {{{1, 0, x}, {0, 1, y}, {0, 0, 1}}};
}

inline LongMatrix scaling(Long a, Long b)
{
    return {{{a, 0, 0}, {0, b, 0}, {0, 0, 1}}};
}

inline LongMatrix rotation(Long angle)
{
    const Long c = std::cos(angle);
    const Long s = std::sin(angle);
    return {{{c, -s, 0}, {s, c, 0}, {0, 0, 1}}};
}

/// The transform multiplied out, for scales that are inverted.
inline LongMatrix productOf(const Numbers &n)
{
    return translation(0.5L, 0.5L) * scaling(1 / Long(n[3]), 1 / Long(n[4]))
           * rotation(n[2] * 0.01745329251L) * translation(-0.5L, -0.5L)
           * translation(-n[0], -n[1]);
}

/// The largest difference of an element, by the largest number of its row or 1.
inline double errorOf(const Tessark::PropertyUI::DoubleMatrix3x3 &matrix,
                      const LongMatrix &expected)
{
    Long worst = 0;
    for (std::size_t row = 0; row < 3; ++row) {
        Long largest = 1;
        Long difference = 0;
        for (std::size_t column = 0; column < 3; ++column) {
            const Long element = matrix.constData()[3 * row + column];
            largest = std::max(largest, std::abs(expected[row][column]));
            difference = std::max(difference, std::abs(element - expected[row][column]));
        }
        worst = std::max(worst, difference / largest);
    }
    return double(worst);
}

} // namespace TestSupport
