// SwiftUI/ModuleConveniences.h
// What every module adds to the platform's image, colour and data types: making them from its records, and pictures by
// their bare name. A module has them in namespaces that are named after the types: Shop::UIColor::withAsset(record).
//
// Those that take a Class make one of a class of the user's that is derived from the platform's. A class may have a
// look-up of its own, a static function that takes what the platform's of that name takes:
// - colours: colorNamed(name, bundle, traits);
// - data: assetWithName(name, bundle);
// - pictures: imageNamedWithConfiguration(name, bundle, traits), or else imageNamed(name, bundle, traits).
// It is called then, and its result returned. Without one the result is an optional Class, made as Class{found} from
// what the platform finds, or that itself if Class cannot be made from it.
// Text: UTF-8. Threads: any. Ownership: values; see the types themselves.
#pragma once

#include "Runtime/Attempt.h"
#include "SwiftUI/AssetRecord.h"
#include "SwiftUI/SwiftUI.h"
#include "UIKit/UIKit.h"
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace SwiftUI::Conveniences {

namespace detail {

template <auto> struct Function;
// Whether both are one function: whether a class inherits it from the platform's.
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
template <class Module, class LookUp> auto found(LookUp lookUp) {
    return Runtime::attempt([&] { return lookUp(Module::bundle()); });
}

} // namespace detail

namespace UIColor {

// The record's colour, or no value when the catalog has none of its name.
template <class Class = UIKit::UIColor, class Module> [[nodiscard]] auto withAsset(const ColorRecord<Module>& record) {
    using Platform = UIKit::UIColor;
    constexpr bool hasOwn = requires {
        Class::colorNamed(record.name(), Module::bundle(), nullptr);
    };
    constexpr bool isInherited = requires {
        requires detail::Same<&Class::colorNamed, &Platform::colorNamed>;
    };
    if constexpr (hasOwn && !isInherited)
        return Class::colorNamed(record.name(), Module::bundle(), nullptr);
    else
        return detail::madeFrom<Class>(detail::found<Module>(
            [&](const Foundation::NSBundle& bundle) { return Platform::colorNamed(record.name(), bundle, nullptr); }));
}

} // namespace UIColor

namespace NSDataAsset {

// The record's data, or no value when the catalog has none of its name.
template <class Class = UIKit::NSDataAsset, class Module>
[[nodiscard]] auto withAsset(const DataRecord<Module>& record) {
    using Platform = UIKit::NSDataAsset;
    constexpr bool hasOwn = requires {
        Class::assetWithName(record.name(), Module::bundle());
    };
    constexpr bool isInherited = requires {
        requires detail::Same<&Class::assetWithName, &Platform::assetWithName>;
    };
    if constexpr (hasOwn && !isInherited)
        return Class::assetWithName(record.name(), Module::bundle());
    else
        return detail::madeFrom<Class>(detail::found<Module>(
            [&](const Foundation::NSBundle& bundle) { return Platform::assetWithName(record.name(), bundle); }));
}

} // namespace NSDataAsset

namespace UIImage {

// The picture of that name in the module's bundle, or no value.
template <class Class = UIKit::UIImage, class Module> [[nodiscard]] auto withAssetName(std::string_view name) {
    using Platform = UIKit::UIImage;
    constexpr bool hasOwn = requires {
        Class::imageNamedWithConfiguration(name, Module::bundle(), nullptr);
    };
    constexpr bool hasOlder = requires {
        Class::imageNamed(name, Module::bundle(), nullptr);
    };
    constexpr bool isInherited = requires {
        requires detail::Same<&Class::imageNamedWithConfiguration, &Platform::imageNamedWithConfiguration>;
    };
    constexpr bool isInheritedOlder = requires {
        requires detail::Same<&Class::imageNamed, &Platform::imageNamed>;
    };
    if constexpr (hasOwn && !isInherited)
        return Class::imageNamedWithConfiguration(name, Module::bundle(), nullptr);
    else if constexpr (hasOlder && !isInheritedOlder)
        return Class::imageNamed(name, Module::bundle(), nullptr);
    else
        return detail::madeFrom<Class>(detail::found<Module>([&](const Foundation::NSBundle& bundle) {
            return Platform::imageNamedWithConfiguration(name, bundle, nullptr);
        }));
}

} // namespace UIImage

namespace Color {

template <class Module> [[nodiscard]] SwiftUI::Color withAsset(const ColorRecord<Module>& record) {
    return {record.name(), Module::bundle()};
}

} // namespace Color

namespace Image {

template <class Module> [[nodiscard]] SwiftUI::Image withAsset(const ImageRecord<Module>& record) {
    return {record.name(), Module::bundle()};
}
template <class Module> [[nodiscard]] SwiftUI::Image withAsset(const ImageRecord<Module>& record, SwiftUI::Text label) {
    return {record.name(), Module::bundle(), std::move(label)};
}
// One that screen readers skip.
template <class Module> [[nodiscard]] SwiftUI::Image decorative(const ImageRecord<Module>& record) {
    return SwiftUI::Image::decorative(record.name(), Module::bundle());
}

} // namespace Image

} // namespace SwiftUI::Conveniences
