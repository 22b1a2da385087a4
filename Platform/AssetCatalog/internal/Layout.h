// AssetCatalog/internal/Layout.h
// The parts of the format of compiled catalogs that the schema does not express; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Catalog_generated.h" // made from Catalog.fbs
#include "Runtime/internal/Hash.h"
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

namespace AssetCatalog::Format {

inline constexpr std::uint32_t version = 2;
inline constexpr std::size_t alignment = 16; // of the blobs in the file

constexpr std::size_t aligned(std::size_t size) noexcept {
    return (size + alignment - 1) / alignment * alignment;
}

// Assets are sorted by this hash, and those with the same hash by kind and name: names can be made to collide. Each
// step hashes eight bytes, the last one padded with zeros.
inline std::uint64_t hashOf(Kind kind, std::string_view name) noexcept {
    std::uint64_t hash = (static_cast<std::uint64_t>(kind) << 32 | name.size()) * Runtime::hashSpread;
    while (!name.empty()) {
        const std::size_t step = name.size() < 8 ? name.size() : 8;
        std::uint64_t word = 0;
        std::memcpy(&word, name.data(), step);
        hash = (hash ^ hash >> 32 ^ flatbuffers::EndianScalar(word)) * Runtime::hashSpread;
        name.remove_prefix(step);
    }
    return hash;
}

using AssetName = std::pair<Kind, std::string_view>;
inline AssetName nameOf(const Asset& asset) noexcept {
    return {static_cast<Kind>(asset.kind()), asset.name()->string_view()};
}

} // namespace AssetCatalog::Format
