#include "UIKit/UIImage.h"

#include "Pictures/internal/Pictures.h"
#include "Runtime/OnceSlot.h"
#include "UIKit/internal/BundleCatalog.h"
#include "UIKit/internal/PixelCache.h"

namespace UIKit {

namespace {

constexpr std::size_t keptPixelBytes = std::size_t{32} << 20;

detail::PixelCache& cache() {
    static Runtime::OnceSlot<detail::PixelCache*> slot; // never destroyed: images may be used while the process ends
    return *slot.get([] { return new detail::PixelCache(keptPixelBytes); });
}

AssetCatalog::PictureView pictureFor(const AssetCatalog::Entry& entry, const UITraitCollection& traits) noexcept {
    return entry.picture(entry.best(detail::wanted(traits)));
}

double scaleOf(const AssetCatalog::PictureView& picture) noexcept {
    return picture.fit.scale == 0 ? 1 : picture.fit.scale;
}

} // namespace

std::optional<UIImage> UIImage::imageNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                           const UITraitCollection* traits) {
    const auto found = detail::findAsset(AssetCatalog::Kind::image, name, bundle);
    if (!found)
        return std::nullopt;
    return UIImage(found->catalog, found->index, traits == nullptr ? UITraitCollection{} : traits->over({}));
}

std::optional<UIImage> UIImage::imageNamedWithConfiguration(std::string_view name, const Foundation::NSBundle& bundle,
                                                            const UITraitCollection* traits) {
    return imageNamed(name, bundle, traits);
}

std::string_view UIImage::name() const noexcept {
    return (*catalog_)[index_].name();
}
bool UIImage::isTemplate() const noexcept {
    return (*catalog_)[index_].isTemplate();
}

Size UIImage::size() const noexcept {
    const auto picture = pictureFor((*catalog_)[index_], traits_);
    return {picture.width / scaleOf(picture), picture.height / scaleOf(picture)};
}
double UIImage::scale() const noexcept {
    return scaleOf(pictureFor((*catalog_)[index_], traits_));
}
std::uint32_t UIImage::pixelWidth() const noexcept {
    return pictureFor((*catalog_)[index_], traits_).width;
}
std::uint32_t UIImage::pixelHeight() const noexcept {
    return pictureFor((*catalog_)[index_], traits_).height;
}

std::shared_ptr<const Pictures::Bitmap> UIImage::rgba() const {
    const auto picture = pictureFor((*catalog_)[index_], traits_);
    auto pixels = cache().find(picture.blob);
    if (pixels == nullptr) {
        const auto encoded = picture.blob.read();
        if (!encoded)
            return nullptr;
        auto decoded = Pictures::decode(*encoded, AssetCatalog::maxPixels);
        if (!decoded)
            return nullptr;
        pixels = cache().add(picture.blob, std::make_shared<const Pictures::Bitmap>(std::move(*decoded)));
    }
    // A catalog that is wrong about a picture's size is damaged too.
    return pixels->width == picture.width && pixels->height == picture.height ? pixels : nullptr;
}

} // namespace UIKit
