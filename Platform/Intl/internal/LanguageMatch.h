// Intl/internal/LanguageMatch.h
// Uses ICU to select the language for a reader; part of the plug-in.
// Text: identifiers as for icuLocale(). Threads: any; no state.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Intl {

// Implements Services::matchLanguage().
[[nodiscard]] std::optional<std::size_t> bestLanguage(std::string_view desired, std::span<const std::string> supported);

} // namespace Intl
