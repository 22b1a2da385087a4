// UIKit/UIImage.h
// A picture of a bundle's asset catalog.
// Text: UTF-8. Threads: any. Ownership: an image is a handle of a few words; pixels are decoded when they are asked for
// and shared by all images of the same picture.
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

namespace AssetCatalog {
class Catalog;
}

namespace UIKit {

// In points.
struct Size {
    double width = 0;
    double height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

// A class that is derived from it and has look-ups of its own under these names is asked itself by whoever takes the
// class as a template argument.
class LUMORA_EXPORT UIImage {
public:
    // The image of that name (exact) in the asset catalog of `bundle`, or no value. Traits that `traits` leaves
    // unspecified, all of them without `traits`, are those in force whenever the image is asked for its size or pixels.
    [[nodiscard]] static std::optional<UIImage> imageNamed(std::string_view name, const Foundation::NSBundle& bundle,
                                                           const UITraitCollection* traits = nullptr);
    // The same image under the name of the platform's later look-up.
    [[nodiscard]] static std::optional<UIImage> imageNamedWithConfiguration(std::string_view name,
                                                                            const Foundation::NSBundle& bundle,
                                                                            const UITraitCollection* traits = nullptr);

    // Valid until the process ends.
    [[nodiscard]] std::string_view name() const noexcept;
    // Whether only its shape counts: it is drawn in the colour of its surroundings.
    [[nodiscard]] bool isTemplate() const noexcept;

    // All of the variant that serves the traits best.
    [[nodiscard]] Size size() const noexcept;
    [[nodiscard]] double scale() const noexcept; // pixels in a point
    [[nodiscard]] std::uint32_t pixelWidth() const noexcept;
    [[nodiscard]] std::uint32_t pixelHeight() const noexcept;
    // Decoded, or null when the picture is damaged. Two calls give the same pixels as long as somebody holds them, and
    // longer for the pictures that were used last.
    [[nodiscard]] std::shared_ptr<const Pictures::Bitmap> rgba() const;

    // Whether both are the same asset for the same traits.
    friend bool operator==(const UIImage&, const UIImage&) = default;

private:
    UIImage(const AssetCatalog::Catalog* catalog, std::size_t index, const UITraitCollection& traits) noexcept
        : catalog_(catalog), index_(index), traits_(traits) {}

    const AssetCatalog::Catalog* catalog_;
    std::size_t index_;
    UITraitCollection traits_;
};

} // namespace UIKit
