// Generator/AssetsTemplates.h
// The constant parts of generated code for assets; internal to the emitter.
// In generated code the platform's names begin with "::", because a group may be named UIKit.
#pragma once

#include <string_view>

namespace Generator {

inline constexpr std::string_view recordsHeader = R"(#pragma once

#include "{{module}}Resources.h"

#include "SwiftUI/AssetRecord.h"
#include <string_view>

namespace {{module}} {

// The records' bundle, and the name of their source in error reports.
struct {{module}}AssetModule {
    static const ::Foundation::NSBundle& bundle() { return {{module}}Resources::bundle(); }
    static constexpr std::string_view sourceName = "TuistAssets+{{module}}";
    class RecordFactory;
};

using {{module}}Images = ::SwiftUI::ImageRecord<{{module}}AssetModule>;
using {{module}}Colors = ::SwiftUI::ColorRecord<{{module}}AssetModule>;
using {{module}}Data = ::SwiftUI::DataRecord<{{module}}AssetModule>;

// Creates records and assigns their colours. Only the module's own sources can use these functions.
class {{module}}AssetModule::RecordFactory {
public:
    // Names are string literals.
    static constexpr {{module}}Images image(const char* name) noexcept;
    static constexpr {{module}}Colors color(const char* name) noexcept;
    static constexpr {{module}}Data data(const char* name) noexcept;

    // Later reads return the assigned value.
    static void setColor(const {{module}}Colors& record, const ::UIKit::UIColor& color);
    static void setSwiftUIColor(const {{module}}Colors& record, ::SwiftUI::Color color);
};

} // namespace {{module}})";

inline constexpr std::string_view recordFactoryHeader =
    R"(// The functions that create records and assign colours; internal.
#pragma once

#include "../../{{module}}AssetRecords.h"
#include <utility>

namespace {{module}} {

constexpr {{module}}Images {{module}}AssetModule::RecordFactory::image(const char* name) noexcept {
    return {{module}}Images(name);
}
constexpr {{module}}Colors {{module}}AssetModule::RecordFactory::color(const char* name) noexcept {
    return {{module}}Colors(name);
}
constexpr {{module}}Data {{module}}AssetModule::RecordFactory::data(const char* name) noexcept {
    return {{module}}Data(name);
}

inline void {{module}}AssetModule::RecordFactory::setColor(const {{module}}Colors& record, const ::UIKit::UIColor& color) {
    record.setColor(color);
}
inline void {{module}}AssetModule::RecordFactory::setSwiftUIColor(const {{module}}Colors& record, ::SwiftUI::Color color) {
    record.setSwiftUIColor(std::move(color));
}

} // namespace {{module}})";

inline constexpr std::string_view conveniencesHeader =
    R"(// The module's additions to the platform's image, colour and data types. See SwiftUI/ModuleConveniences.h.
#pragma once

#include "{{module}}AssetRecords.h"

#include "SwiftUI/ModuleConveniences.h"

namespace {{module}} {

namespace UIColor {
using ::SwiftUI::Conveniences::UIColor::withAsset;
} // namespace UIColor

namespace NSDataAsset {
using ::SwiftUI::Conveniences::NSDataAsset::withAsset;
} // namespace NSDataAsset

namespace UIImage {
// The picture with that name as a Class, or no value.
template <class Class = ::UIKit::UIImage> [[nodiscard]] auto withAssetName(std::string_view name) {
    return ::SwiftUI::Conveniences::UIImage::withAssetName<Class, {{module}}AssetModule>(name);
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

} // namespace {{module}})";

} // namespace Generator
