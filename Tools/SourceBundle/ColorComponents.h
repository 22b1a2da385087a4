// SourceBundle/ColorComponents.h
// Colours as catalogs write them; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourceBundle/Json.h"

namespace SourceBundle {

// The value of "color-space" and "components". A component's text is a decimal fraction ("0.5"), a whole number of 255
// ("128") or a hexadecimal one of 255 ("0x80"); alpha, 1 when it is missing, is a fraction even when it is "1". A JSON
// number is always a fraction: 1 is the whole. Errors begin with "has": an unknown space, no such component, alpha
// outside of 0 to 1, another component outside of -16 to 16.
[[nodiscard]] Runtime::Result<AssetCatalog::ColorValue> colorValue(const Json& color);

} // namespace SourceBundle
