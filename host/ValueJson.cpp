#include "host/ValueJson.h"

#include "host/ImageFormatJson_p.h"
#include "host/Messages_p.h"
#include "host/PictureJson_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"
#include "host/TextureJson_p.h"
#include "host/ValueJson_p.h"
#include "host/ValueKind_p.h"

#include <property/Property.h>
#include <property/ValueCodecs.h>

#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

using Matrix = QGenericMatrix<3, 3, double>;
constexpr int kMatrixSize = 9;

// What errors call the forms of values.
constexpr const char *kPointForm = QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "[x, y]");
constexpr const char *kRectForm =
    QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "[x, y, width, height]");
constexpr const char *kMatrixForm =
    QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "9 numbers");

const char *vectorForm(int count)
{
    switch (count) {
    case 2:
        return QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "2 numbers");
    case 3:
        return QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "3 numbers");
    default:
        return QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "4 numbers");
    }
}

template <typename T>
std::optional<QVariant> toVariant(const std::optional<T> &value)
{
    return value ? std::optional(QVariant::fromValue(*value)) : std::nullopt;
}

QVariantList hintList(const Property &property, const QString &key)
{
    return property.hint(key).toList();
}

bool hasChoiceValues(const Property &property)
{
    return property.hint(kPropertyHintValues).isValid();
}

std::optional<QVariant> choiceValueFromJson(const Property &property, const QJsonValue &json,
                                            ConversionError &error)
{
    const auto scalar = scalarFromJson(json, error);
    if (!scalar)
        return std::nullopt;
    const QVariantList values = hintList(property, kPropertyHintValues);
    // Variants of different types may be equal, as 1 and "1" are on Qt 5; JSON tells them apart.
    const auto found = std::find_if(values.cbegin(), values.cend(), [&](const QVariant &entry) {
        ConversionError ignored;
        const auto candidate = scalarFromJson(QJsonValue::fromVariant(entry), ignored);
        return candidate && candidate->userType() == scalar->userType() && *candidate == *scalar;
    });
    if (found != values.cend())
        return *found;
    const QString shown = json.isString() ? quoted(json.toString()) : scalar->toString();
    error.message = Messages::tr("%1 is not one of the \"values\"").arg(shown);
    return std::nullopt;
}

std::optional<QVariant> choiceFromJson(const Property &property, const QJsonValue &json,
                                       ConversionError &error)
{
    if (hasChoiceValues(property))
        return choiceValueFromJson(property, json, error);
    const auto index = integerFromJson(json, error);
    if (!index)
        return std::nullopt;
    const auto count = hintList(property, kPropertyHintDisplayValues).size();
    if (*index < 0 || *index >= count) {
        error.message =
            Messages::tr("there is no choice %1, the list has %n", nullptr, static_cast<int>(count))
                .arg(*index);
        return std::nullopt;
    }
    return *index;
}

QVariant vectorVariant(const QVector<double> &numbers)
{
    const auto at = [&numbers](int index) { return static_cast<float>(numbers.at(index)); };
    switch (numbers.size()) {
    case 2:
        return QVector2D(at(0), at(1));
    case 3:
        return QVector3D(at(0), at(1), at(2));
    default:
        return QVector4D(at(0), at(1), at(2), at(3));
    }
}

bool checkSinglePrecision(const QVector<double> &numbers, ConversionError &error)
{
    const bool fits = std::all_of(numbers.cbegin(), numbers.cend(), [](double number) {
        return std::abs(number) <= static_cast<double>(std::numeric_limits<float>::max());
    });
    if (!fits)
        error.message = Messages::tr("a vector component is too large for single precision");
    return fits;
}

std::optional<QVariant> vectorFromText(const QString &text, int count, ConversionError &error)
{
    if (!checkNumbersText(text, count, OneForAll::Yes, error))
        return std::nullopt;
    switch (count) {
    case 2:
        return QVector2D_fromString(text);
    case 3:
        return QVector3D_fromString(text);
    default:
        return QVector4D_fromString(text);
    }
}

