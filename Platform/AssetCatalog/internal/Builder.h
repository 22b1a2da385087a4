// AssetCatalog/internal/Builder.h
// Builds compiled catalogs. Only tools and tests link it.
// Text: UTF-8. Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/NameMap.h"
#include "Runtime/internal/Result.h"
#include <string>
#include <string_view>
#include <vector>

namespace AssetCatalog {

// A catalog file in pieces, so that large blobs are not copied.
struct BuiltCatalog {
    std::string index;
    std::vector<Bytes> blobs;
    // The offset in the file of each blob, by the blob's content; the keys point into `blobs`.
    Runtime::NameMap<std::uint64_t, std::string_view> offsets;

    // The file's content in order.
    [[nodiscard]] std::vector<std::string_view> pieces() const;
    [[nodiscard]] std::string bytes() const;
};

// Builds a catalog of these assets. The order of the assets does not affect the result. Of several variants for the
// same language and traits the first is used; equal blobs are stored once. Errors: two assets with the same kind and
// name, no variant, an invalid value, a limit of Catalog.h exceeded. The message names the asset unless the catalog as
// a whole exceeds the limit.
[[nodiscard]] Runtime::Result<BuiltCatalog> build(std::vector<Asset> assets);

} // namespace AssetCatalog
