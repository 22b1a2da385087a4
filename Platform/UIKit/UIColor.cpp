#include "UIKit/UIColor.h"

#include "AssetCatalog/internal/ColorSpaces.h"
#include "UIKit/internal/BundleCatalog.h"

namespace UIKit {

std::optional<UIColor> UIColor::colorNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                           const UITraitCollection* traits) {
    const auto found = detail::findAsset(AssetCatalog::Kind::color, name, bundle);
    if (!found)
        return std::nullopt;
    // over({}) only clamps the scale, so that traits with the same effect compare equal.
    return UIColor(
        State(Asset{found->catalog, found->index, traits == nullptr ? UITraitCollection{} : traits->over({})}));
}

std::optional<RGBA> UIColor::rgba() const noexcept {
    const UIColor now = resolved({});
    const RGBA* components = std::get_if<RGBA>(&now.state_);
    return components == nullptr ? std::nullopt : std::optional(*components);
}

UIColor UIColor::resolved(const UITraitCollection& traits) const noexcept {
    const Asset* asset = std::get_if<Asset>(&state_);
    if (asset == nullptr)
        return *this;
    // The traits given to colorNamed() take precedence over `traits`, and both over the current ones.
    const std::size_t variant = asset->catalog->bestVariant(asset->index, asset->traits.over(traits));
    const auto [red, green, blue, alpha] =
        AssetCatalog::toExtendedSrgb(asset->catalog->entry(asset->index).color(variant));
    return {red, green, blue, alpha};
}

} // namespace UIKit