std::optional<QVariant> vectorFromJson(const QJsonValue &json, int count, ConversionError &error)
{
    if (json.isString())
        return vectorFromText(json.toString(), count, error);
    const auto numbers = json.isDouble() ? std::optional(QVector<double>(count, json.toDouble()))
                                         : numbersFromJson(json, count, vectorForm(count), error);
    if (!numbers || !checkSinglePrecision(*numbers, error))
        return std::nullopt;
    return vectorVariant(*numbers);
}

std::optional<QVariant> matrixFromJson(const QJsonValue &json, ConversionError &error)
{
    if (json.isString()) {
        if (!checkNumbersText(json.toString(), kMatrixSize, OneForAll::No, error))
            return std::nullopt;
        return QVariant::fromValue(QMatrix3x3_fromString(json.toString()));
    }
    const auto numbers = numbersFromJson(json, kMatrixSize, kMatrixForm, error);
    // The constructor takes them row by row, as the text form has them.
    return numbers ? std::optional(QVariant::fromValue(Matrix(numbers->constData())))
                   : std::nullopt;
}

std::optional<QVariant> pointFFromJson(const QJsonValue &json, ConversionError &error)
{
    if (json.isString()) {
        if (!checkNumbersText(json.toString(), 2, OneForAll::Yes, error))
            return std::nullopt;
        return QPointF_fromString(json.toString());
    }
    const auto numbers = numbersFromJson(json, 2, kPointForm, error);
    return numbers ? std::optional(QVariant(QPointF(numbers->at(0), numbers->at(1))))
                   : std::nullopt;
}

std::optional<QVariant> pointFromJson(const QJsonValue &json, ConversionError &error)
{
    const auto numbers = integersFromJson(json, 2, kPointForm, error);
    return numbers ? std::optional(QVariant(QPoint(numbers->at(0), numbers->at(1)))) : std::nullopt;
}

std::optional<QVariant> sizeFFromJson(const QJsonValue &json, ConversionError &error)
{
    const auto numbers = numbersFromJson(json, 2, kSizeForm, error);
    return numbers ? std::optional(QVariant(QSizeF(numbers->at(0), numbers->at(1)))) : std::nullopt;
}

std::optional<QVariant> rectFromJson(const QJsonValue &json, ConversionError &error)
{
    const auto numbers = integersFromJson(json, 4, kRectForm, error);
    if (!numbers)
        return std::nullopt;
    // QRect keeps its far corner, which has to fit an int as well.
    const auto farEdge = [&numbers](int axis) {
        return qint64(numbers->at(axis)) + numbers->at(axis + 2) - 1;
    };
    for (const qint64 edge : {farEdge(0), farEdge(1)}) {
        if (edge < std::numeric_limits<int>::min() || edge > std::numeric_limits<int>::max()) {
            error.message = Messages::tr("the rectangle ends outside the range of whole numbers");
            return std::nullopt;
        }
    }
    return QRect(numbers->at(0), numbers->at(1), numbers->at(2), numbers->at(3));
}

std::optional<QVariant> rectFFromJson(const QJsonValue &json, ConversionError &error)
{
    const auto numbers = numbersFromJson(json, 4, kRectForm, error);
    if (!numbers)
        return std::nullopt;
    return QRectF(numbers->at(0), numbers->at(1), numbers->at(2), numbers->at(3));
}

std::optional<QVariant> anyFromJson(const QJsonValue &json, ConversionError &error)
{
    if (!json.isNull() && !json.isUndefined())
        return json.toVariant();
    error.message = expectedMessage(Messages::tr("a value"), json);
    return std::nullopt;
}

std::optional<QVariant> noValue(const Property &property, ConversionError &error)
{
    error.message = Messages::tr("a property of type %1 has no value").arg(quoted(property.type));
    return std::nullopt;
}

/// The decimal number with the fewest digits that isSame() accepts in place of number.
template <typename Predicate>
double shortestNumber(double number, int maximumDigits, Predicate isSame)
{
    for (int digits = 1; digits < maximumDigits; ++digits) {
        const double candidate = QString::number(number, 'g', digits).toDouble();
        if (isSame(candidate))
            return candidate;
    }
    return number;
}

