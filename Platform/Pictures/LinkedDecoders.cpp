// The decoders, for the plug-in and for programs that link them instead of loading it.
#include "Pictures/internal/Decoders.h"

namespace Pictures {

namespace {

class Linked final : public Decoders {
    using Bytes = std::span<const std::uint8_t>;
    Runtime::Result<Bitmap> png(Bytes bytes, std::uint64_t maxPixels) const override {
        return decodePng(bytes, maxPixels);
    }
    Runtime::Result<Bitmap> jpeg(Bytes bytes, std::uint64_t maxPixels) const override {
        return decodeJpeg(bytes, maxPixels);
    }
};

constinit const Linked linked;

} // namespace

const Decoders& linkedDecoders() noexcept {
    return linked;
}

} // namespace Pictures
