#pragma once

#include <property/PropertyVocabulary.h>
#include <property/TextureChoice.h>
#include <property/editors/ImageFormatEditor.h>

#include <QColor>
#include <QGenericMatrix>
#include <QImage>
#include <QSize>
#include <QString>
#include <QVariant>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

namespace Tessark::PropertyHost {

/**
 * How a member of a C++ struct is shown and edited: the type of its row and the way from the member
 * to a variant and back.
 *
 * Specialise it for a type of your own:
 *
 *     template <>
 *     struct Tessark::PropertyHost::StructField<Decibel>
 *     {
 *         static QString type() { return PropertyUI::kPropertyTypeFloat; }
 *         static QVariant toVariant(Decibel value) { return value.number; }
 *         static Decibel fromVariant(const QVariant &value) { return {value.toDouble()}; }
 *     };
 *
 * fromVariant() gets what the row's editor hands out. Values that the member cannot hold are brought
 * to the nearest one that it can.
 */
template <typename Value, typename Enable = void>
struct StructField
{
    static_assert(
        !std::is_same_v<Value, Value>,
        "bindStruct: no row shows values of this type. Bind bool, int or a shorter "
        "integer, float, double, QString, std::string, QColor, QVector2D to QVector4D, "
        "QSize, QImage, QGenericMatrix<3, 3, double>, ImageFormatDesc or TextureChoice; an "
        "enumeration with the texts of its values; a nested struct with group(); or "
        "specialise Tessark::PropertyHost::StructField for the type.");

    // So that no other error follows.
    static QString type() { return {}; }
    static QVariant toVariant(const Value &) { return {}; }
    static Value fromVariant(const QVariant &) { return {}; }
};

/// A member that its row holds as it is.
template <typename Value>
struct PlainStructField
{
    static QVariant toVariant(const Value &value) { return QVariant::fromValue(value); }
    static Value fromVariant(const QVariant &value) { return value.value<Value>(); }
};

template <>
struct StructField<bool> : PlainStructField<bool>
{
    static QString type() { return PropertyUI::kPropertyTypeBoolean; }
};

/// Whole numbers that an int holds all of; a member of another type would lose values in a row.
template <typename Value>
struct StructField<
    Value,
    std::enable_if_t<
        std::is_integral_v<
            Value> && !std::is_same_v<Value, bool> && !std::is_same_v<Value, char> && (sizeof(Value) < sizeof(int) || std::is_same_v<Value, int>)>>
{
    static QString type() { return PropertyUI::kPropertyTypeInteger; }
    static QVariant toVariant(Value value) { return static_cast<int>(value); }
    static Value fromVariant(const QVariant &value)
    {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): a signed char is a small number here
        constexpr int kLowest = std::numeric_limits<Value>::min();
        constexpr int kHighest = std::numeric_limits<Value>::max();
        return static_cast<Value>(std::clamp(value.toInt(), kLowest, kHighest));
    }
};

template <typename Value>
struct StructField<Value, std::enable_if_t<std::is_floating_point_v<Value>>>
{
    static QString type() { return PropertyUI::kPropertyTypeFloat; }
    static QVariant toVariant(Value value) { return static_cast<double>(value); }
    static Value fromVariant(const QVariant &value)
    {
        const double number = value.toDouble();
        if (!std::isfinite(number))
            return static_cast<Value>(number);
        constexpr auto kHighest = static_cast<double>(std::min<long double>(
            std::numeric_limits<Value>::max(), std::numeric_limits<double>::max()));
        return static_cast<Value>(std::clamp(number, -kHighest, kHighest));
    }
};

/// The row needs the texts of the values; see StructRows::bind().
template <typename Value>
struct StructField<Value, std::enable_if_t<std::is_enum_v<Value>>>
{
    static_assert(sizeof(Value) <= sizeof(int),
                  "bindStruct: the values of this enumeration do not fit into an int.");

    static QString type() { return PropertyUI::kPropertyTypeEnumeration; }
    static QVariant toVariant(Value value) { return static_cast<int>(value); }
    static Value fromVariant(const QVariant &value) { return static_cast<Value>(value.toInt()); }
};

template <>
struct StructField<QString> : PlainStructField<QString>
{
    static QString type() { return PropertyUI::kPropertyTypeString; }
};

/// UTF-8.
template <>
struct StructField<std::string>
{
    static QString type() { return PropertyUI::kPropertyTypeString; }
    static QVariant toVariant(const std::string &value) { return QString::fromStdString(value); }
    static std::string fromVariant(const QVariant &value) { return value.toString().toStdString(); }
};

template <>
struct StructField<QColor> : PlainStructField<QColor>
{
    static QString type() { return PropertyUI::kPropertyTypeColor; }
};

template <>
struct StructField<QVector2D> : PlainStructField<QVector2D>
{
    static QString type() { return PropertyUI::kPropertyTypeVec2; }
};

template <>
struct StructField<QVector3D> : PlainStructField<QVector3D>
{
    static QString type() { return PropertyUI::kPropertyTypeVec3; }
};

template <>
struct StructField<QVector4D> : PlainStructField<QVector4D>
{
    static QString type() { return PropertyUI::kPropertyTypeVec4; }
};

template <>
struct StructField<QSize> : PlainStructField<QSize>
{
    static QString type() { return PropertyUI::kPropertyTypeSize; }
};

template <>
struct StructField<QImage> : PlainStructField<QImage>
{
    static QString type() { return PropertyUI::kPropertyTypeImage; }
};

template <>
struct StructField<QGenericMatrix<3, 3, double>> : PlainStructField<QGenericMatrix<3, 3, double>>
{
    static QString type() { return PropertyUI::kPropertyTypeTransform2D; }
};

template <>
struct StructField<PropertyUI::ImageFormatDesc> : PlainStructField<PropertyUI::ImageFormatDesc>
{
    static QString type() { return PropertyUI::kPropertyTypeImageFormat; }
};

template <>
struct StructField<PropertyUI::TextureChoice> : PlainStructField<PropertyUI::TextureChoice>
{
    static QString type() { return PropertyUI::kPropertyTypeTexture; }
};

} // namespace Tessark::PropertyHost
