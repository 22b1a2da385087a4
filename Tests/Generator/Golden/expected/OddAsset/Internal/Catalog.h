// Generated from the resources of the module Odd; do not edit.
// The functions that create records and assign colours; internal.
#pragma once

#include "../../OddAssetRecords.h"
#include <utility>

namespace Odd {

constexpr OddImages OddAssetModule::Catalog::image(const char* name) noexcept {
    return OddImages(name);
}
constexpr OddColors OddAssetModule::Catalog::color(const char* name) noexcept {
    return OddColors(name);
}
constexpr OddData OddAssetModule::Catalog::data(const char* name) noexcept {
    return OddData(name);
}

inline void OddAssetModule::Catalog::setColor(const OddColors& record, const ::UIKit::UIColor& color) {
    record.setColor(color);
}
inline void OddAssetModule::Catalog::setSwiftUIColor(const OddColors& record, ::SwiftUI::Color color) {
    record.setSwiftUIColor(std::move(color));
}

} // namespace Odd
