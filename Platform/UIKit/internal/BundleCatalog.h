// UIKit/internal/BundleCatalog.h
// The compiled catalogs of bundles, and what traits want of them; internal.
// Threads: any. Ownership: catalogs live until the process ends.
#pragma once

#include "AssetCatalog/internal/Catalog.h"
#include "Foundation/NSBundle.h"
#include "UIKit/UITraitCollection.h"
#include <optional>
#include <string_view>

namespace UIKit::detail {

// An asset of a bundle's catalog.
struct Found {
    const AssetCatalog::Catalog* catalog;
    std::size_t index;
};

// The asset of that kind and name in the catalog of `bundle`, or no value. A bundle's catalog is opened at the first
// call for it, once; a bundle without one, or with a damaged one, has no assets. Later calls take no lock.
[[nodiscard]] std::optional<Found> findAsset(AssetCatalog::Kind kind, std::string_view name,
                                             const Foundation::NSBundle& bundle);

// What a reader with these traits wants, with those in force where they are unspecified: of the screen's scale the next
// whole one.
[[nodiscard]] AssetCatalog::Fit wanted(const UITraitCollection& traits) noexcept;

} // namespace UIKit::detail
