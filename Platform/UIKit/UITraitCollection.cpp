#include "UIKit/UITraitCollection.h"

#include <algorithm>
#include <atomic>
#include <bit>

namespace UIKit {

namespace {

// All traits in one word, so that readers never see a partial change.
struct Packed {
    float displayScale = 0;
    UserInterfaceStyle style{};
    AccessibilityContrast contrast{};
    LayoutDirection direction{};
    std::uint8_t unused = 0; // padding would have no defined value for bit_cast
};

constinit std::atomic<std::uint64_t> currentTraits{std::bit_cast<std::uint64_t>(Packed{})};

template <class Trait> Trait firstSpecified(Trait own, Trait other) noexcept {
    return own == Trait{} ? other : own;
}

// 0 if the scale is unspecified. Otherwise clamps it, because a tiny one would become 0 in single precision.
double clampedScale(double scale) noexcept {
    constexpr double largest = 255; // the largest scale that a catalog can store
    return scale > 0 ? std::clamp(scale, 1 / largest, largest) : 0;
}

} // namespace

UITraitCollection UITraitCollection::current() noexcept {
    const auto packed = std::bit_cast<Packed>(currentTraits.load(std::memory_order_relaxed));
    return {packed.style, packed.contrast, packed.displayScale, packed.direction};
}

void UITraitCollection::setCurrent(const UITraitCollection& traits) noexcept {
    const Packed packed{static_cast<float>(clampedScale(traits.displayScale)), traits.userInterfaceStyle,
                        traits.accessibilityContrast, traits.layoutDirection};
    currentTraits.store(std::bit_cast<std::uint64_t>(packed), std::memory_order_relaxed);
}

UITraitCollection UITraitCollection::over(const UITraitCollection& under) const noexcept {
    return {firstSpecified(userInterfaceStyle, under.userInterfaceStyle),
            firstSpecified(accessibilityContrast, under.accessibilityContrast),
            firstSpecified(clampedScale(displayScale), clampedScale(under.displayScale)),
            firstSpecified(layoutDirection, under.layoutDirection)};
}

} // namespace UIKit
