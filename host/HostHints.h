#pragma once

#include <QString>

namespace Tessark::PropertyHost {

// Hints that hosts read; the library's editors do not know them.

/// The textures that a "texture" property offers, for TexturePropertyEditor::setTextures(): a
/// QVariantList of PropertyUI::TextureChoice with unique names.
inline constexpr QLatin1String kHostHintTextures("textures");

/// What the row is for, in plain text; PropertyPanelView shows it.
inline constexpr QLatin1String kHostHintHelp("help");

// Rules, which RuleEngine applies to a panel.

/// When the row, or all of the group, tab group or tab that it opens, is shown; and when it can be
/// used. A condition as text, or several in a QStringList that must all hold.
inline constexpr QLatin1String kHostHintVisibleWhen("visible_when");
inline constexpr QLatin1String kHostHintEnabledWhen("enabled_when");

/// What the row's minimum and maximum follow: an expression as text that gives a number, or the
/// name of a property with as many numbers as the row.
inline constexpr QLatin1String kHostHintMinimumFollows("minimum_follows");
inline constexpr QLatin1String kHostHintMaximumFollows("maximum_follows");

} // namespace Tessark::PropertyHost
