// Pictures/internal/Decoders.h
// The interface of the plug-in lumora-pictures.so; internal. It passes C++ types, because library and plug-in are
// always built together. Tools link the decoders directly instead.
#pragma once

#include "Pictures/Bitmap.h"
#include "Runtime/Export.h"
#include "Runtime/internal/Result.h"
#include <cstdint>
#include <span>

namespace Pictures {

// Each function decodes a picture whose encoding measure() has found; limit and errors as for Pictures::decode().
class Decoders {
public:
    virtual Runtime::Result<Bitmap> png(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels) const = 0;
    virtual Runtime::Result<Bitmap> jpeg(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels) const = 0;

protected:
    ~Decoders() = default;
};

// The decoders linked into this program or plug-in.
[[nodiscard]] const Decoders& linkedDecoders() noexcept;

// Each compares `maxPixels` with the size that libpng or libjpeg finds, which may differ from that of measure().
Runtime::Result<Bitmap> decodePng(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels);
Runtime::Result<Bitmap> decodeJpeg(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels);

// Allocates a bitmap, or fails if it would be too large.
inline Runtime::Result<Bitmap> blank(std::uint32_t width, std::uint32_t height, std::uint64_t maxPixels) {
    const std::uint64_t pixels = std::uint64_t{width} * height;
    if (pixels > maxPixels)
        return Runtime::Error{.message = "has more than " + std::to_string(maxPixels) + " pixels", .file = {}};
    return Bitmap{width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(pixels) * 4)};
}

} // namespace Pictures

// The only function that the plug-in exports.
extern "C" LUMORA_EXPORT const Pictures::Decoders* lumoraPictures() noexcept;
