// SourceBundle/LowerCase.h
// Converts names and language codes to comparable forms.
// Text: UTF-8; only ASCII characters change. Threads: any; no state.
#pragma once

#include <algorithm>
#include <string>
#include <utility>

namespace SourceBundle {

[[nodiscard]] inline std::string lowerCase(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

// "de-DE" for "de_DE".
[[nodiscard]] inline std::string withHyphens(std::string code) {
    std::ranges::replace(code, '_', '-');
    return code;
}

// A language code in a form that can be compared: "de-de" for "de_DE".
[[nodiscard]] inline std::string comparableCode(std::string code) {
    return lowerCase(withHyphens(std::move(code)));
}

} // namespace SourceBundle
