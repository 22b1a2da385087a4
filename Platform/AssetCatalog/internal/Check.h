// AssetCatalog/internal/Check.h
// Whether bytes are a compiled catalog that may be believed; internal.
#pragma once

#include "AssetCatalog/internal/Layout.h"
#include "Runtime/internal/Result.h"
#include <cstdint>
#include <span>

namespace AssetCatalog {

// The bytes of the index at the beginning of a catalog of `total` bytes, filling included; the blobs follow. `head`
// holds the first headBytes of them, or all.
inline constexpr std::size_t headBytes = 3 * sizeof(flatbuffers::uoffset_t); // size, root, identifier
[[nodiscard]] Runtime::Result<std::size_t> indexBytes(std::span<const std::uint8_t> head, std::uint64_t total);

// Checks all that readers rely on: the container, the version, the order of names, enumerations, numbers, and that
// every blob lies within the `total` bytes of the catalog. `index` is as long as indexBytes() says and starts at a
// multiple of 16. Time and memory grow with the index only, whatever it says.
[[nodiscard]] Runtime::Result<const Format::Catalog*> check(std::span<const std::uint8_t> index, std::uint64_t total);

} // namespace AssetCatalog
