#include "SwiftUI/AssetRecord.h"

#include "Runtime/Fatal.h"

namespace SwiftUI::detail {

void missingAsset(std::string_view kind, std::string_view name, std::string_view source, std::uint32_t line) noexcept {
    Runtime::fatalError({"Unable to load ", kind, " asset named ", name, "."}, source, line);
}

} // namespace SwiftUI::detail
