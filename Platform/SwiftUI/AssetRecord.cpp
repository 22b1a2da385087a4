#include "SwiftUI/AssetRecord.h"

#include "Runtime/Fatal.h"
#include "UIKit/internal/BundleCatalog.h"

namespace SwiftUI::detail {

namespace {

struct KindName {
    AssetCatalog::Kind kind;
    std::string_view name;
};

KindName kindName(AssetKind kind) noexcept {
    switch (kind) {
    case AssetKind::image:
        return {AssetCatalog::Kind::image, "image"};
    case AssetKind::color:
        return {AssetCatalog::Kind::color, "color"};
    case AssetKind::data:
        break;
    }
    return {AssetCatalog::Kind::data, "data"};
}

} // namespace

void missingAsset(AssetKind kind, std::string_view name, const Foundation::NSBundle& bundle, std::string_view source,
                  std::uint32_t line) {
    UIKit::detail::throwIfUnreadable(kindName(kind).kind, name, bundle);
    Runtime::fatalError({"Unable to load ", kindName(kind).name, " asset named ", name, "."}, source, line);
}

} // namespace SwiftUI::detail
