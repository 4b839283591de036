#pragma once

#include <QRgb>

namespace Tessark::UI {

/// The kit's named colours, all opaque.
inline constexpr QRgb kKitRed = 0xffc34b4b;     // 195, 75, 75
inline constexpr QRgb kKitGreen = 0xff5b9c5b;   // 91, 156, 91
inline constexpr QRgb kKitBlue = 0xff3367a9;    // 51, 103, 169
inline constexpr QRgb kKitNeutral = 0xff9b9595; // 155, 149, 149
inline constexpr QRgb kKitAccent = 0xfff7931e;  // 247, 147, 30

} // namespace Tessark::UI
