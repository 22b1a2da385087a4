// AssetCatalog/internal/ColorSpaces.h
// Converts colours to extended sRGB; internal.
// Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include <array>

namespace AssetCatalog {

// Red, green, blue and alpha in extended sRGB, which is sRGB that allows components outside of 0 to 1; its transfer
// curve is mirrored below 0:
//     linear(c) = c / 12.92 for c <= 0.04045, else ((c + 0.055) / 1.055)^2.4;  linear(-c) = -linear(c)
// sRGB and extended sRGB are used unchanged. Display P3 has the same curve and white point: its linear components are
// multiplied by the matrix from its primaries to those of sRGB, and the inverse of linear() gives the result. Gray has
// gamma 2.2, also mirrored below 0: the inverse of linear() for white^2.2 gives all three components. Alpha is
// unchanged.
[[nodiscard]] std::array<double, 4> toExtendedSrgb(const ColorValue& color) noexcept;

} // namespace AssetCatalog
