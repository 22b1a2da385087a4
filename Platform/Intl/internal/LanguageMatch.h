// Intl/internal/LanguageMatch.h
// Which language serves a reader; part of the plug-in.
// Text: identifiers of any custom. Threads: any; no state.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Intl {

// As Services::matchLanguage().
[[nodiscard]] std::optional<std::size_t> bestLanguage(std::string_view desired, std::span<const std::string> supported);

} // namespace Intl
