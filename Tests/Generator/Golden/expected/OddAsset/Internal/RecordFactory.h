// Generated from the resources of the module Odd; do not edit.
// The functions that create records and assign colours; internal.
#pragma once

#include "../../OddAssetRecords.h"
#include <utility>

namespace Odd {

constexpr OddImages OddAssetModule::RecordFactory::image(const char* name) noexcept {
    return OddImages(name);
}
constexpr OddColors OddAssetModule::RecordFactory::color(const char* name) noexcept {
    return OddColors(name);
}
constexpr OddData OddAssetModule::RecordFactory::data(const char* name) noexcept {
    return OddData(name);
}

inline void OddAssetModule::RecordFactory::setColor(const OddColors& record, const ::UIKit::UIColor& color) {
    record.setColor(color);
}
inline void OddAssetModule::RecordFactory::setSwiftUIColor(const OddColors& record, ::SwiftUI::Color color) {
    record.setSwiftUIColor(std::move(color));
}

} // namespace Odd
