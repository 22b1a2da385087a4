// Lumora/ProgressColors.h
// A colour for progress towards a goal: from red (no progress) to a base colour (goal reached). With a green base,
// progress one half is yellow.
// Threads: any. Errors: as for reading a record (SwiftUI/AssetRecord.h).
#pragma once

#include "Runtime/Export.h"
#include "SwiftUI/Color.h"
#include "UIKit/UIColor.h"

namespace Lumora {

namespace UIColor {

// The colour for `progress`, clamped to 0 to 1, with the catalog's colour "progressGreen" as base. Opaque;
// below one half its red component is above 1, up to 2 at progress 0. NaN gives NaN components.
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor colorForProgress(double progress);
// The same with another base colour, under two names. A base that is a pattern is returned unchanged.
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor watchProgress(double progress, const UIKit::UIColor& base);
[[nodiscard]] LUMORA_EXPORT UIKit::UIColor color(const UIKit::UIColor& base, double progress);

} // namespace UIColor

namespace Color {

// UIColor::colorForProgress() as a SwiftUI colour.
[[nodiscard]] LUMORA_EXPORT SwiftUI::Color colorForProgress(double progress);

} // namespace Color

} // namespace Lumora
