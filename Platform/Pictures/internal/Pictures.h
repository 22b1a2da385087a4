// Pictures/internal/Pictures.h
// Decoding of PNG and JPEG files. The decoders are in the plug-in lumora-pictures.so, which is loaded when the first
// picture is decoded: most texts need no picture. Threads: any. Ownership: results own their memory.
//
// Tolerated, as viewers do: in a PNG, ancillary chunks with a wrong checksum, which are skipped; in a JPEG, bytes
// between its segments. Anything else that is wrong makes the picture damaged, a missing end included. Colours are
// returned as the file has them: no gamma, no profile and no EXIF rotation is applied. Of sixteen bits per channel the
// upper eight count; CMYK becomes RGB without a profile.
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

// The format and size that the file's header says; needs no plug-in. Errors: neither PNG nor JPEG, a damaged header.
[[nodiscard]] Runtime::Result<Size> measure(std::span<const std::uint8_t> bytes);

// Decodes a whole picture. Errors: those of measure(), more pixels than `maxPixels` (checked before memory is taken),
// damaged (with the decoder's reason), no plug-in (names its file; may be transient).
[[nodiscard]] Runtime::Result<Bitmap> decode(std::span<const std::uint8_t> bytes,
                                             std::uint64_t maxPixels = std::uint64_t{64} << 20);

class Decoders;
// The same with given decoders, without the plug-in.
[[nodiscard]] Runtime::Result<Bitmap> decode(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels,
                                             const Decoders& decoders);

} // namespace Pictures
