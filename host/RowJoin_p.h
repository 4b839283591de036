#pragma once

#include <QString>
#include <QVariant>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// True when the hints say the same; of textures, when they have the same names.
bool isSameHint(const QString &key, const QVariant &left, const QVariant &right);

/// True when the rows have the same name, type, label and hints.
bool isSameRow(const PropertyUI::Property &left, const PropertyUI::Property &right);

/**
 * Makes row, that of one object or of several, one that stands for other's object too. The range
 * becomes what all take, a row that one object disables is disabled, rules that differ go, and what
 * says nothing about values stays. The default stays as it is.
 *
 * False, and nothing done, where one value cannot mean the same to both: ranges that do not overlap,
 * other choices, textures, suffixes, display scales, aspect ratios, full sizes or parts of a
 * transform.
 */
bool joinRow(PropertyUI::Property &row, const PropertyUI::Property &other);

} // namespace Tessark::PropertyHost
