// AssetCatalog/internal/Check.h
// Validates compiled catalogs; internal.
#pragma once

#include "AssetCatalog/internal/Layout.h"
#include "Runtime/internal/Result.h"
#include <cstdint>
#include <span>

namespace AssetCatalog {

inline constexpr std::size_t headBytes = 3 * sizeof(flatbuffers::uoffset_t); // size, root offset, identifier
// The size of the index of a catalog of `total` bytes, including padding; the blobs follow it. `head` is the beginning
// of the catalog, at least headBytes bytes or all.
[[nodiscard]] Runtime::Result<std::size_t> indexBytes(std::span<const std::uint8_t> head, std::uint64_t total);

// Validates everything that readers rely on: the FlatBuffers structure and the version; the order and hashes of the
// assets; that enumerations have known values, and numbers and names are within their limits; that all blobs are within
// the `total` bytes of the catalog. `bytes` is the index: as many bytes as indexBytes() returned, at an address that is
// a multiple of 16. Time and memory are linear in the size of the index, whatever its content.
[[nodiscard]] Runtime::Result<const Format::Catalog*> check(std::span<const std::uint8_t> bytes, std::uint64_t total);

} // namespace AssetCatalog
