// AssetCatalog/Check.h
// Whether bytes are a compiled catalog that may be believed; internal.
#pragma once

#include "AssetCatalog/Layout.h"
#include "Runtime/Result.h"
#include <cstdint>
#include <span>

namespace AssetCatalog {

struct Checked {
    const Format::Catalog* index;
    const std::uint8_t* blobs;
};

// Checks all that readers rely on: the container, the version, the order of names, enumerations, numbers, and that
// every blob lies within the bytes. Time and memory grow with the index only, whatever it says.
[[nodiscard]] Runtime::Result<Checked> check(std::span<const std::uint8_t> bytes);

} // namespace AssetCatalog
