#include "UIKit/internal/BundleCatalog.h"

#include "Runtime/internal/KeyedStore.h"
#include <cmath>
#include <utility>

namespace UIKit::detail {

namespace {

using Catalog = std::optional<AssetCatalog::Catalog>; // no value where the bundle has none, or a damaged one

// Null when the catalog cannot be opened at the moment.
const Catalog* openedFor(const Foundation::NSBundle& bundle) {
    static constinit Runtime::KeyedStore<Catalog, 16> all;
    if (const Catalog* const known = all.find(bundle.bundlePath()))
        return known;
    auto catalog = AssetCatalog::Catalog::open(bundle.bundlePath() + "/" + std::string(AssetCatalog::fileName));
    if (!catalog && catalog.error().isTransient())
        return nullptr;
    return all.add(all.unlimited, bundle.bundlePath(), catalog ? Catalog(*std::move(catalog)) : std::nullopt);
}

} // namespace

std::optional<Found> findAsset(AssetCatalog::Kind kind, std::string_view name, const Foundation::NSBundle& bundle) {
    const Catalog* const catalog = openedFor(bundle);
    if (catalog == nullptr || !*catalog)
        return std::nullopt;
    const auto index = (*catalog)->find(kind, name);
    return index ? std::optional(Found{&**catalog, *index}) : std::nullopt;
}

AssetCatalog::Fit wanted(const UITraitCollection& given) noexcept {
    using namespace AssetCatalog;
    const UITraitCollection traits = given.over(UITraitCollection::current());
    const double scale = traits.displayScale == 0 ? 1 : std::ceil(traits.displayScale);
    return {static_cast<Appearance>(traits.userInterfaceStyle),
            traits.accessibilityContrast == AccessibilityContrast::high ? Contrast::high : Contrast::any,
            static_cast<Direction>(traits.layoutDirection), static_cast<std::uint8_t>(scale)};
}

} // namespace UIKit::detail
