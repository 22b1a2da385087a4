// The plug-in's only door.
#include "Pictures/internal/Decoders.h"

namespace {

class Both final : public Pictures::Decoders {
    using Bytes = std::span<const std::uint8_t>;
    using Result = Runtime::Result<Pictures::Bitmap>;
    Result png(Bytes bytes, std::uint64_t maxPixels) const override { return Pictures::decodePng(bytes, maxPixels); }
    Result jpeg(Bytes bytes, std::uint64_t maxPixels) const override { return Pictures::decodeJpeg(bytes, maxPixels); }
};

constinit const Both both;

} // namespace

const Pictures::Decoders* lumoraPictures() noexcept {
    return &both;
}
