// Decodes any bytes as a picture: either it is rejected, or the bitmap has the measured size.
#include "Pictures/internal/Decoders.h"
#include "Pictures/internal/Pictures.h"

#include "../Require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::uint64_t maxPixels = 1 << 16;
    const std::span bytes(data, size);
    const auto measured = Pictures::measure(bytes);
    if (!measured)
        return 0;
    const auto bitmap = Pictures::decode(bytes, maxPixels, Pictures::linkedDecoders());
    if (!bitmap)
        return 0;
    const std::uint64_t pixels = std::uint64_t{bitmap->width} * bitmap->height;
    require(bitmap->width == measured->width && bitmap->height == measured->height && pixels <= maxPixels &&
            bitmap->pixels.size() == pixels * 4);
    return 0;
}
