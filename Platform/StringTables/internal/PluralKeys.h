// StringTables/internal/PluralKeys.h
// The fixed keys of a plural table.
#pragma once

#include <string_view>

namespace StringTables::pluralKeys {

inline constexpr std::string_view format = "NSStringLocalizedFormatKey";
inline constexpr std::string_view ruleType = "NSStringFormatSpecTypeKey";
inline constexpr std::string_view pluralRule = "NSStringPluralRuleType";
inline constexpr std::string_view valueType = "NSStringFormatValueTypeKey";

} // namespace StringTables::pluralKeys
