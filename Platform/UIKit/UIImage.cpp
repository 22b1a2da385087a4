#include "UIKit/UIImage.h"

#include "Pictures/internal/Pictures.h"
#include "Runtime/Attempt.h"
#include "Runtime/OnceSlot.h"
#include "UIKit/internal/BundleCatalog.h"
#include "UIKit/internal/PixelCache.h"

namespace UIKit {

namespace {

constexpr std::size_t keptPixelBytes = std::size_t{32} << 20;

detail::PixelCache& cache() {
    static constinit Runtime::OnceSlot<detail::PixelCache*> slot; // never destroyed: images may be used at exit
    return *slot.get([] { return new detail::PixelCache(keptPixelBytes); });
}

AssetCatalog::PictureView pictureFor(const detail::BundleCatalog& catalog, std::size_t index,
                                     const UITraitCollection& traits) noexcept {
    return catalog.entry(index).picture(catalog.bestVariant(index, traits));
}

// Null when the picture is damaged or cannot be read.
detail::Pixels pixelsOf(const AssetCatalog::PictureView& picture) {
    // A size that differs from the catalog's means a damaged catalog.
    const auto hasExpectedSize = [&](const auto& pixels) {
        return pixels.width == picture.width && pixels.height == picture.height;
    };
    if (auto known = cache().find(picture.blob))
        return hasExpectedSize(*known) ? known : nullptr;
    const auto encoded = picture.blob.read();
    if (!encoded)
        return nullptr;
    const auto size = Pictures::measure(*encoded);
    if (!size || !hasExpectedSize(*size))
        return nullptr;
    auto decoded = Pictures::decode(*encoded, AssetCatalog::maxPixels);
    if (!decoded)
        return nullptr;
    return cache().add(picture.blob, std::make_shared<const Pictures::Bitmap>(*std::move(decoded)));
}

EdgeInsets insetsOf(const AssetCatalog::Insets& insets) noexcept {
    return {insets.top, insets.left, insets.bottom, insets.right};
}

} // namespace

std::optional<UIImage> UIImage::imageNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                           const UITraitCollection* traits) {
    const auto found = detail::findAsset(AssetCatalog::Kind::image, name, bundle);
    if (!found)
        return std::nullopt;
    // over({}) clamps the scale, so that traits with the same effect compare equal.
    return UIImage(found->catalog, found->index, traits == nullptr ? UITraitCollection{} : traits->over({}));
}

std::optional<UIImage> UIImage::imageNamedWithConfiguration(std::string_view name, const Foundation::NSBundle& bundle,
                                                            const UITraitCollection* traits) {
    return imageNamed(name, bundle, traits);
}

std::string_view UIImage::name() const noexcept {
    return catalog_->entry(index_).name();
}

RenderingMode UIImage::renderingMode() const noexcept {
    switch (catalog_->entry(index_).rendering()) {
    case AssetCatalog::Rendering::original:
        return RenderingMode::alwaysOriginal;
    case AssetCatalog::Rendering::asTemplate:
        return RenderingMode::alwaysTemplate;
    case AssetCatalog::Rendering::automatic:
        break;
    }
    return RenderingMode::automatic;
}
bool UIImage::isTemplate() const noexcept {
    return renderingMode() == RenderingMode::alwaysTemplate;
}

Size UIImage::size() const noexcept {
    const AssetCatalog::Size points = pictureFor(*catalog_, index_, traits_).points;
    return {points.width, points.height};
}
double UIImage::scale() const noexcept {
    const std::uint8_t scale = pictureFor(*catalog_, index_, traits_).fit.scale;
    return scale == 0 ? 1 : scale;
}
std::uint32_t UIImage::pixelWidth() const noexcept {
    return pictureFor(*catalog_, index_, traits_).width;
}
std::uint32_t UIImage::pixelHeight() const noexcept {
    return pictureFor(*catalog_, index_, traits_).height;
}

EdgeInsets UIImage::capInsets() const noexcept {
    return insetsOf(pictureFor(*catalog_, index_, traits_).capInsets);
}
ResizingMode UIImage::resizingMode() const noexcept {
    switch (pictureFor(*catalog_, index_, traits_).resizing) {
    case AssetCatalog::Resizing::tile:
        return ResizingMode::tile;
    case AssetCatalog::Resizing::stretch:
        break;
    }
    return ResizingMode::stretch;
}
EdgeInsets UIImage::alignmentRectInsets() const noexcept {
    return insetsOf(pictureFor(*catalog_, index_, traits_).alignmentInsets);
}

std::shared_ptr<const Pictures::Bitmap> UIImage::rgba() const {
    return Runtime::attempt([&] { return pixelsOf(pictureFor(*catalog_, index_, traits_)); });
}

} // namespace UIKit
