// Foundation/internal/FormattedText.h
// Formatting like String::format(), for callers that know where a text has its percent signs; internal.
// Text: UTF-8. Threads: any; no state. Errors: those of String::format().
#pragma once

#include "Foundation/FormatArgument.h"
#include "Foundation/Locale.h"
#include "Foundation/String.h"
#include "StringTables/PercentRange.h"
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace Foundation::detail {

// Copies a text to `out` and returns the end of the copy. For the short pieces of formatted texts, a call of memcpy()
// takes longer than copying blocks of constant size, of which the last may overlap the one before.
inline char* copy(std::string_view text, char* out) noexcept {
    const char* const from = text.data();
    const std::size_t size = text.size();
    if (size >= 16) {
        for (std::size_t at = 0; at + 16 < size; at += 16)
            std::memcpy(out + at, from + at, 16);
        std::memcpy(out + size - 16, from + size - 16, 16);
    } else if (size >= 8) {
        std::memcpy(out, from, 8);
        std::memcpy(out + size - 8, from + size - 8, 8);
    } else {
        for (std::size_t at = 0; at < size; ++at)
            out[at] = from[at];
    }
    return out + size;
}

// The three texts one after the other, with one allocation.
inline std::string joined(std::string_view before, std::string_view text, std::string_view after) {
    std::string all(before.size() + text.size() + after.size(), '\0');
    copy(after, copy(text, copy(before, all.data())));
    return all;
}

// formattedText() for any format and arguments.
[[nodiscard]] std::string formattedPieces(std::string_view format, StringTables::PercentRange percents,
                                          const Locale* locale, std::span<const FormatArgument> arguments);

// The formatted text. `percents`: the range of the percent signs in `format`. `locale`: null for the user's current
// one, which is read only if a number needs it. Inline for a format whose only placeholder is a "%@" for a text, as in
// most texts with placeholders.
[[nodiscard]] inline std::string formattedText(std::string_view format, StringTables::PercentRange percents,
                                               const Locale* locale, std::span<const FormatArgument> arguments) {
    const std::size_t at = percents.begin(), end = at + 2;
    const bool hasOneText = percents.end(format) == at + 1 && end <= format.size() && format[at] == '%' &&
                            format[at + 1] == '@' && !arguments.empty() &&
                            arguments[0].kind() == FormatArgument::Kind::text &&
                            arguments[0].text().size() <= String::largestGrowth;
    if (!hasOneText) [[unlikely]]
        return formattedPieces(format, percents, locale, arguments);
    return joined({format.data(), at}, arguments[0].text(), {format.data() + end, format.size() - end});
}

} // namespace Foundation::detail
