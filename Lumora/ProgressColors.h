// Lumora/ProgressColors.h
// A colour for how far a goal is reached: from red (nothing) through yellow (half) to a base colour (all).
// Threads: any; no state.
#pragma once

#include "Runtime/Export.h"
#include "SwiftUI/Color.h"
#include "UIKit/UIColor.h"

namespace Lumora {

namespace UIColor {

// The colour of `progress`, taken as 0 below 0 and as 1 above 1, on the base of the catalog's "progressGreen". Opaque.
// Its red goes beyond 1 below the half, as far as 2 at 0; a progress that is no number gives components that are none.
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor colorForProgress(double progress);
// The same on a base of the caller's; the base itself when it has no components of red, green and blue.
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor watchProgress(double progress, const UIKit::UIColor& base);
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor color(const UIKit::UIColor& base, double progress);

} // namespace UIColor

namespace Color {

[[nodiscard]] LUMORA_EXPORT SwiftUI::Color colorForProgress(double progress);

} // namespace Color

} // namespace Lumora
