#include "UIKit/NSDataAsset.h"

#include "UIKit/internal/BundleCatalog.h"

namespace UIKit {

std::optional<NSDataAsset> NSDataAsset::assetWithName(std::string_view name, const Foundation::NSBundle& bundle) {
    const auto found = detail::findAsset(AssetCatalog::Kind::data, name, bundle);
    if (!found)
        return std::nullopt;
    const AssetCatalog::Entry entry = (*found->catalog)[found->index];
    const auto data = entry.data(entry.best(detail::wanted(UITraitCollection::current())));
    return NSDataAsset(entry.name(), data.typeIdentifier, data.bytes);
}

} // namespace UIKit
