// SwiftUI/ModuleConveniences.h
// The functions that every module adds to the platform's image, colour and data types: they create objects from
// records, and images from plain names. A module re-exports them in namespaces named after the types:
// Shop::UIColor::withAsset(record).
//
// The template parameter Class may be a user's class, usually one derived from the platform's. It may define its own
// static lookup function with the same name and parameters as the platform's, with or without `traits`:
// - colours: colorNamed(name, bundle, traits);
// - data: assetWithName(name, bundle);
// - pictures: imageNamedWithConfiguration(name, bundle, traits), or else the older imageNamed(name, bundle, traits).
// That function is then called and its result returned. Otherwise the result is an optional Class, constructed as
// Class{found} from the platform's result, or the platform's result itself if Class cannot be constructed from it.
// Text: UTF-8. Threads: any. Ownership: values; see the types. Errors: the platform's lookups give no value when
// memory or descriptors run out. The functions of Color and Image, and those that call a class's own lookup, then
// throw what bundle() throws, std::bad_alloc or std::system_error; what the class's function throws is passed on.
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
// Whether both are the same function, i.e. a class inherits it from the platform's. Compares types that have them as
// arguments, because == of the addresses of weak functions is not a constant expression.
template <auto one, auto other>
concept Same = std::is_same_v<Function<one>, Function<other>>;

// Converts the platform's result to Class if possible.
template <class Class, class Base> auto madeFrom(const std::optional<Base>& found) {
    if constexpr (requires { Class{*found}; })
        return found ? std::optional<Class>(Class{*found}) : std::nullopt;
    else
        return found;
}

// The result of `lookUp(bundle)` for the module's bundle; no value while the bundle is unreadable.
template <class Module, class LookUp> auto found(LookUp lookUp) {
    return Runtime::attempt([&] { return lookUp(Module::bundle()); });
}

} // namespace detail

namespace UIColor {

// The record's colour, or no value when the catalog does not contain it.
template <class Class = UIKit::UIColor, class Module> [[nodiscard]] auto withAsset(const ColorRecord<Module>& record) {
    using Platform = UIKit::UIColor;
    constexpr bool takesTraits = requires {
        Class::colorNamed(record.name(), Module::bundle(), nullptr);
    };
    constexpr bool takesNoTraits = requires {
        Class::colorNamed(record.name(), Module::bundle());
    };
    constexpr bool inheritsLookUp = requires {
        requires detail::Same<&Class::colorNamed, &Platform::colorNamed>;
    };
    if constexpr (takesTraits && !inheritsLookUp)
        return Class::colorNamed(record.name(), Module::bundle(), nullptr);
    else if constexpr (takesNoTraits && !inheritsLookUp)
        return Class::colorNamed(record.name(), Module::bundle());
    else
        return detail::madeFrom<Class>(detail::found<Module>(
            [&](const Foundation::NSBundle& bundle) { return Platform::colorNamed(record.name(), bundle, nullptr); }));
}

} // namespace UIColor

namespace NSDataAsset {

// The record's data, or no value when the catalog does not contain it.
template <class Class = UIKit::NSDataAsset, class Module>
[[nodiscard]] auto withAsset(const DataRecord<Module>& record) {
    using Platform = UIKit::NSDataAsset;
    constexpr bool canLookUp = requires {
        Class::assetWithName(record.name(), Module::bundle());
    };
    constexpr bool inheritsLookUp = requires {
        requires detail::Same<&Class::assetWithName, &Platform::assetWithName>;
    };
    if constexpr (canLookUp && !inheritsLookUp)
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
    constexpr bool newerTakesTraits = requires {
        Class::imageNamedWithConfiguration(name, Module::bundle(), nullptr);
    };
    constexpr bool newerTakesNone = requires {
        Class::imageNamedWithConfiguration(name, Module::bundle());
    };
    constexpr bool olderTakesTraits = requires {
        Class::imageNamed(name, Module::bundle(), nullptr);
    };
    constexpr bool olderTakesNone = requires {
        Class::imageNamed(name, Module::bundle());
    };
    constexpr bool inheritsNewer = requires {
        requires detail::Same<&Class::imageNamedWithConfiguration, &Platform::imageNamedWithConfiguration>;
    };
    constexpr bool inheritsOlder = requires {
        requires detail::Same<&Class::imageNamed, &Platform::imageNamed>;
    };
    if constexpr (newerTakesTraits && !inheritsNewer)
        return Class::imageNamedWithConfiguration(name, Module::bundle(), nullptr);
    else if constexpr (newerTakesNone && !inheritsNewer)
        return Class::imageNamedWithConfiguration(name, Module::bundle());
    else if constexpr (olderTakesTraits && !inheritsOlder)
        return Class::imageNamed(name, Module::bundle(), nullptr);
    else if constexpr (olderTakesNone && !inheritsOlder)
        return Class::imageNamed(name, Module::bundle());
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
// An image that screen readers skip.
template <class Module> [[nodiscard]] SwiftUI::Image decorative(const ImageRecord<Module>& record) {
    return SwiftUI::Image::decorative(record.name(), Module::bundle());
}

} // namespace Image

} // namespace SwiftUI::Conveniences
