// UIKit/internal/BundleCatalog.h
// The compiled catalog of a bundle, and the selection of variants for given traits; internal.
// Threads: any. Ownership: catalogs live until the process ends.
#pragma once

#include "AssetCatalog/internal/Catalog.h"
#include "Foundation/NSBundle.h"
#include "UIKit/UITraitCollection.h"
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace UIKit::detail {

class BundleCatalog {
public:
    BundleCatalog(const Foundation::NSBundle& bundle, std::optional<AssetCatalog::Catalog> catalog)
        : bundle_(bundle), catalog_(std::move(catalog)) {}

    // The index of the asset with that kind and name, or no value.
    std::optional<std::size_t> find(AssetCatalog::Kind kind, std::string_view name) const noexcept;
    // entry() and bestVariant() require an `index` from find().
    AssetCatalog::Entry entry(std::size_t index) const noexcept { return (*catalog_)[index]; }
    // The index of the best variant of an asset for these traits, completed by the current ones, and for the language
    // of the bundle's texts, or the user's languages if it has no texts. Fractional scales are rounded up.
    std::size_t bestVariant(std::size_t index, const UITraitCollection& traits) const noexcept;

private:
    const Foundation::NSBundle& bundle_;
    std::optional<AssetCatalog::Catalog> catalog_; // none: the bundle has no assets
};

// An asset of a bundle's catalog.
struct Found {
    const BundleCatalog* catalog;
    std::size_t index;
};

// The asset with that kind and name in the catalog of `bundle`, or no value. A bundle's catalog is opened at the first
// call and kept; a bundle with a missing or damaged catalog has no assets. After a transient error there is no value,
// and the next call tries again. Lock-free.
[[nodiscard]] std::optional<Found> findAsset(AssetCatalog::Kind kind, std::string_view name,
                                             const Foundation::NSBundle& bundle) noexcept;

// To be called when an asset could not be found or read. Throws std::bad_alloc or std::system_error if the reason is a
// transient error: memory or descriptors ran out, or the device failed. The error may have passed since.
void throwIfUnreadable(AssetCatalog::Kind kind, std::string_view name, const Foundation::NSBundle& bundle);

} // namespace UIKit::detail
