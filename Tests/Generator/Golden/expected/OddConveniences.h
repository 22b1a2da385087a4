// Generated from the resources of the module Odd; do not edit.
// The module's additions to the platform's image, colour and data types. See SwiftUI/ModuleConveniences.h.
#pragma once

#include "OddAssetRecords.h"

#include "SwiftUI/ModuleConveniences.h"

namespace Odd {

namespace UIColor {
using ::SwiftUI::Conveniences::UIColor::withAsset;
} // namespace UIColor

namespace NSDataAsset {
using ::SwiftUI::Conveniences::NSDataAsset::withAsset;
} // namespace NSDataAsset

namespace UIImage {
// The picture with that name as a Class, or no value.
template <class Class = ::UIKit::UIImage> [[nodiscard]] auto withAssetName(std::string_view name) {
    return ::SwiftUI::Conveniences::UIImage::withAssetName<Class, OddAssetModule>(name);
}
// The same for the platform's own class.
[[nodiscard]] inline std::optional<::UIKit::UIImage> assetNamed(std::string_view name) {
    return withAssetName(name);
}
} // namespace UIImage

namespace Color {
using ::SwiftUI::Conveniences::Color::withAsset;
} // namespace Color

namespace Image {
using ::SwiftUI::Conveniences::Image::decorative;
using ::SwiftUI::Conveniences::Image::withAsset;
} // namespace Image

} // namespace Odd
