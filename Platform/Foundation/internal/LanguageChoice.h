// Foundation/internal/LanguageChoice.h
// Selects, of the languages of a bundle, the one for a user; internal.
// Text: BCP 47 tags. Threads: any; no state.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Foundation::detail {

// The index in `supported` of the best match for `wanted`, or no value. Returns and throws what Intl::matchLanguage()
// does, but decides the common cases without ICU.
[[nodiscard]] std::optional<std::size_t> chooseLanguage(std::string_view wanted,
                                                        std::span<const std::string> supported);

} // namespace Foundation::detail
