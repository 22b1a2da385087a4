// StringTables/internal/PluralKeys.h
// The fixed keys of a plural table, and `pluralRule`, the value that `ruleType` has for a plural.
#pragma once

#include <cstddef>
#include <string_view>

namespace StringTables::pluralKeys {

inline constexpr std::string_view format = "NSStringLocalizedFormatKey";
inline constexpr std::string_view ruleType = "NSStringFormatSpecTypeKey";
inline constexpr std::string_view pluralRule = "NSStringPluralRuleType";
inline constexpr std::string_view valueType = "NSStringFormatValueTypeKey";
// Keys of dictionaries that have an entry's texts by the width of the place that shows them, and by the kind of device.
inline constexpr std::string_view widthRule = "NSStringVariableWidthRuleType";
inline constexpr std::string_view deviceRule = "NSStringDeviceSpecificRuleType";

// An entry may have texts for several kinds of device, of which a Linux machine is none: the text with the lowest rank
// is used, the first of equal ones.
inline constexpr std::size_t lastDeviceRank = 2;
constexpr std::size_t deviceRank(std::string_view device) noexcept {
    if (device == "other")
        return 0;
    return device == "iphone" ? 1 : lastDeviceRank;
}

} // namespace StringTables::pluralKeys
