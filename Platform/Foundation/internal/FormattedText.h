// Foundation/internal/FormattedText.h
// Formatting as String::format() does it, for callers that know more of the text; internal.
// Text: UTF-8. Threads: any; no state. Errors: those of String::format().
#pragma once

#include "Foundation/FormatArgument.h"
#include "Foundation/Locale.h"
#include "StringTables/PercentRange.h"
#include <span>
#include <string>
#include <string_view>

namespace Foundation::detail {

// `percents`: where `format` has its percent signs. `locale`: null for the user's current one, which is read only where
// a number needs it.
[[nodiscard]] std::string formattedText(std::string_view format, StringTables::PercentRange percents,
                                        const Locale* locale, std::span<const FormatArgument> arguments);

} // namespace Foundation::detail
