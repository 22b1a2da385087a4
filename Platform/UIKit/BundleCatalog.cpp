#include "UIKit/internal/BundleCatalog.h"

#include "Foundation/internal/HostState.h"
#include "Runtime/Attempt.h"
#include "Runtime/internal/KeyedStore.h"
#include "Runtime/internal/TransientError.h"
#include <cmath>
#include <string>
#include <system_error>

namespace UIKit::detail {

namespace {

// The bundle's catalog, which is opened at the first call. Throws std::bad_alloc, and std::system_error when a
// transient error prevents opening it.
const BundleCatalog& openedFor(const Foundation::NSBundle& bundle) {
    static constinit Runtime::KeyedStore<BundleCatalog, /*buckets=*/16> all;
    const std::string& folder = bundle.bundlePath();
    if (const BundleCatalog* const known = all.find(folder))
        return *known;
    auto opened = AssetCatalog::Catalog::open(folder + "/" + std::string(AssetCatalog::fileName), folder);
    std::optional<AssetCatalog::Catalog> catalog;
    if (opened)
        catalog.emplace(*std::move(opened));
    else
        Runtime::throwIfTransient(opened.error());
    return *all.add(all.unlimited, folder, BundleCatalog(bundle, std::move(catalog)));
}

std::optional<Found> findIn(const BundleCatalog& catalog, AssetCatalog::Kind kind, std::string_view name) noexcept {
    const auto index = catalog.find(kind, name);
    return index ? std::optional(Found{&catalog, *index}) : std::nullopt;
}

AssetCatalog::Appearance appearanceOf(UserInterfaceStyle style) noexcept {
    switch (style) {
    case UserInterfaceStyle::light:
        return AssetCatalog::Appearance::light;
    case UserInterfaceStyle::dark:
        return AssetCatalog::Appearance::dark;
    case UserInterfaceStyle::unspecified:
        break;
    }
    return AssetCatalog::Appearance::any;
}

AssetCatalog::Direction directionOf(LayoutDirection direction) noexcept {
    switch (direction) {
    case LayoutDirection::leftToRight:
        return AssetCatalog::Direction::leftToRight;
    case LayoutDirection::rightToLeft:
        return AssetCatalog::Direction::rightToLeft;
    case LayoutDirection::unspecified:
        break;
    }
    return AssetCatalog::Direction::any;
}

// Requires traits that over() has returned: their scale is at most 255.
AssetCatalog::Fit fitFor(const UITraitCollection& traits) noexcept {
    const double scale = traits.displayScale == 0 ? 1 : std::ceil(traits.displayScale);
    return {appearanceOf(traits.userInterfaceStyle),
            traits.accessibilityContrast == AccessibilityContrast::high ? AssetCatalog::Contrast::high
                                                                        : AssetCatalog::Contrast::any,
            directionOf(traits.layoutDirection), static_cast<std::uint8_t>(scale)};
}

} // namespace

std::optional<std::size_t> BundleCatalog::find(AssetCatalog::Kind kind, std::string_view name) const noexcept {
    return catalog_ ? catalog_->find(kind, name) : std::nullopt;
}

std::size_t BundleCatalog::bestVariant(std::size_t index, const UITraitCollection& traits) const noexcept {
    const AssetCatalog::Entry found = entry(index);
    const AssetCatalog::Fit fit = fitFor(traits.over(UITraitCollection::current()));
    if (!found.isLocalized())
        return found.best(fit);
    try {
        if (const std::string* const language = bundle_.preferredLocalization())
            return found.best(fit, {language, 1});
        // The bundle has no texts.
        return found.best(fit, Foundation::detail::hostLanguages().languages);
    } catch (...) {
        // Memory or descriptors have run out, so the languages are ignored.
        return found.best(fit);
    }
}

std::optional<Found> findAsset(AssetCatalog::Kind kind, std::string_view name,
                               const Foundation::NSBundle& bundle) noexcept {
    return Runtime::attempt([&] { return findIn(openedFor(bundle), kind, name); });
}

void throwIfUnreadable(AssetCatalog::Kind kind, std::string_view name, const Foundation::NSBundle& bundle) {
    const auto found = findIn(openedFor(bundle), kind, name);
    if (!found)
        return;
    if (kind == AssetCatalog::Kind::data) { // looking up an image or a colour reads no blob
        const AssetCatalog::Entry entry = found->catalog->entry(found->index);
        const auto bytes = entry.data(found->catalog->bestVariant(found->index, {})).blob.read();
        if (!bytes)
            return Runtime::throwIfTransient(bytes.error());
    }
    throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again)); // it can be read now
}

} // namespace UIKit::detail
