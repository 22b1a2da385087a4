#include "AssetCatalog/internal/Blobs.h"

namespace AssetCatalog {

Runtime::Result<std::vector<std::uint8_t>> Blob::read() const {
    const auto place = static_cast<std::size_t>(offset), length = static_cast<std::size_t>(size);
    if (!blobs->file_) {
        const auto bytes = blobs->memory_.subspan(place, length);
        return std::vector(bytes.begin(), bytes.end());
    }
    std::vector<std::uint8_t> bytes(length);
    const auto filled = blobs->file_->read(bytes.data(), length, blobs->begin_ + offset);
    if (!filled)
        return filled.error();
    if (*filled != length)
        return blobs->file_->error("was truncated after it was opened");
    return bytes;
}

} // namespace AssetCatalog
