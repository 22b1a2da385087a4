// SourceBundle/QuotedName.h
// Quotes names in messages; internal.
#pragma once

#include <string>
#include <string_view>

namespace SourceBundle {

// The name in quotation marks, cut after 100 bytes.
[[nodiscard]] inline std::string quotedName(std::string_view name) {
    constexpr std::size_t longest = 100;
    if (name.size() <= longest)
        return '"' + std::string(name) + '"';
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80) // do not cut a character
        --end;
    return '"' + std::string(name.substr(0, end)) + "…\"";
}

} // namespace SourceBundle
