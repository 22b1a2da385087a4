// Generator/AssetsTemplates.h
// The parts of generated code that are the same for every tree of assets; internal to the emitter of assets.
// In generated code the platform's names begin with "::", because a group may be called UIKit.
#pragma once

#include <string_view>

namespace Generator {

inline constexpr std::string_view recordsHeader = R"(#pragma once

#include "{{module}}Resources.h"
#include "SwiftUI/AssetRecord.h"
#include <string_view>

namespace {{module}} {

// Where the records below look, and what their reports say.
struct {{module}}AssetModule {
    static const ::Foundation::NSBundle& bundle() { return {{module}}Resources::bundle(); }
    static constexpr std::string_view sourceName = "TuistAssets+{{module}}";
    class Catalog; // makes the records; only the module's own sources know how
};

using {{module}}Images = ::SwiftUI::ImageRecord<{{module}}AssetModule>;
using {{module}}Colors = ::SwiftUI::ColorRecord<{{module}}AssetModule>;
using {{module}}Data = ::SwiftUI::DataRecord<{{module}}AssetModule>;

} // namespace {{module}})";

inline constexpr std::string_view makerHeader = R"(// How records are made; internal.
#pragma once

#include "../../{{module}}AssetRecords.h"

namespace {{module}} {

// Names are string literals.
class {{module}}AssetModule::Catalog {
public:
    static constexpr {{module}}Images image(const char* name) noexcept { return {{module}}Images(name); }
    static constexpr {{module}}Colors color(const char* name) noexcept { return {{module}}Colors(name); }
    static constexpr {{module}}Data data(const char* name) noexcept { return {{module}}Data(name); }
};

} // namespace {{module}})";

} // namespace Generator