double shortestFloat(double number)
{
    const auto exact = static_cast<float>(number);
    const auto isSame = [exact](double candidate) {
        return std::abs(candidate) <= static_cast<double>(std::numeric_limits<float>::max())
               && static_cast<float>(candidate) == exact;
    };
    return shortestNumber(number, std::numeric_limits<float>::max_digits10 + 1, isSame);
}

double shortestFraction(double fraction)
{
    constexpr int kColorSteps = std::numeric_limits<quint16>::max();
    const auto step = std::lround(fraction * kColorSteps);
    return shortestNumber(static_cast<double>(step) / kColorSteps, 7, [step](double candidate) {
        return std::lround(candidate * kColorSteps) == step;
    });
}

QJsonValue toJsonArray(const QVector<double> &numbers)
{
    QJsonArray array;
    for (const double number : numbers) {
        if (!std::isfinite(number))
            return QJsonValue::Undefined;
        array.append(number);
    }
    return array;
}

QVector<double> vectorComponents(const QVector4D &vector, int count)
{
    QVector<double> numbers;
    for (int i = 0; i < count; ++i)
        numbers.append(static_cast<double>(vector[i]));
    return numbers;
}

QJsonValue vectorToJson(const QVector4D &vector, int count)
{
    QVector<double> numbers = vectorComponents(vector, count);
    std::transform(numbers.begin(), numbers.end(), numbers.begin(), shortestFloat);
    return toJsonArray(numbers);
}

QJsonValue matrixToJson(const QVariant &value)
{
    const auto matrix = value.value<Matrix>();
    QVector<double> numbers;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            numbers.append(matrix(row, column));
    }
    return toJsonArray(numbers);
}

QJsonValue numberToJson(const QVariant &value)
{
    // A float says 0.1 as 0.100000001; what it stands for is meant.
    const double number =
        value.userType() == QMetaType::Float ? shortestFloat(value.toDouble()) : value.toDouble();
    return std::isfinite(number) ? QJsonValue(number) : QJsonValue(QJsonValue::Undefined);
}

QJsonValue anyToJson(const QVariant &value)
{
    const QJsonValue json = QJsonValue::fromVariant(value);
    // A variant that JSON cannot hold comes out as null or as an empty text.
    const bool isLost =
        json.toString().isEmpty() && json.isString() && value.userType() != QMetaType::QString;
    return json.isNull() || isLost ? QJsonValue(QJsonValue::Undefined) : json;
}

bool isVector(ValueKind kind)
{
    return kind == ValueKind::Vector2 || kind == ValueKind::Vector3 || kind == ValueKind::Vector4;
}

/// A value in text form stays text where reading takes text as well.
bool keepsTextForm(ValueKind kind)
{
    return isVector(kind) || kind == ValueKind::Color || kind == ValueKind::OpaqueColor
           || kind == ValueKind::Matrix || kind == ValueKind::PointF || kind == ValueKind::Texture;
}

/// A QVariant cannot compare the content of these, or knows only part of it.
bool needsJsonToCompare(ValueKind kind)
{
    return kind == ValueKind::Matrix || kind == ValueKind::Picture || kind == ValueKind::ImageFormat
           || kind == ValueKind::Texture;
}

/// The value of the first choice, or an invalid one where there is nothing to choose from.
QVariant firstChoice(const Property &property)
{
    if (hasChoiceValues(property))
        return hintList(property, kPropertyHintValues).value(0);
    const bool hasChoices = !hintList(property, kPropertyHintDisplayValues).isEmpty();
    return hasChoices ? QVariant(0) : QVariant();
}

QVariant defaultOfKind(const Property &property, ValueKind kind)
{
    switch (kind) {
    case ValueKind::None:
    case ValueKind::Any:
        return {};
    case ValueKind::Boolean:
        return property.type == kPropertyTypeBeginGroup; // groups start open
    case ValueKind::Integer:
        return 0;
    case ValueKind::Number:
        return 0.0;
    case ValueKind::Text:
        return QStringLiteral("");
    case ValueKind::Choice:
        return firstChoice(property);
    case ValueKind::Vector2:
        return QVector2D();
    case ValueKind::Vector3:
        return QVector3D();
    case ValueKind::Vector4:
        return QVector4D();
    case ValueKind::Color:
    case ValueKind::OpaqueColor:
        return QColor(Qt::black);
    case ValueKind::Point:
        return QPoint();
    case ValueKind::PointF:
        return QPointF();
    case ValueKind::Size:
        return QSize(1, 1); // the smallest that can be entered
    case ValueKind::SizeF:
        return QSizeF(1.0, 1.0);
    case ValueKind::Rect:
        return QRect(0, 0, 0, 0);
    case ValueKind::RectF:
        return QRectF();
    case ValueKind::Matrix:
        return QVariant::fromValue(Matrix());
    case ValueKind::Picture:
        return QImage();
    case ValueKind::ImageFormat:
        return QVariant::fromValue(defaultImageFormat());
    case ValueKind::Texture:
        return QVariant::fromValue(TextureChoice());
    }
    return {};
}

