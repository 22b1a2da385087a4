// UIKit/internal/ColorSpaces.h
// Colours of other spaces as extended sRGB; internal.
// Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "UIKit/UIColor.h"

namespace UIKit::detail {

// Extended sRGB is sRGB whose components may lie outside of 0 to 1; its curve goes on below 0 as the mirror image of
// itself:
//     linear(c) = c / 12.92 for c <= 0.04045, else ((c + 0.055) / 1.055)^2.4;  linear(-c) = -linear(c)
// - sRGB and extended sRGB are taken as they are.
// - Display P3 has the same curve and white point: its linear components are multiplied by the matrix from its
// primaries to
//   sRGB's, and the curve is applied again.
// - Grey has gamma 2.2: each component is the curve of white^2.2, mirrored below 0 likewise.
// Alpha stays as it is.
[[nodiscard]] RGBA toExtendedSrgb(const AssetCatalog::ColorValue& color) noexcept;

} // namespace UIKit::detail
