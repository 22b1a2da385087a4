// UIKit/internal/BundleCatalog.h
// The compiled catalog of a bundle, and which variant of an asset serves given traits; internal.
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

    const Foundation::NSBundle& bundle() const noexcept { return bundle_; }
    // The index of the asset of that kind and name, or no value.
    std::optional<std::size_t> find(AssetCatalog::Kind kind, std::string_view name) const noexcept;
    // Precondition for both: find() gave `index`.
    AssetCatalog::Entry entry(std::size_t index) const noexcept { return (*catalog_)[index]; }
    // The variant of an asset that serves best a reader with these traits, with those in force where they are
    // unspecified, in the language that the bundle's texts have. Of the screen's scale the next whole one is wanted.
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

// The asset of that kind and name in the catalog of `bundle`, or no value. A bundle's catalog is opened at the first
// call for it, once; a bundle without one, or with a damaged one, has no assets. One that cannot be opened at the
// moment is tried again at the next call. Takes no lock.
[[nodiscard]] std::optional<Found> findAsset(AssetCatalog::Kind kind, std::string_view name,
                                             const Foundation::NSBundle& bundle) noexcept;

// Throws std::bad_alloc or std::system_error when the asset cannot be looked up, or its data not read, at the moment
// only: memory or descriptors ran out, or the device failed.
void throwIfUnreadable(AssetCatalog::Kind kind, std::string_view name, const Foundation::NSBundle& bundle);

} // namespace UIKit::detail
