// Foundation/internal/FormattedText.h
// Formatting like String::format(), for callers that know more about the text; internal.
// Text: UTF-8. Threads: any; no state. Errors: those of String::format().
#pragma once

#include "Foundation/FormatArgument.h"
#include "Foundation/Locale.h"
#include "StringTables/PercentRange.h"
#include <span>
#include <string>
#include <string_view>

namespace Foundation::detail {

// `percents`: the places of the percent signs in `format`. `locale`: null for the user's current one, which is read
// only if a number needs it.
[[nodiscard]] std::string formattedText(std::string_view format, StringTables::PercentRange percents,
                                        const Locale* locale, std::span<const FormatArgument> arguments);

} // namespace Foundation::detail
