// AssetCatalog/internal/Check.h
// Validates compiled catalogs; internal.
#pragma once

#include "AssetCatalog/internal/Layout.h"
#include "Runtime/internal/Result.h"
#include <cstdint>
#include <span>

namespace AssetCatalog {

// The size of the index of a catalog of `total` bytes, including padding; the blobs follow it. `head` has the first
// headBytes bytes, or all.
inline constexpr std::size_t headBytes = 3 * sizeof(flatbuffers::uoffset_t); // size, root, identifier
[[nodiscard]] Runtime::Result<std::size_t> indexBytes(std::span<const std::uint8_t> head, std::uint64_t total);

// Validates everything that readers rely on: the container, the version, the order of names, enumerators, numbers, and
// that all blobs are within the `total` bytes of the catalog. `index` has the size returned by indexBytes() and is
// aligned to 16 bytes. Time and memory are linear in the size of the index, whatever its content.
[[nodiscard]] Runtime::Result<const Format::Catalog*> check(std::span<const std::uint8_t> index, std::uint64_t total);

} // namespace AssetCatalog