/// The bound's number for a component, or fallback if there is no such number.
double boundAt(const QVariant &bound, int index, double fallback)
{
    return components(bound).value(index, fallback);
}

double intoRange(const Property &property, int index, double number)
{
    const double maximum = boundAt(property.hardMaxValue, index, number);
    const double minimum = boundAt(property.minValue, index, number);
    return std::max(minimum, std::min(maximum, number));
}

} // namespace

std::optional<QVariant> valueFromJson(const Property &property, const QJsonValue &json,
                                      QString &error, const QString &folder)
{
    ConversionError reason;
    auto value = convertValue(property, json, folder, reason);
    if (!value) {
        error = reason.path.isEmpty() ? reason.message
                                      : reason.path + QLatin1String(": ") + reason.message;
    }
    return value;
}

QJsonValue valueToJson(const Property &property, const QVariant &value)
{
    const ValueKind kind = typeTraits(property.type).kind;
    if (!value.isValid())
        return QJsonValue::Undefined;
    if (keepsTextForm(kind) && value.userType() == QMetaType::QString)
        return value.toString();
    switch (kind) {
    case ValueKind::None:
        return QJsonValue::Undefined;
    case ValueKind::Boolean:
        return value.toBool();
    case ValueKind::Integer:
        return value.toInt();
    case ValueKind::Number:
        return numberToJson(value);
    case ValueKind::Text:
        return value.toString();
    case ValueKind::Vector2:
        return vectorToJson(QVector4D(value.value<QVector2D>()), 2);
    case ValueKind::Vector3:
        return vectorToJson(QVector4D(value.value<QVector3D>()), 3);
    case ValueKind::Vector4:
        return vectorToJson(value.value<QVector4D>(), 4);
    case ValueKind::Color:
        return colorToJson(value.value<QColor>(), Alpha::With);
    case ValueKind::OpaqueColor:
        return colorToJson(value.value<QColor>(), Alpha::Without);
    case ValueKind::Matrix:
        return matrixToJson(value);
    case ValueKind::Picture:
        return pictureToJson(value);
    case ValueKind::ImageFormat:
        return imageFormatToJson(value);
    case ValueKind::Texture:
        return textureToJson(value);
    case ValueKind::Point:
    case ValueKind::PointF:
    case ValueKind::Size:
    case ValueKind::SizeF:
    case ValueKind::Rect:
    case ValueKind::RectF:
        return toJsonArray(components(value));
    case ValueKind::Choice:
    case ValueKind::Any:
        break;
    }
    return anyToJson(value);
}

