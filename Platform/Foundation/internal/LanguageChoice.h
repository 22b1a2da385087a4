// Foundation/internal/LanguageChoice.h
// Which of a bundle's languages serve a user; internal.
// Text: BCP 47 tags. Threads: any; no state.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Foundation::detail {

// The index in `supported` of the language that readers of `wanted` understand, or no value. A language that the user
// did not name is never chosen. Throws as Intl::matchLanguage().
[[nodiscard]] std::optional<std::size_t> chooseLanguage(std::string_view wanted,
                                                        std::span<const std::string> supported);

} // namespace Foundation::detail
