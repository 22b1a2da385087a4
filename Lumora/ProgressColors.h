// Lumora/ProgressColors.h
// A colour for progress towards a goal: from red (none) through yellow (half) to a base colour (reached).
// Threads: any; no state.
#pragma once

#include "Runtime/Export.h"
#include "SwiftUI/Color.h"
#include "UIKit/UIColor.h"

namespace Lumora {

namespace UIColor {

// The colour for `progress`, clamped to 0 to 1, with the catalog's "progressGreen" as base. Opaque. Below one half its
// red component is above 1, up to 2 at progress 0. NaN gives NaN components.
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor colorForProgress(double progress);
// The same with another base colour. Returns the base itself if it has no RGB components.
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor watchProgress(double progress, const UIKit::UIColor& base);
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor color(const UIKit::UIColor& base, double progress);

} // namespace UIColor

namespace Color {

[[nodiscard]] LUMORA_EXPORT SwiftUI::Color colorForProgress(double progress);

} // namespace Color

} // namespace Lumora
