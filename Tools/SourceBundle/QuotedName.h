// SourceBundle/QuotedName.h
// Quotes names in messages; internal.
#pragma once

#include "StringTables/internal/Unicode.h"
#include <string>
#include <string_view>

namespace SourceBundle {

// The name in quotation marks, cut after 100 bytes.
[[nodiscard]] inline std::string quotedName(std::string_view name) {
    constexpr std::size_t longest = 100;
    const std::string_view shown = StringTables::internal::cutToSize(name, longest);
    return '"' + std::string(shown) + (shown.size() < name.size() ? "…\"" : "\"");
}

} // namespace SourceBundle
