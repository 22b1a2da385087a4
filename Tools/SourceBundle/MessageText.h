// SourceBundle/MessageText.h
// Parts of messages.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include "StringTables/internal/Unicode.h"
#include <string>
#include <string_view>

namespace SourceBundle {

// The name in quotation marks, cut after at most 100 bytes.
[[nodiscard]] inline std::string quotedName(std::string_view name) {
    constexpr std::size_t longest = 100;
    const std::string_view shown = StringTables::internal::cutToSize(name, longest);
    return '"' + std::string(shown) + (shown.size() < name.size() ? "…\"" : "\"");
}

// "1 text", "2 texts".
[[nodiscard]] inline std::string counted(std::size_t count, std::string_view word) {
    return std::to_string(count).append(" ").append(word).append(count == 1 ? "" : "s");
}

// "note", "warning", "error".
[[nodiscard]] constexpr std::string_view nameOf(Severity severity) noexcept {
    switch (severity) {
    case Severity::note:
        return "note";
    case Severity::warning:
        return "warning";
    case Severity::error:
        break;
    }
    return "error";
}

// The text in the terminal's colour for the severity.
[[nodiscard]] inline std::string colored(std::string_view text, Severity severity) {
    constexpr std::string_view colors[] = {"\033[36m", "\033[33m", "\033[31m"}; // by severity
    return std::string(colors[static_cast<std::size_t>(severity)]).append(text).append("\033[0m");
}

} // namespace SourceBundle
