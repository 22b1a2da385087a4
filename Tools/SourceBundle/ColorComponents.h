// SourceBundle/ColorComponents.h
// Reads colours of asset catalogs.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourceBundle/Json.h"

namespace SourceBundle {

// Reads "color-space" and "components". A component that is a string is a number with a decimal point or exponent
// ("0.5"), or an integer that is divided by 255, in decimal ("128") or hexadecimal ("0x80"). One that is a JSON number
// is not divided, nor are the strings "0" and "1" for alpha. Alpha is 1 if it is missing. Errors, which continue a
// sentence ("has ..."): an unknown colour space; a component that is missing or no number; alpha outside 0 to 1, or
// another component outside -16 to 16.
[[nodiscard]] Runtime::Result<AssetCatalog::ColorValue> colorValue(const Json& color);

} // namespace SourceBundle
