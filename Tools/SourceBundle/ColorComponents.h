// SourceBundle/ColorComponents.h
// Reads colours of asset catalogs; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourceBundle/Json.h"

namespace SourceBundle {

// Reads "color-space" and "components". A component given as a string is a decimal fraction ("0.5"), or an integer of
// 255 in decimal ("128") or hexadecimal ("0x80"); alpha is 1 when missing, and "1" also means 1. A component given as a
// JSON number is always a fraction of 1. Errors begin with "has": an unknown colour space, a missing component, alpha
// outside 0 to 1, another component outside -16 to 16.
[[nodiscard]] Runtime::Result<AssetCatalog::ColorValue> colorValue(const Json& color);

} // namespace SourceBundle