std::optional<QVariant> convertValue(const Property &property, const QJsonValue &json,
                                     const QString &folder, ConversionError &error)
{
    switch (typeTraits(property.type).kind) {
    case ValueKind::None:
        return noValue(property, error);
    case ValueKind::Any:
        return anyFromJson(json, error);
    case ValueKind::Boolean:
        return toVariant(booleanFromJson(json, error));
    case ValueKind::Integer:
        return toVariant(integerFromJson(json, error));
    case ValueKind::Number:
        return toVariant(numberFromJson(json, error));
    case ValueKind::Text:
        return toVariant(textFromJson(json, error));
    case ValueKind::Choice:
        return choiceFromJson(property, json, error);
    case ValueKind::Vector2:
        return vectorFromJson(json, 2, error);
    case ValueKind::Vector3:
        return vectorFromJson(json, 3, error);
    case ValueKind::Vector4:
        return vectorFromJson(json, 4, error);
    case ValueKind::Color:
        return toVariant(colorFromJson(json, Alpha::With, error));
    case ValueKind::OpaqueColor:
        return toVariant(colorFromJson(json, Alpha::Without, error));
    case ValueKind::Point:
        return pointFromJson(json, error);
    case ValueKind::PointF:
        return pointFFromJson(json, error);
    case ValueKind::Size:
        return toVariant(sizeFromJson(json, error));
    case ValueKind::SizeF:
        return sizeFFromJson(json, error);
    case ValueKind::Rect:
        return rectFromJson(json, error);
    case ValueKind::RectF:
        return rectFFromJson(json, error);
    case ValueKind::Matrix:
        return matrixFromJson(json, error);
    case ValueKind::Picture:
        return pictureFromJson(json, folder, error);
    case ValueKind::ImageFormat:
        return imageFormatFromJson(json, error);
    case ValueKind::Texture:
        return textureFromJson(property, json, folder, error);
    }
    return std::nullopt;
}

QVariant initialValue(const Property &property)
{
    const ValueKind kind = typeTraits(property.type).kind;
    const QVariant value = defaultOfKind(property, kind);
    QVector<double> numbers = components(value);
    for (int i = 0; i < numbers.size(); ++i)
        numbers[i] = intoRange(property, i, numbers.at(i));
    if (kind == ValueKind::Integer)
        return static_cast<int>(numbers.first());
    if (kind == ValueKind::Number)
        return numbers.first();
    return isVector(kind) ? vectorVariant(numbers) : value;
}

QJsonValue colorToJson(const QColor &value, Alpha alpha)
{
    const QColor color = value.toRgb();
    if (!color.isValid())
        return QJsonValue::Undefined;
    QVector<double> fractions{color.redF(), color.greenF(), color.blueF()};
    if (alpha == Alpha::With)
        fractions.append(color.alphaF());
    std::transform(fractions.begin(), fractions.end(), fractions.begin(), shortestFraction);
    return toJsonArray(fractions);
}

bool isSameValue(const Property &property, const QVariant &left, const QVariant &right)
{
    if (!needsJsonToCompare(typeTraits(property.type).kind))
        return left == right;
    const QJsonValue json = valueToJson(property, left);
    return json.isUndefined() ? left == right : json == valueToJson(property, right);
}

QVector<double> components(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return {value.toDouble()};
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return {value.toPointF().x(), value.toPointF().y()};
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return {value.toSizeF().width(), value.toSizeF().height()};
    case QMetaType::QRect:
    case QMetaType::QRectF: {
        const QRectF rect = value.toRectF();
        return {rect.x(), rect.y(), rect.width(), rect.height()};
    }
    case QMetaType::QVector2D:
        return vectorComponents(QVector4D(value.value<QVector2D>()), 2);
    case QMetaType::QVector3D:
        return vectorComponents(QVector4D(value.value<QVector3D>()), 3);
    case QMetaType::QVector4D:
        return vectorComponents(value.value<QVector4D>(), 4);
    default:
        return {};
    }
}

QVariant valueOfNumbers(const Property &property, const QVector<double> &numbers)
{
    const QJsonValue json =
        numbers.size() == 1 ? QJsonValue(numbers.first()) : toJsonArray(numbers);
    ConversionError ignored;
    return convertValue(property, json, QString(), ignored).value_or(QVariant());
}

bool isAbove(const QVariant &value, const QVariant &bound)
{
    const QVector<double> numbers = components(value);
    const QVector<double> limits = components(bound);
    return numbers.size() == limits.size()
           && !std::equal(numbers.cbegin(), numbers.cend(), limits.cbegin(), std::less_equal<>());
}

QString componentsText(const QVariant &value)
{
    QStringList texts;
    for (const double number : components(value))
        texts.append(QString::number(number));
    const QString joined = texts.join(QLatin1Char(' '));
    return texts.size() == 1 ? joined : QLatin1Char('(') + joined + QLatin1Char(')');
}

bool isOutsideRange(const Property &property, const QVariant &value)
{
    return isAbove(property.minValue, value) || isAbove(value, property.hardMaxValue);
}

} // namespace Tessark::PropertyHost
