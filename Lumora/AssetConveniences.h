// Lumora/AssetConveniences.h
// What the module adds to the platform's image, colour and data types: making them from its records, and pictures by
// their bare name. A name of the platform's is a namespace here: Lumora::UIColor adds to UIKit::UIColor.
//
// Those that take a Class make one of a class of the user's that is derived from the platform's. It is asked itself if
// it has a look-up of its own, a static function that takes what the platform's of that name takes:
// - colours: colorNamed(name, bundle, traits);
// - data: assetWithName(name, bundle);
// - pictures: imageNamedWithConfiguration(name, bundle, traits), or else imageNamed(name, bundle, traits).
// The result is then what that returns. A class without one is made from what the platform finds, as Class{found}, and
// the result is an optional Class; one that cannot be made so gives what the platform finds.
// Text: UTF-8. Threads: any. Ownership: values; see the types themselves.
#pragma once

#include "Lumora/LumoraAsset.h"
#include "Lumora/LumoraResources.h"
#include "Runtime/Attempt.h"
#include "SwiftUI/SwiftUI.h"
#include "UIKit/UIKit.h"
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Lumora {

namespace detail {

template <auto> struct Function;
// Whether both are one function: whether a class has what it is asked for from the platform's.
template <auto one, auto other>
concept Same = std::is_same_v<Function<one>, Function<other>>;

// What the platform has found, as one of the user's class where that can be made from it.
template <class Class, class Base> auto madeFrom(const std::optional<Base>& found) {
    if constexpr (requires { Class{*found}; })
        return found ? std::optional<Class>(Class{*found}) : std::nullopt;
    else
        return found;
}

// What `lookUp(bundle)` finds in the module's bundle; no value while that cannot be read.
template <class LookUp> auto found(LookUp lookUp) {
    return Runtime::attempt([&] { return lookUp(LumoraResources::bundle()); });
}

} // namespace detail

namespace UIColor {

// The record's colour, or no value when the catalog has none of its name.
template <class Class = UIKit::UIColor> [[nodiscard]] auto withAsset(const LumoraColors& record) {
    using Platform = UIKit::UIColor;
    constexpr bool answers = requires {
        Class::colorNamed(record.name(), LumoraResources::bundle(), nullptr);
    };
    constexpr bool isPlatforms = requires {
        requires detail::Same<&Class::colorNamed, &Platform::colorNamed>;
    };
    if constexpr (answers && !isPlatforms)
        return Class::colorNamed(record.name(), LumoraResources::bundle(), nullptr);
    else
        return detail::madeFrom<Class>(detail::found(
            [&](const Foundation::NSBundle& bundle) { return Platform::colorNamed(record.name(), bundle, nullptr); }));
}

} // namespace UIColor

namespace NSDataAsset {

// The record's data, or no value when the catalog has none of its name.
template <class Class = UIKit::NSDataAsset> [[nodiscard]] auto withAsset(const LumoraData& record) {
    using Platform = UIKit::NSDataAsset;
    constexpr bool answers = requires {
        Class::assetWithName(record.name(), LumoraResources::bundle());
    };
    constexpr bool isPlatforms = requires {
        requires detail::Same<&Class::assetWithName, &Platform::assetWithName>;
    };
    if constexpr (answers && !isPlatforms)
        return Class::assetWithName(record.name(), LumoraResources::bundle());
    else
        return detail::madeFrom<Class>(detail::found(
            [&](const Foundation::NSBundle& bundle) { return Platform::assetWithName(record.name(), bundle); }));
}

} // namespace NSDataAsset

namespace UIImage {

// The picture of that name, or no value.
template <class Class = UIKit::UIImage> [[nodiscard]] auto withAssetName(std::string_view name) {
    using Platform = UIKit::UIImage;
    constexpr bool answers = requires {
        Class::imageNamedWithConfiguration(name, LumoraResources::bundle(), nullptr);
    };
    constexpr bool answersOlder = requires {
        Class::imageNamed(name, LumoraResources::bundle(), nullptr);
    };
    constexpr bool isPlatforms = requires {
        requires detail::Same<&Class::imageNamedWithConfiguration, &Platform::imageNamedWithConfiguration>;
    };
    constexpr bool isPlatformsOlder = requires {
        requires detail::Same<&Class::imageNamed, &Platform::imageNamed>;
    };
    if constexpr (answers && !isPlatforms)
        return Class::imageNamedWithConfiguration(name, LumoraResources::bundle(), nullptr);
    else if constexpr (answersOlder && !isPlatformsOlder)
        return Class::imageNamed(name, LumoraResources::bundle(), nullptr);
    else
        return detail::madeFrom<Class>(detail::found([&](const Foundation::NSBundle& bundle) {
            return Platform::imageNamedWithConfiguration(name, bundle, nullptr);
        }));
}
[[nodiscard]] inline std::optional<UIKit::UIImage> assetNamed(std::string_view name) {
    return withAssetName(name);
}

} // namespace UIImage

namespace Color {

[[nodiscard]] inline SwiftUI::Color withAsset(const LumoraColors& record) {
    return {record.name(), LumoraResources::bundle()};
}

} // namespace Color

namespace Image {

[[nodiscard]] inline SwiftUI::Image withAsset(const LumoraImages& record) {
    return {record.name(), LumoraResources::bundle()};
}
[[nodiscard]] inline SwiftUI::Image withAsset(const LumoraImages& record, SwiftUI::Text label) {
    return {record.name(), LumoraResources::bundle(), std::move(label)};
}
// One that readers who hear the screen are not told of.
[[nodiscard]] inline SwiftUI::Image decorative(const LumoraImages& record) {
    return SwiftUI::Image::decorative(record.name(), LumoraResources::bundle());
}

} // namespace Image

} // namespace Lumora
