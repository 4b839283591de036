#pragma once

#include <QString>

namespace Tessark::PropertyHost {

/// The version of the JSON form of property lists.
inline constexpr int kListVersion = 1;

// The keys of a property list in JSON, and those of its rows.
inline constexpr QLatin1String kKeySchema("$schema");
inline constexpr QLatin1String kKeyVersion("version");
inline constexpr QLatin1String kKeyTitle("title");
inline constexpr QLatin1String kKeyProperties("properties");
inline constexpr QLatin1String kKeyName("name");
inline constexpr QLatin1String kKeyLabel("label");
inline constexpr QLatin1String kKeyType("type");
inline constexpr QLatin1String kKeyMin("min");
inline constexpr QLatin1String kKeyMax("max");
inline constexpr QLatin1String kKeyHardMax("hardMax");
inline constexpr QLatin1String kKeyDefault("default");
inline constexpr QLatin1String kKeyHints("hints");

} // namespace Tessark::PropertyHost
