// Lumora/AssetConveniences.h
// What the module adds to the platform's image, colour and data types: making them from its records, and pictures by
// their bare name. A name of the platform's is a namespace here: Lumora::UIColor adds to UIKit::UIColor.
// Text: UTF-8. Threads: any. Ownership: values; see the types themselves.
#pragma once

#include "Lumora/LumoraAsset.h"
#include "Lumora/LumoraResources.h"
#include "SwiftUI/SwiftUI.h"
#include "UIKit/UIKit.h"
#include <optional>
#include <string_view>

namespace Lumora {

namespace UIColor {

// The record's colour, or no value when the catalog has none of its name. A class derived from the platform's is asked
// itself.
template <class Class = UIKit::UIColor> [[nodiscard]] auto withAsset(const LumoraColors& record) {
    return Class::colorNamed(record.name(), LumoraResources::bundle(), nullptr);
}

} // namespace UIColor

namespace NSDataAsset {

// The record's data, or no value when the catalog has none of its name. A class derived from the platform's is asked
// itself.
template <class Class = UIKit::NSDataAsset> [[nodiscard]] auto withAsset(const LumoraData& record) {
    return Class::assetWithName(record.name(), LumoraResources::bundle());
}

} // namespace NSDataAsset

namespace UIImage {

// The picture of that name, or no value. A class derived from the platform's is asked itself.
template <class Class = UIKit::UIImage> [[nodiscard]] auto withAssetName(std::string_view name) {
    return Class::imageNamedWithConfiguration(name, LumoraResources::bundle(), nullptr);
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
