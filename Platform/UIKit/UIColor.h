// UIKit/UIColor.h
// A colour: fixed components, a colour of a bundle's asset catalog, or a picture laid as a pattern.
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

// Extended sRGB, not premultiplied: 0 to 1 is the range of sRGB, and components may lie outside of it.
struct RGBA {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    friend bool operator==(const RGBA&, const RGBA&) = default;
};

// A derived class may define its own static colorNamed(); templates that take a class call that.
class LUMORA_EXPORT UIColor {
public:
    // Any numbers, NaN included, kept as they are.
    constexpr UIColor(double red, double green, double blue, double alpha) noexcept
        : state_(RGBA{red, green, blue, alpha}) {}
    // Has no components.
    [[nodiscard]] static UIColor patternColor(const UIImage& image) noexcept { return UIColor(State(image)); }
    // The colour of that name (exact) in the asset catalog of `bundle`, or no value. For traits that `traits` leaves
    // unspecified, all of them without `traits`, each call of the colour uses those in force at that time; the language
    // is that of the bundle's texts at that time.
    [[nodiscard]] static std::optional<UIColor> colorNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                                           const UITraitCollection* traits = nullptr);

    // The components for the traits in force; no value when the colour is not one of red, green and blue.
    [[nodiscard]] std::optional<RGBA> rgba() const noexcept;
    // The fixed colour that this one is for these traits, with those in force now where they are unspecified.
    [[nodiscard]] UIColor resolved(const UITraitCollection& traits) const noexcept;
    // The picture of a pattern, or null.
    [[nodiscard]] const UIImage* patternImage() const noexcept { return std::get_if<UIImage>(&state_); }

    // Whether both have the same components, are the same asset for the same traits, or lay the same picture.
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
