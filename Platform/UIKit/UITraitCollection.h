// UIKit/UITraitCollection.h
// The traits that pictures, colours and data assets adapt to.
// Threads: setCurrent() and current() from any thread at any time; a reader sees the traits either before or after a
// change.
#pragma once

#include "Runtime/Export.h"
#include <cstdint>

namespace UIKit {

enum class UserInterfaceStyle : std::uint8_t { unspecified, light, dark };
enum class AccessibilityContrast : std::uint8_t { unspecified, normal, high };
enum class LayoutDirection : std::uint8_t { unspecified, leftToRight, rightToLeft };

// A plain value; every trait may be left unspecified.
struct LUMORA_EXPORT UITraitCollection {
    UserInterfaceStyle userInterfaceStyle = UserInterfaceStyle::unspecified;
    AccessibilityContrast accessibilityContrast = AccessibilityContrast::unspecified;
    double displayScale = 0; // pixels per point; 0 or less, or NaN, means unspecified
    LayoutDirection layoutDirection = LayoutDirection::unspecified;

    // The current traits of the process. Initially all are unspecified: variants for any appearance are preferred, then
    // light ones, and the scale is 1.
    [[nodiscard]] static UITraitCollection current() noexcept;
    // `displayScale` is clamped as in over() and kept in single precision.
    static void setCurrent(const UITraitCollection& traits) noexcept;

    // These traits, with unspecified ones taken from `under`. The scale is 0 if neither specifies one, else clamped to
    // 1/255 to 255.
    [[nodiscard]] UITraitCollection over(const UITraitCollection& under) const noexcept;

    friend bool operator==(const UITraitCollection&, const UITraitCollection&) = default;
};

} // namespace UIKit
