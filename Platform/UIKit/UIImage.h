// UIKit/UIImage.h
// A picture in a bundle's asset catalog.
// Text: UTF-8. Threads: any. Ownership: an image is a small handle; pixels are decoded on demand and shared by all
// images of the same picture.
#pragma once

#include "Foundation/NSBundle.h"
#include "Pictures/Bitmap.h"
#include "Runtime/Export.h"
#include "UIKit/UITraitCollection.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace UIKit {

namespace detail {
class BundleCatalog;
}

// In points.
struct Size {
    double width = 0;
    double height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

// In points, from the image's edges inwards.
struct EdgeInsets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;
    friend bool operator==(const EdgeInsets&, const EdgeInsets&) = default;
};

// How an image is drawn: as the context decides, in its own colours, or as a template in the current tint colour.
enum class RenderingMode : std::uint8_t { automatic, alwaysOriginal, alwaysTemplate };
// How the part inside the cap insets fills a larger area.
enum class ResizingMode : std::uint8_t { stretch, tile };

// A derived class may define its own static imageNamedWithConfiguration() or imageNamed(); a module's
// `withAssetName<Derived>()` (SwiftUI/ModuleConveniences.h) calls it.
class LUMORA_EXPORT UIImage {
public:
    // The image with that name (exact) in the catalog of `bundle`, or no value, also when memory or descriptors run
    // out. It follows the current traits, except for those that `traits` specifies (null specifies none), and the
    // language of the bundle's texts.
    [[nodiscard]] static std::optional<UIImage> imageNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                                           const UITraitCollection* traits = nullptr);
    // The same lookup under its newer name.
    [[nodiscard]] static std::optional<UIImage> imageNamedWithConfiguration(std::string_view name,
                                                                            const Foundation::NSBundle& bundle,
                                                                            const UITraitCollection* traits = nullptr);

    // Valid until the process ends.
    [[nodiscard]] std::string_view name() const noexcept;
    [[nodiscard]] RenderingMode renderingMode() const noexcept;
    // Whether the rendering mode is `alwaysTemplate`.
    [[nodiscard]] bool isTemplate() const noexcept;

    // The following describe the best variant for the traits and the language of the moment.
    [[nodiscard]] Size size() const noexcept;
    [[nodiscard]] double scale() const noexcept; // pixels per point; 1 if the variant is for any scale
    [[nodiscard]] std::uint32_t pixelWidth() const noexcept;
    [[nodiscard]] std::uint32_t pixelHeight() const noexcept;
    // The edges that keep their size when the image is resized; zero unless the catalog sets them.
    [[nodiscard]] EdgeInsets capInsets() const noexcept;
    [[nodiscard]] ResizingMode resizingMode() const noexcept;
    // The edges that are ignored when the image is aligned, such as a shadow.
    [[nodiscard]] EdgeInsets alignmentRectInsets() const noexcept;
    // The decoded pixels, or null when the picture is damaged or cannot be read, also when memory or descriptors run
    // out. Calls return the same object as long as it is referenced or in the cache of recently used pictures.
    [[nodiscard]] std::shared_ptr<const Pictures::Bitmap> rgba() const;

    // Whether both are the same asset for the same traits.
    friend bool operator==(const UIImage&, const UIImage&) = default;

private:
    UIImage(const detail::BundleCatalog* catalog, std::size_t index, const UITraitCollection& traits) noexcept
        : catalog_(catalog), index_(index), traits_(traits) {}

    const detail::BundleCatalog* catalog_;
    std::size_t index_;
    UITraitCollection traits_;
};

} // namespace UIKit
