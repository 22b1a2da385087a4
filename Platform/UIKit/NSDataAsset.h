// UIKit/NSDataAsset.h
// A data file in a bundle's asset catalog.
// Text: UTF-8. Threads: any. Ownership: a plain value; the views it returns are valid until the process ends.
#pragma once

#include "Foundation/NSBundle.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace UIKit {

// A derived class may define its own static assetWithName(); a module's `withAsset<Derived>()`
// (SwiftUI/ModuleConveniences.h) calls it.
class LUMORA_EXPORT NSDataAsset {
public:
    // The data asset with that name (exact) in the catalog of `bundle`, in the best variant for the current traits and
    // the language of the bundle's texts, or no value, also when its data cannot be read.
    [[nodiscard]] static std::optional<NSDataAsset> assetWithName(std::string_view name,
                                                                  const Foundation::NSBundle& bundle);

    [[nodiscard]] std::string_view name() const noexcept { return name_; }
    // The type that the catalog gives, such as "public.json"; empty if it gives none.
    [[nodiscard]] std::string_view typeIdentifier() const noexcept { return typeIdentifier_; }
    [[nodiscard]] std::span<const std::uint8_t> data() const noexcept { return data_; }

private:
    NSDataAsset(std::string_view name, std::string_view typeIdentifier, std::span<const std::uint8_t> data) noexcept
        : name_(name), typeIdentifier_(typeIdentifier), data_(data) {}

    std::string_view name_;
    std::string_view typeIdentifier_;
    std::span<const std::uint8_t> data_;
};

} // namespace UIKit
