#include "testing/ValueText_p.h"

#include <property/TextureChoice.h>
#include <property/ValueCodecs.h>
#include <property/editors/ImageFormatEditor.h>

#include <QColor>
#include <QGenericMatrix>
#include <QPixmap>
#include <QSize>
#include <QStringList>
#include <QVector4D>

#include <algorithm>
#include <cmath>

namespace Tessark::PropertyTest {

using namespace PropertyUI;

namespace {

using Matrix = QGenericMatrix<3, 3, double>;

constexpr double kRounding = 1e-6;
constexpr double kColorRounding = 2e-5; // QColor holds 16 bits for each channel
constexpr int kDigits = 10;

QVector<double> componentsOf(const QVector4D &vector, int count)
{
    QVector<double> numbers;
    for (int i = 0; i < count; ++i)
        numbers.append(double(vector[i]));
    return numbers;
}

QVector<double> componentsOf(const QColor &color)
{
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

QVector<double> componentsOf(const Matrix &matrix)
{
    QVector<double> numbers;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            numbers.append(matrix(row, column));
    }
    return numbers;
}

bool isNumber(int type)
{
    constexpr int kNumbers[] = {QMetaType::Int,       QMetaType::UInt,  QMetaType::LongLong,
                                QMetaType::ULongLong, QMetaType::Float, QMetaType::Double};
    return std::find(std::begin(kNumbers), std::end(kNumbers), type) != std::end(kNumbers);
}

/// The numbers that a text lists between blanks; none when a word is no number.
QVector<double> readNumbers(const QString &text)
{
    QVector<double> numbers;
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString &word : words) {
        bool isNumber = false;
        numbers.append(word.toDouble(&isNumber));
        if (!isNumber)
            return {};
    }
    return numbers;
}

bool areSame(const QVector<double> &numbers, const QVector<double> &expected, double rounding)
{
    const auto isNear = [rounding](double a, double b) {
        return a == b || std::fabs(a - b) <= rounding * std::max({1.0, std::fabs(a), std::fabs(b)});
    };
    return std::equal(numbers.begin(), numbers.end(), expected.begin(), expected.end(), isNear);
}

bool isWrittenAs(const QVariant &value, const QString &text)
{
    const QVector<double> numbers = numbersOf(value);
    if (value.userType() == QMetaType::QColor) {
        const QColor color = QColor_fromString(text);
        return color.isValid() && areSame(numbers, componentsOf(color), kColorRounding);
    }
    if (!numbers.isEmpty())
        return areSame(numbers, readNumbers(text), kRounding);
    return valueText(value) == text;
}

QString colorText(const QColor &color)
{
    if (!color.isValid())
        return QStringLiteral("no color");
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString numbersText(const QVector<double> &numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number, 'g', kDigits));
    return texts.join(QLatin1Char(' '));
}

} // namespace

QVector<double> numbersOf(const QVariant &value)
{
    const int type = value.userType();
    if (isNumber(type))
        return {value.toDouble()};
    if (type == QMetaType::QVector2D)
        return componentsOf(QVector4D(value.value<QVector2D>()), 2);
    if (type == QMetaType::QVector3D)
        return componentsOf(QVector4D(value.value<QVector3D>()), 3);
    if (type == QMetaType::QVector4D)
        return componentsOf(value.value<QVector4D>(), 4);
    if (type == QMetaType::QSize)
        return {double(value.toSize().width()), double(value.toSize().height())};
    if (type == QMetaType::QColor)
        return componentsOf(value.value<QColor>());
    if (type == qMetaTypeId<Matrix>())
        return componentsOf(value.value<Matrix>());
    return {};
}

QString valueText(const QVariant &value)
{
    const int type = value.userType();
    if (!value.isValid())
        return QStringLiteral("nothing");
    if (type == QMetaType::QColor)
        return colorText(value.value<QColor>());
    if (type == qMetaTypeId<TextureChoice>())
        return value.value<TextureChoice>().name;
    if (type == qMetaTypeId<ImageFormatDesc>())
        return value.value<ImageFormatDesc>().format;
    const QVector<double> numbers = numbersOf(value);
    if (!numbers.isEmpty())
        return numbersText(numbers);
    return value.canConvert<QString>() ? value.toString() : QString::fromLatin1(value.typeName());
}

bool isSame(const QVariant &value, const QVariant &expected)
{
    if (expected.userType() == QMetaType::QString && value.userType() != QMetaType::QString)
        return isWrittenAs(value, expected.toString());
    const QVector<double> numbers = numbersOf(expected);
    if (numbers.isEmpty())
        return value == expected;
    const bool isColor = expected.userType() == QMetaType::QColor;
    return areSame(numbersOf(value), numbers, isColor ? kColorRounding : kRounding);
}

} // namespace Tessark::PropertyTest
