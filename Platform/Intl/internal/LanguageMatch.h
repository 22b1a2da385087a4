// Intl/internal/LanguageMatch.h
// Uses ICU to select the language for a user; part of the plug-in lumora-intl.so.
// Text: identifiers as for icuLocale() (IcuText.h); others match nothing. What follows '@' is ignored: "sr-Latn" has a
// script, "sr@latin" none. Threads: any; no state.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Intl {

// Implements matchLanguage() of the plug-in (Services in Intl.h).
[[nodiscard]] std::optional<std::size_t> bestLanguage(std::string_view desired, std::span<const std::string> supported);

} // namespace Intl
