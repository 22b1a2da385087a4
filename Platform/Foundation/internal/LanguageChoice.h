// Foundation/internal/LanguageChoice.h
// Which of a bundle's languages serve a user; internal.
// Text: BCP 47 tags. Threads: any; no state.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace Foundation::detail {

// The members of `supported` that readers of `wanted` understand, in the order of `wanted`, each once. A language that
// the user did not name is never among them.
std::vector<std::string> chooseLanguages(std::span<const std::string> wanted, std::span<const std::string> supported);

} // namespace Foundation::detail
