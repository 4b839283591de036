#pragma once

#include "host/JsonConversion_p.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace Tessark::PropertyHost {

/// All hint keys of the vocabulary.
const QStringList &vocabularyHints();

/**
 * The value of a hint from its JSON form, as the editors read it.
 *
 * Truth values, numbers and text stand for themselves; sizes are [width, height] (QSize); colours
 * are as in values (QColor). "font" is "Family", "Family, 12" or an object with "family", "size" in
 * points, "bold" and "italic" (QFont). "alignment" is a name, names joined by "|" or an array of
 * names; "tab_position" and "orientation" are a name (all int). "values" is an array of scalars
 * (QVariantList), "display_values" of texts (QStringList). Conditions of rules are a text or an array
 * of texts (QStringList), bounds that follow a text. Any other key holds any JSON value.
 */
std::optional<QVariant> hintFromJson(const QString &key, const QJsonValue &json,
                                     ConversionError &error);

/// The JSON form of a hint, which hintFromJson() turns into the same value again; undefined for a
/// value that has none.
QJsonValue hintToJson(const QString &key, const QVariant &value);

} // namespace Tessark::PropertyHost
