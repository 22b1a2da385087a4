#include "SwiftUI/AssetRecord.h"

#include "Runtime/Fatal.h"

namespace SwiftUI::detail {

void missingAsset(std::string_view kind, std::string_view name, std::string_view source, std::uint32_t line) noexcept {
    std::string message = "Unable to load ";
    message.append(kind).append(" asset named ").append(name).append(".");
    Runtime::fatalError(message, source, line);
}

} // namespace SwiftUI::detail
