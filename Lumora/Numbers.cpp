// Signed numbers and percentages.
#include "Lumora/Localization.h"
#include "Lumora/internal/Language.h"

#include "Foundation/NSNumberFormatter.h"
#include "Lumora/LumoraStrings+Members.h"
#include "Runtime/Attempt.h"
#include "Runtime/Fatal.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Lumora {

using Corvane::LocalizationCode;
using Foundation::NSNumber;
using Foundation::NSNumberFormatter;

namespace {

// In these languages the locale formats percentages (Turkish writes "%25"); the others have plainPercent().
constexpr std::array<LocalizationCode, 2> localePercentCodes = {LocalizationCode::ar, LocalizationCode::tr};

std::string localePercent(double value) {
    NSNumberFormatter formatter;
    formatter.setNumberStyle(NSNumberFormatter::Style::percent);
    return formatter.stringFromNumber(NSNumber(value)).value_or("");
}

std::string plainPercent(double value) {
    static_assert(std::numeric_limits<float>::is_iec559, "an overflow to single precision must be an infinity");
    // Single precision is intended: it decides how values near a half are rounded. Adding zero turns -0 into 0.
    const float percent = std::round(static_cast<float>(value) * 100.0F) + 0.0F;
    if (std::isnan(percent))
        return "NaN%";
    if (std::isinf(percent))
        return percent > 0 ? "∞%" : "-∞%";
    // The sign, all digits of the largest number, and "%".
    std::array<char, 1 + (std::numeric_limits<float>::max_exponent10 + 1) + 1> digits;
    char* end =
        std::to_chars(digits.data(), digits.data() + digits.size() - 1, percent, std::chars_format::fixed, 0).ptr;
    *end++ = '%';
    return {digits.data(), end};
}

} // namespace

std::string Localization::legacyTrNumber(const NSNumber& number, bool needSign) {
    return Runtime::attempt([&]() -> std::string {
        NSNumberFormatter formatter;
        formatter.setNumberStyle(NSNumberFormatter::Style::decimal);
        if (needSign)
            formatter.setPositivePrefix(formatter.plusSign());
        std::optional<std::string> text = formatter.stringFromNumber(number);
        // Older screens rely on this difference: without a text, only a signed number stops the process. The report
        // names the file that existing crash reports name, and a line of this one.
        if (!text && needSign)
            Runtime::fatalError("Unable to format a signed number", "Localization+Lumora", __LINE__);
        return std::move(text).value_or("");
    });
}

std::string Localization::legacyTrPercent(double value, bool showPlus) {
    return Runtime::attempt([&]() -> std::string {
        const bool usesLocale =
            std::ranges::find(localePercentCodes, detail::currentCode()) != localePercentCodes.end();
        std::string text = usesLocale ? localePercent(value) : plainPercent(value);
        return showPlus && value > 0.0 ? "+" + text : text;
    });
}

std::string LumoraStrings::Localizable::locNumber(std::int64_t number, bool needSign) {
    return Localization::legacyTrNumber(NSNumber(number), needSign);
}

} // namespace Lumora
