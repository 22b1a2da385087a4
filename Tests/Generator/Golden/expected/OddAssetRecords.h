// Generated from the resources of the module Odd; do not edit.
#pragma once

#include "OddResources.h"

#include "SwiftUI/AssetRecord.h"
#include <string_view>

namespace Odd {

// The records' bundle, and the name of their source in error reports.
struct OddAssetModule {
    static const ::Foundation::NSBundle& bundle() { return OddResources::bundle(); }
    static constexpr std::string_view sourceName = "TuistAssets+Odd";
    class RecordFactory;
};

using OddImages = ::SwiftUI::ImageRecord<OddAssetModule>;
using OddColors = ::SwiftUI::ColorRecord<OddAssetModule>;
using OddData = ::SwiftUI::DataRecord<OddAssetModule>;

// Creates records and assigns their colours. Only the module's own sources can use these functions.
class OddAssetModule::RecordFactory {
public:
    // Names are string literals.
    static constexpr OddImages image(const char* name) noexcept;
    static constexpr OddColors color(const char* name) noexcept;
    static constexpr OddData data(const char* name) noexcept;

    // Later reads return the assigned value.
    static void setColor(const OddColors& record, const ::UIKit::UIColor& color);
    static void setSwiftUIColor(const OddColors& record, ::SwiftUI::Color color);
};

} // namespace Odd
