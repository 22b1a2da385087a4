#include "UIKit/NSDataAsset.h"

#include "Runtime/internal/AppendOnlyList.h"
#include "UIKit/internal/BundleCatalog.h"
#include <vector>

namespace UIKit {

namespace {

struct Read {
    AssetCatalog::Blob blob;
    std::vector<std::uint8_t> bytes;
};
// Kept as the catalogs are: the span that an asset gives out outlives the asset. Data assets are few.
constinit Runtime::AppendOnlyList<Read> all;

// Null when the bytes cannot be read.
const Read* readFrom(const AssetCatalog::Blob& blob) {
    const auto isIts = [&blob](const Read& one) { return one.blob == blob; };
    if (const Read* known = all.find(isIts))
        return known;
    auto bytes = blob.read();
    return bytes ? &all.add({blob, *std::move(bytes)}, isIts) : nullptr;
}

} // namespace

std::optional<NSDataAsset> NSDataAsset::assetWithName(std::string_view name, const Foundation::NSBundle& bundle) {
    const auto found = detail::findAsset(AssetCatalog::Kind::data, name, bundle);
    if (!found)
        return std::nullopt;
    const AssetCatalog::Entry entry = (*found->catalog)[found->index];
    const auto data = entry.data(entry.best(detail::wanted({})));
    const Read* read = readFrom(data.blob);
    return read == nullptr ? std::nullopt : std::optional(NSDataAsset(entry.name(), data.typeIdentifier, read->bytes));
}

} // namespace UIKit
