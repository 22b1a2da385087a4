// AssetCatalog/internal/Blobs.h
// The bytes of a catalog's pictures and data, which are read on demand.
// Threads: any. Ownership: a blob refers to its catalog, which must outlive it.
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

// One picture or data file.
struct Blob {
    const Blobs* blobs;
    std::uint64_t offset; // in bytes from the first blob
    std::uint64_t size;

    // Errors: the catalog's file was truncated after it was opened, or cannot be read any more.
    [[nodiscard]] Runtime::Result<std::vector<std::uint8_t>> read() const;
    // Compares the locations; equal locations have equal bytes.
    // NOLINTNEXTLINE(modernize-use-nullptr): a false positive in the defaulted comparison
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
