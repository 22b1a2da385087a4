// UIKit/UIColor.h
// A colour: fixed components, a colour in a bundle's asset catalog, or a picture used as a pattern.
// Text: UTF-8. Threads: any. Ownership: a plain value of a few words.
#pragma once

#include "Foundation/NSBundle.h"
#include "Runtime/Export.h"
#include "UIKit/UIImage.h"
#include "UIKit/UITraitCollection.h"
#include <cstddef>
#include <optional>
#include <string_view>
#include <variant>

namespace UIKit {

// Extended sRGB, not premultiplied: 0 to 1 is the sRGB range; components may be outside of it.
struct RGBA {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    friend bool operator==(const RGBA&, const RGBA&) = default;
};

// A derived class may define its own static colorNamed(); a module's `withAsset<Derived>()` calls it.
class LUMORA_EXPORT UIColor {
public:
    // Any numbers, including NaN, are kept unchanged.
    constexpr UIColor(double red, double green, double blue, double alpha) noexcept
        : state_(RGBA{red, green, blue, alpha}) {}
    // A colour that has a picture instead of components.
    [[nodiscard]] static UIColor patternColor(const UIImage& image) noexcept { return UIColor(State(image)); }
    // The colour with that name (exact) in the catalog of `bundle`, or no value, also when memory or descriptors run
    // out. It follows the current traits, except for those that `traits` specifies (null specifies none), and the
    // language of the bundle's texts.
    [[nodiscard]] static std::optional<UIColor> colorNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                                           const UITraitCollection* traits = nullptr);

    // The components for the current traits; no value for a pattern.
    [[nodiscard]] std::optional<RGBA> rgba() const noexcept;
    // For a colour from a catalog: its components for these traits, completed by the current ones, as a fixed colour;
    // traits given to colorNamed() take precedence. Any other colour is returned unchanged.
    [[nodiscard]] UIColor resolved(const UITraitCollection& traits) const noexcept;
    // The picture of a pattern, or null.
    [[nodiscard]] const UIImage* patternImage() const noexcept { return std::get_if<UIImage>(&state_); }

    // Whether both have the same components, are the same asset for the same traits, or have the same pattern.
    friend bool operator==(const UIColor&, const UIColor&) = default;

private:
    struct Asset {
        const detail::BundleCatalog* catalog;
        std::size_t index;
        UITraitCollection traits;
        friend bool operator==(const Asset&, const Asset&) = default;
    };
    using State = std::variant<RGBA, Asset, UIImage>;
    explicit UIColor(State state) noexcept : state_(state) {}

    State state_;
};

} // namespace UIKit
