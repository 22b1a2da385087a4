// AssetCatalog/internal/Blobs.h
// The bytes of a catalog's pictures and data, which stay in its file until they are asked for.
// Threads: any. Ownership: a blob is a place; the catalog that gave it out holds the bytes.
#pragma once

#include "Runtime/internal/OpenFile.h"
#include "Runtime/internal/Result.h"
#include <compare>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace AssetCatalog {

class Blobs;

struct Blob {
    const Blobs* blobs;
    std::uint64_t offset;
    std::uint64_t size;

    // Error: the file has been cut short since the catalog was opened, or cannot be read any more.
    [[nodiscard]] Runtime::Result<std::vector<std::uint8_t>> read() const;
    // Equal places hold equal bytes.
    // NOLINTNEXTLINE(modernize-use-nullptr): what the check sees is inside the comparison
    friend auto operator<=>(const Blob&, const Blob&) = default;
};

// All blobs of a catalog, in memory or in a file from `begin` on.
class Blobs {
public:
    explicit Blobs(std::span<const std::uint8_t> bytes) noexcept : memory_(bytes) {}
    Blobs(Runtime::OpenFile file, std::size_t begin) noexcept : file_(std::move(file)), begin_(begin) {}

private:
    friend struct Blob;

    std::span<const std::uint8_t> memory_;
    std::optional<Runtime::OpenFile> file_;
    std::size_t begin_ = 0;
};

} // namespace AssetCatalog
