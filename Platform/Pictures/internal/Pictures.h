// Pictures/internal/Pictures.h
// Decodes PNG and JPEG files. The decoders are in the plug-in lumora-pictures.so, which is loaded when the first
// picture is decoded, because many processes need none.
// Threads: any. Ownership: results own their memory.
//
// Tolerated, as in most viewers: ancillary PNG chunks with a wrong checksum, which are skipped, and bytes between JPEG
// segments. Any other error, including a missing end, makes the picture damaged. Colours are returned as stored: gamma,
// colour profiles and EXIF rotation are not applied. Samples of 16 bits are reduced to the upper 8; CMYK is converted
// to RGB without a profile.
#pragma once

#include "Pictures/Bitmap.h"
#include "Runtime/internal/Result.h"
#include <cstdint>
#include <span>

namespace Pictures {

enum class Encoding : std::uint8_t { png, jpeg };

struct Size {
    Encoding encoding;
    std::uint32_t width; // in pixels, at least 1
    std::uint32_t height;
};

// Encoding and size from the file's header, without the plug-in. Errors: neither PNG nor JPEG, a damaged header.
[[nodiscard]] Runtime::Result<Size> measure(std::span<const std::uint8_t> bytes);

// Decodes a whole picture. Errors: those of measure(), more pixels than `maxPixels` (checked before memory is
// allocated), damaged (with the decoder's reason), no plug-in (names its file). Throws std::bad_alloc, and
// std::system_error when a transient error prevents loading the plug-in.
[[nodiscard]] Runtime::Result<Bitmap> decode(std::span<const std::uint8_t> bytes,
                                             std::uint64_t maxPixels = std::uint64_t{64} << 20);

class Decoders;
// The same with the given decoders instead of the plug-in.
[[nodiscard]] Runtime::Result<Bitmap> decode(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels,
                                             const Decoders& decoders);

} // namespace Pictures
