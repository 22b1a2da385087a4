#include "SwiftUI/AssetRecord.h"

#include "Runtime/Fatal.h"
#include "UIKit/internal/BundleCatalog.h"
#include <unistd.h>

namespace SwiftUI::detail {

namespace {

AssetCatalog::Kind catalogKind(AssetKind kind) noexcept {
    switch (kind) {
    case AssetKind::image:
        return AssetCatalog::Kind::image;
    case AssetKind::color:
        return AssetCatalog::Kind::color;
    case AssetKind::data:
        break;
    }
    return AssetCatalog::Kind::data;
}

} // namespace

void missingAsset(AssetKind kind, std::string_view name, const Foundation::NSBundle& bundle, std::string_view source,
                  std::uint32_t line) {
    UIKit::detail::throwIfUnreadable(catalogKind(kind), name, bundle);
    const std::string_view kindName = AssetCatalog::nameOf(catalogKind(kind));
    const std::initializer_list<std::string_view> message = {"Unable to load ", kindName, " asset named ", name, "."};
    if (::access(bundle.bundlePath().c_str(), F_OK) == 0)
        Runtime::fatalError(message, source, line);
    Runtime::fatalError(message, source, line, {"There is no bundle at ", bundle.bundlePath()});
}

} // namespace SwiftUI::detail
