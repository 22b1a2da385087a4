// UIKit/UIImage.h
// A picture of a bundle's asset catalog.
// Text: UTF-8. Threads: any. Ownership: an image is a handle of a few words; pixels are decoded on demand and shared by
// all images of the same picture.
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

// How an image is drawn: as its context wants, in its own colours, or as a shape in the colour of its surroundings.
enum class RenderingMode : std::uint8_t { automatic, alwaysOriginal, alwaysTemplate };
// How the part inside the cap insets fills a larger area.
enum class ResizingMode : std::uint8_t { stretch, tile };

// A derived class may define its own static look-ups under these names; templates that take a class call those.
class LUMORA_EXPORT UIImage {
public:
    // The image of that name (exact) in the asset catalog of `bundle`, or no value. For traits that `traits` leaves
    // unspecified, all of them without `traits`, each call of the image uses those in force at that time; the language
    // is that of the bundle's texts at that time.
    [[nodiscard]] static std::optional<UIImage> imageNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                                           const UITraitCollection* traits = nullptr);
    // The same image under the name of the platform's later look-up.
    [[nodiscard]] static std::optional<UIImage> imageNamedWithConfiguration(std::string_view name,
                                                                            const Foundation::NSBundle& bundle,
                                                                            const UITraitCollection* traits = nullptr);

    // Valid until the process ends.
    [[nodiscard]] std::string_view name() const noexcept;
    [[nodiscard]] RenderingMode renderingMode() const noexcept;
    // Whether the rendering mode is `alwaysTemplate`.
    [[nodiscard]] bool isTemplate() const noexcept;

    // The following are those of the variant that serves the traits best.
    [[nodiscard]] Size size() const noexcept;
    [[nodiscard]] double scale() const noexcept; // pixels in a point
    [[nodiscard]] std::uint32_t pixelWidth() const noexcept;
    [[nodiscard]] std::uint32_t pixelHeight() const noexcept;
    // The edges that keep their size when the image is resized; zero where the catalog says nothing of it.
    [[nodiscard]] EdgeInsets capInsets() const noexcept;
    [[nodiscard]] ResizingMode resizingMode() const noexcept;
    // The edges that don't count when the image is aligned with others, such as a shadow's.
    [[nodiscard]] EdgeInsets alignmentRectInsets() const noexcept;
    // The decoded pixels, or null when the picture is damaged. Two calls give the same object as long as a holder of it
    // is left, and longer for the pictures that were used last.
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
