#include "UIKit/internal/BundleCatalog.h"

#include "Runtime/internal/AppendOnlyList.h"
#include <cmath>
#include <utility>

namespace UIKit::detail {

namespace {

struct Opened {
    const Foundation::NSBundle* bundle;
    std::optional<AssetCatalog::Catalog> catalog;
};
constinit Runtime::AppendOnlyList<Opened> all; // bundles are as immortal, and few

// Null when the catalog cannot be opened for the moment.
const Opened* openedFor(const Foundation::NSBundle& bundle) {
    const auto isIts = [&bundle](const Opened& one) { return one.bundle == &bundle; };
    if (const Opened* known = all.find(isIts))
        return known;
    Opened made{&bundle, std::nullopt};
    if (auto catalog = AssetCatalog::Catalog::open(bundle.bundlePath() + "/" + std::string(AssetCatalog::fileName)))
        made.catalog.emplace(std::move(*catalog));
    else if (catalog.error().isTransient())
        return nullptr;
    return &all.add(std::move(made), isIts);
}

} // namespace

std::optional<Found> findAsset(AssetCatalog::Kind kind, std::string_view name, const Foundation::NSBundle& bundle) {
    const Opened* opened = openedFor(bundle);
    if (opened == nullptr || !opened->catalog)
        return std::nullopt;
    const auto index = opened->catalog->find(kind, name);
    return index ? std::optional(Found{&*opened->catalog, *index}) : std::nullopt;
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
