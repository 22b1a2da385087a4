#include "UIKit/NSDataAsset.h"

#include "Runtime/Attempt.h"
#include "Runtime/internal/KeyedStore.h"
#include "UIKit/internal/BundleCatalog.h"
#include <cstdint>
#include <string>
#include <vector>

namespace UIKit {

namespace {

using Bytes = std::vector<std::uint8_t>;

std::string keyOf(const AssetCatalog::Blob& blob) {
    // With the size, because an empty blob has the offset of the next one.
    return std::to_string(reinterpret_cast<std::uintptr_t>(blob.blobs)) + ":" + std::to_string(blob.offset) + ":" +
           std::to_string(blob.size);
}

// Null when the bytes cannot be read. Never freed, because callers hold spans into them; there are few data assets.
const Bytes* readFrom(const AssetCatalog::Blob& blob) {
    static constinit Runtime::KeyedStore<Bytes> all;
    const std::string key = keyOf(blob);
    if (const Bytes* const known = all.find(key))
        return known;
    auto bytes = blob.read();
    return bytes ? all.add(all.unlimited, key, *std::move(bytes)) : nullptr;
}

} // namespace

std::optional<NSDataAsset> NSDataAsset::assetWithName(std::string_view name, const Foundation::NSBundle& bundle) {
    const auto found = detail::findAsset(AssetCatalog::Kind::data, name, bundle);
    if (!found)
        return std::nullopt;
    const AssetCatalog::Entry entry = found->catalog->entry(found->index);
    const auto data = entry.data(found->catalog->bestVariant(found->index, {}));
    const Bytes* const bytes = Runtime::attempt([&] { return readFrom(data.blob); });
    return bytes == nullptr ? std::nullopt : std::optional(NSDataAsset(entry.name(), data.typeIdentifier, *bytes));
}

} // namespace UIKit
