#pragma once

#include <QString>

namespace Tessark::PropertyHost {

// Hints that hosts read; the library's editors do not know them.

/// The textures that a "texture" property offers, for TexturePropertyEditor::setTextures(): a
/// QVariantList of PropertyUI::TextureChoice with unique names.
inline constexpr QLatin1String kHostHintTextures("textures");

} // namespace Tessark::PropertyHost
