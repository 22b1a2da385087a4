// AssetCatalog/internal/Builder.h
// Makes compiled catalogs; not part of the run-time library.
// Text: UTF-8. Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace AssetCatalog {

// A catalog file in pieces, so that large blobs are not copied.
struct BuiltCatalog {
    std::string index;
    std::vector<Bytes> blobs;
    // Offsets in the file, by the bytes of a blob, which `blobs` owns.
    std::unordered_map<std::string_view, std::uint64_t> offsets;

    // The file's content in order.
    [[nodiscard]] std::vector<std::string_view> pieces() const;
    [[nodiscard]] std::string bytes() const;
};

// The catalog of these assets, the same for the same assets in any order. Of several variants for the same readers the
// first counts; equal blobs are stored once. Errors name the asset: two of one kind and name, no variant, a number
// out of its range, more than a catalog may hold (see Catalog.h).
[[nodiscard]] Runtime::Result<BuiltCatalog> build(std::vector<Asset> assets);

} // namespace AssetCatalog
