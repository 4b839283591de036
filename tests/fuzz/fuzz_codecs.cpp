#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"

#include <property/ValueCodecs.h>

#include <QLocale>
#include <QStringList>

#include <array>
#include <cmath>
#include <limits>

using namespace Fuzz;
using namespace Tessark::PropertyUI;

namespace {

/// What a vector, point or matrix has in common for its text form.
template <typename Value, int count>
struct Codec
{
    QString (*toText)(const Value &);
    Value (*fromText)(const QString &);
    double (*component)(const Value &, int);
    bool oneForAll; // a single number fills all components
};

const Codec<QPointF, 2> kPoint{
    QPointF_toString, QPointF_fromString,
    [](const QPointF &point, int i) { return i ? point.y() : point.x(); }, true};
const Codec<QVector2D, 2> kVector2{QVector2D_toString, QVector2D_fromString,
                                   [](const QVector2D &vector, int i) { return double(vector[i]); },
                                   true};
const Codec<QVector3D, 3> kVector3{QVector3D_toString, QVector3D_fromString,
                                   [](const QVector3D &vector, int i) { return double(vector[i]); },
                                   true};
const Codec<QVector4D, 4> kVector4{QVector4D_toString, QVector4D_fromString,
                                   [](const QVector4D &vector, int i) { return double(vector[i]); },
                                   true};
const Codec<DoubleMatrix3x3, 9> kMatrix{
    QMatrix3x3_toString, QMatrix3x3_fromString,
    [](const DoubleMatrix3x3 &matrix, int i) { return matrix(i / 3, i % 3); }, false};

bool isSame(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

/// The text form of a value does not show the locale, has one part for each component, and is the text
/// form of the value read from it.
template <typename Value, int count>
void checkWriting(const Codec<Value, count> &codec, const Value &value)
{
    const QString text = codec.toText(value);
    require(!text.contains(QLatin1Char(',')), "a locale does not show in a text form");
    require(text.count(QLatin1Char(' ')) == count - 1, "a text form has a part for each component");

    const Value read = codec.fromText(text);
    for (int i = 0; i < count; ++i) {
        const double written = codec.component(value, i);
        const double size = std::abs(written);
        const bool isNormal = size >= double(std::numeric_limits<float>::min())
                              && size < 0.999 * double(std::numeric_limits<float>::max());
        if (isNormal || written == 0.0)
            require(std::abs(codec.component(read, i) - written) <= 1e-5 * size,
                    "a text form keeps six digits");
    }
    require(codec.toText(codec.fromText(codec.toText(read))) == codec.toText(read),
            "a text form reads as what it was written from");
}

template <typename Value, int count>
void checkReading(const Codec<Value, count> &codec, const QString &text)
{
    const auto parts = text.split(QLatin1Char(' ')).size();
    const Value value = codec.fromText(text);
    const bool isDefault = parts != count && !(parts == 1 && codec.oneForAll);
    for (int i = 0; i < count; ++i) {
        const double component = codec.component(value, i);
        if (isDefault)
            require(component == codec.component(Value(), i),
                    "a wrong number of parts gives the default");
        else if (parts == 1)
            require(isSame(component, codec.component(value, 0)),
                    "one number fills all components");
        require(isSame(component, double(float(component))),
                "numbers are read in single precision");
    }
    checkWriting(codec, value);
}

void checkColor(const QString &text)
{
    const QColor color = QColor_fromString(text);
    switch (text.split(QLatin1Char(' ')).size()) {
    case 1:
    case 4:
        break;
    case 3:
        require(!color.isValid() || color.alphaF() == 1, "three fractions make an opaque colour");
        break;
    default:
        require(color == QColor(text), "other texts are names");
    }
}

void checkText(const QString &text)
{
    checkReading(kPoint, text);
    checkReading(kVector2, text);
    checkReading(kVector3, text);
    checkReading(kVector4, text);
    checkReading(kMatrix, text);
    checkColor(text);
    require(TextureChoice_toString(TextureChoice_fromString(text)) == text,
            "a texture's text form is its name");
}

void checkNumbers(FuzzInput input)
{
    std::array<double, 9> numbers{};
    for (double &number : numbers)
        number = input.number();
    const auto at = [&numbers](std::size_t i) {
        const double number = numbers.at(i);
        const auto limit = double(std::numeric_limits<float>::max());
        return std::abs(number) > limit ? std::numeric_limits<float>::infinity() : float(number);
    };
    checkWriting(kPoint, QPointF(numbers[0], numbers[1]));
    checkWriting(kVector2, QVector2D(at(0), at(1)));
    checkWriting(kVector3, QVector3D(at(0), at(1), at(2)));
    checkWriting(kVector4, QVector4D(at(0), at(1), at(2), at(3)));
    checkWriting(kMatrix, DoubleMatrix3x3(numbers.data()));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (QLocale() != QLocale(QLocale::German))
        QLocale::setDefault(QLocale(QLocale::German)); // which has a decimal comma
    FuzzInput input(data, size);
    if (input.flip())
        checkNumbers(input);
    else
        checkText(input.remainingText());
    return 0;
}
