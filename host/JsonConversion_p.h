#pragma once

#include <QColor>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <optional>

namespace Tessark::PropertyHost {

// Each reader gives nothing, and says in error why, when the JSON value is not of its form.

/// Why a JSON value could not be converted, and which part of it was to blame.
struct ConversionError
{
    QString message;
    QString path; // JSON pointer from the value to that part; empty for the value itself
};

/// The kind of a JSON value with its article, as in "a string", in the user's language.
QString jsonKindName(const QJsonValue &json);

/// "expected <what>, found <kind of json>", in the user's language; so has to be what.
QString expectedMessage(const QString &what, const QJsonValue &json);

std::optional<bool> booleanFromJson(const QJsonValue &json, ConversionError &error);
std::optional<QString> textFromJson(const QJsonValue &json, ConversionError &error);
std::optional<double> numberFromJson(const QJsonValue &json, ConversionError &error);

/// A number without fraction that an int can hold.
std::optional<int> integerFromJson(const QJsonValue &json, ConversionError &error);

/// An array of exactly count numbers. what names the whole in errors; it is a text of Messages.
std::optional<QVector<double>> numbersFromJson(const QJsonValue &json, int count, const char *what,
                                               ConversionError &error);

/// The same with numbers that an int can hold.
std::optional<QVector<int>> integersFromJson(const QJsonValue &json, int count, const char *what,
                                             ConversionError &error);

/// The numbers of a text that separates them by single spaces; count of them, or one if oneForAll.
enum class OneForAll { No, Yes };
bool checkNumbersText(const QString &text, int count, OneForAll oneForAll, ConversionError &error);

/// True when the object has no keys but the known ones, and the required one among them.
bool checkKeys(const QJsonObject &object, const QStringList &known, const QString &required,
               ConversionError &error);

/// What errors call the form of a size.
constexpr const char *kSizeForm =
    QT_TRANSLATE_NOOP("Tessark::PropertyHost::Messages", "[width, height]");

/// [width, height] in whole numbers.
std::optional<QSize> sizeFromJson(const QJsonValue &json, ConversionError &error);

enum class Alpha { Without, With };
/// An array of fractions, 3 or, with alpha, 4; or a text in one of the forms of QColor_fromString().
std::optional<QColor> colorFromJson(const QJsonValue &json, Alpha alpha, ConversionError &error);

/// Text, a number or a truth value; a number without fraction becomes an int if it fits in one.
std::optional<QVariant> scalarFromJson(const QJsonValue &json, ConversionError &error);

} // namespace Tessark::PropertyHost
