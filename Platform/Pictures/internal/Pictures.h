// Pictures/internal/Pictures.h
// Decoding of PNG and JPEG files. The decoders lie in the plug-in lumora-pictures.so, which is loaded when
// the first picture is decoded: most texts need no picture. Threads: any. Ownership: results own their memory.
//
// Tolerated, as viewers do: in a PNG, ancillary chunks with a wrong checksum, which are left out; in a JPEG, bytes
// between its segments. Whatever else is wrong makes the picture damaged, an end that is missing too. Colours are
// handed on as the file has them: neither gamma nor profiles nor EXIF turning is applied. Sixteen bits a channel give
// their upper eight; CMYK becomes RGB without a profile.
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

// What the file says of itself in its head; needs no plug-in. Errors: neither PNG nor JPEG, or the head is damaged.
[[nodiscard]] Runtime::Result<Size> measure(std::span<const std::uint8_t> bytes);

// Decodes a whole picture. Errors: those of measure(), more pixels than `maxPixels` (told before memory is taken),
// damaged (with the decoder's reason), no plug-in (which names its file, and may be passing).
[[nodiscard]] Runtime::Result<Bitmap> decode(std::span<const std::uint8_t> bytes,
                                             std::uint64_t maxPixels = std::uint64_t{64} << 20);

} // namespace Pictures
