// UIKit/UITraitCollection.h
// What pictures and colours adapt to.
// Threads: setCurrent() and current() from any thread at any time; a reader sees the traits before a change or after
// it.
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
    double displayScale = 0; // pixels in a point; what is not above 0 is unspecified
    LayoutDirection layoutDirection = LayoutDirection::unspecified;

    // The traits in force in the whole process; all unspecified until they are set, which means a light screen of one
    // pixel in a point.
    [[nodiscard]] static UITraitCollection current() noexcept;
    // `displayScale` is kept in single precision.
    static void setCurrent(const UITraitCollection& traits) noexcept;

    // These traits, with those of `under` where they are unspecified. The scale is 0 where neither specifies one, and
    // within the bounds of screens, from 1/255 to 255.
    [[nodiscard]] UITraitCollection over(const UITraitCollection& under) const noexcept;

    friend bool operator==(const UITraitCollection&, const UITraitCollection&) = default;
};

} // namespace UIKit
