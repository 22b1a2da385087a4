// StringTables/internal/PluralKeys.h
// The fixed keys of a plural table.
#pragma once

#include <cstddef>
#include <string_view>

namespace StringTables::pluralKeys {

inline constexpr std::string_view format = "NSStringLocalizedFormatKey";
inline constexpr std::string_view ruleType = "NSStringFormatSpecTypeKey";
inline constexpr std::string_view pluralRule = "NSStringPluralRuleType";
inline constexpr std::string_view valueType = "NSStringFormatValueTypeKey";
// An entry's texts by the width of their place, and by kind of device.
inline constexpr std::string_view widthRule = "NSStringVariableWidthRuleType";
inline constexpr std::string_view deviceRule = "NSStringDeviceSpecificRuleType";

// Of texts for several kinds of device that with the lowest rank is used.
inline constexpr std::size_t lastDeviceRank = 2;
constexpr std::size_t deviceRank(std::string_view device) noexcept {
    if (device == "other")
        return 0;
    return device == "iphone" ? 1 : lastDeviceRank;
}

} // namespace StringTables::pluralKeys
