// Implements Intl::Services with ICU, for the plug-in and for lumora-precompute. When ICU reports an error, no
// language matches, the number pattern is the plain one, and the year forms are empty. Only std::bad_alloc is thrown.
#include "Intl/internal/Intl.h"

#include "Intl/internal/IcuText.h"
#include "Intl/internal/LanguageMatch.h"
#include "Runtime/Export.h"
#include "Runtime/internal/Memory.h"
#include <algorithm>
#include <cstdint>
#include <memory>
#include <new> // std::bad_alloc
#include <string>
#include <string_view>
#include <unicode/decimfmt.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/plurrule.h>
#include <unicode/ures.h>

namespace Intl {

namespace {

// The locale of an identifier if ICU has data for its language. For other identifiers ICU would use the process's
// default locale; this returns the root locale, with the digits that the identifier asks for ("xx@numbers=arab").
icu::Locale knownLocale(std::string_view identifier) {
    icu::Locale locale = icuLocale(identifier);
    if (locale.isBogus())
        return icu::Locale::getRoot();
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUResourceBundlePointer data(ures_open(nullptr, locale.getBaseName(), &status));
    if (succeeded(status) && status != U_USING_DEFAULT_WARNING)
        return locale;
    status = U_ZERO_ERROR;
    const auto digits = locale.getKeywordValue<std::string>("numbers", status);
    const icu::Locale root = icuLocale(succeeded(status) && !digits.empty() ? "root@numbers=" + digits : "root");
    return root.isBogus() ? icu::Locale::getRoot() : root;
}

// Null if ICU reports an error, as for an unknown numbering system, or if there are no decimal digits (Roman numerals).
std::unique_ptr<icu::DecimalFormat> decimalFormat(const icu::Locale& locale, NumberStyle style) {
    UErrorCode status = U_ZERO_ERROR;
    const auto icuStyle = style == NumberStyle::percent ? UNUM_PERCENT : UNUM_DECIMAL;
    std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createInstance(locale, icuStyle, status));
    auto* decimal = succeeded(status) ? dynamic_cast<icu::DecimalFormat*>(format.get()) : nullptr;
    if (decimal == nullptr)
        return nullptr;
    static_cast<void>(format.release());
    decimal->setMinimumGroupingDigits(UNUM_MINIMUM_GROUPING_DIGITS_AUTO); // the locale's number: in Spanish 2
    return std::unique_ptr<icu::DecimalFormat>(decimal);
}

// The smallest number of digits before the first separator: 2 if "1234" has no separator and "12.345" has one. ICU has
// the number in its data but does not report it, so this formats values to find it. The limit of 4 ends the search in a
// format without separators.
unsigned minimumGrouping(const icu::DecimalFormat& format, unsigned primary) {
    const icu::UnicodeString separator =
        format.getDecimalFormatSymbols()->getConstSymbol(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol);
    std::int64_t value = 1;
    for (unsigned digits = 0; digits < primary; ++digits)
        value *= 10;
    unsigned before = 1;
    for (; before < 4; ++before, value *= 10) {
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString text;
        format.format(value, text, nullptr, status);
        if (!succeeded(status) || text.indexOf(separator) >= 0)
            break;
    }
    return before;
}

// Reads the sizes of the groups. First removes from the format the multiplier, which would add digits to the values of
// minimumGrouping(), and the affixes, which may contain separators.
void readGrouping(NumberPattern& pattern, icu::DecimalFormat& format) {
    format.setMultiplier(1);
    format.setPositivePrefix(icu::UnicodeString());
    format.setPositiveSuffix(icu::UnicodeString());
    // No language has groups of more than 9 digits; far larger ones would overflow the value in minimumGrouping().
    const int primary = format.isGroupingUsed() ? std::clamp(format.getGroupingSize(), 0, 9) : 0;
    const int secondary = format.getSecondaryGroupingSize();
    pattern.primaryGrouping = static_cast<unsigned>(primary);
    pattern.secondaryGrouping = static_cast<unsigned>(secondary > 0 ? secondary : primary);
    if (primary > 0)
        pattern.minimumGrouping = minimumGrouping(format, pattern.primaryGrouping);
}

void readSymbols(NumberPattern& pattern, const icu::DecimalFormatSymbols& symbols) {
    using Symbols = icu::DecimalFormatSymbols;
    const auto symbol = [&](Symbols::ENumberFormatSymbol which) { return utf8(symbols.getConstSymbol(which)); };
    pattern.digits[0] = symbol(Symbols::kZeroDigitSymbol);
    for (int digit = 1; digit < 10; ++digit)
        pattern.digits[static_cast<std::size_t>(digit)] =
            symbol(static_cast<Symbols::ENumberFormatSymbol>(Symbols::kOneDigitSymbol + digit - 1));
    pattern.plusSign = symbol(Symbols::kPlusSignSymbol);
    pattern.minusSign = symbol(Symbols::kMinusSignSymbol);
    pattern.decimalSeparator = symbol(Symbols::kDecimalSeparatorSymbol);
    pattern.groupingSeparator = symbol(Symbols::kGroupingSeparatorSymbol);
    pattern.infinity = symbol(Symbols::kInfinitySymbol);
    pattern.notANumber = symbol(Symbols::kNaNSymbol);
}

void readAffixes(NumberPattern& pattern, const icu::DecimalFormat& format) {
    icu::UnicodeString text;
    pattern.positivePrefix = utf8(format.getPositivePrefix(text));
    pattern.positiveSuffix = utf8(format.getPositiveSuffix(text));
    pattern.negativePrefix = utf8(format.getNegativePrefix(text));
    pattern.negativeSuffix = utf8(format.getNegativeSuffix(text));
}

// ICU's text for `count` years, with "{0}" instead of the number.
std::string yearForm(const icu::number::LocalizedNumberFormatter& formatter, std::int64_t count) {
    UErrorCode status = U_ZERO_ERROR; // after an error, ICU's functions do nothing, so one check at the end is enough
    const icu::number::FormattedNumber formatted = formatter.formatInt(count, status);
    icu::UnicodeString text = formatted.toString(status);
    icu::ConstrainedFieldPosition number;
    number.constrainField(UFIELD_CATEGORY_NUMBER, UNUM_INTEGER_FIELD);
    if (formatted.nextPosition(number, status))
        text.replaceBetween(number.getStart(), number.getLimit(), u"{0}");
    return succeeded(status) ? utf8(text) : std::string();
}

PluralCategory categoryOf(const icu::PluralRules& rules, std::int32_t count) {
    return pluralCategoryNamed(utf8(rules.select(count))).value_or(PluralCategory::other);
}

YearForms icuYearForms(std::string_view identifier) {
    const icu::Locale locale = knownLocale(identifier);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::PluralRules> rules(icu::PluralRules::forLocale(locale, status));
    YearForms years;
    if (!succeeded(status))
        return years;
    const auto formatter = icu::number::NumberFormatter::withLocale(locale)
                               .unit(icu::MeasureUnit::getYear())
                               .unitWidth(UNUM_UNIT_WIDTH_FULL_NAME);
    const auto fill = [&](std::int32_t count) {
        if (std::string& form = years.forms[indexOf(categoryOf(*rules, count))]; form.empty())
            form = yearForm(formatter, count);
    };
    // Every category that integers can have occurs among 0 to 200 and the powers of ten below a billion.
    for (std::int32_t count = 0; count <= 200; ++count)
        fill(count);
    for (std::int32_t count = 1'000; count < 1'000'000'000; count *= 10)
        fill(count);
    return years;
}

NumberPattern icuNumberPattern(std::string_view identifier, NumberStyle style) {
    NumberPattern pattern = plainNumberPattern(style);
    const icu::Locale locale = knownLocale(identifier);
    std::unique_ptr<icu::DecimalFormat> format = decimalFormat(locale, style);
    if (!format)
        format = decimalFormat(icu::Locale(locale.getBaseName()), style); // without "@numbers="
    if (!format)
        return pattern;
    readSymbols(pattern, *format->getDecimalFormatSymbols());
    readAffixes(pattern, *format);
    pattern.maximumFraction = static_cast<unsigned>(std::max(format->getMaximumFractionDigits(), 0));
    pattern.minimumFraction = static_cast<unsigned>(std::max(format->getMinimumFractionDigits(), 0));
    readGrouping(pattern, *format);
    // A format that runs out of memory during a change returns default sizes from then on, and a bogus prefix, for
    // which utf8() throws.
    icu::UnicodeString prefix;
    static_cast<void>(utf8(format->getPositivePrefix(prefix)));
    return pattern;
}

// ICU allocates less than 1 MiB when it is first used. The rest is a margin, because other threads allocate, too.
constexpr std::size_t plentyForIcu = std::size_t{8} << 20;

// Calls ICU only when enough memory is free for its initialization: without memory, one part of ICU deadlocks and
// others cache the failure permanently. If ICU reports twice that memory ran out although enough was free, it has
// cached a failure, and `otherwise` is returned.
template <class Make, class Value> Value withMemory(Make make, Value otherwise) {
    for (int attempt = 0; attempt < 2; ++attempt) {
        Runtime::demandMemory(plentyForIcu);
        try {
            return make();
        } catch (const std::bad_alloc&) {
        }
    }
    return otherwise;
}

class IcuServices final : public Services {
public:
    std::optional<std::size_t> matchLanguage(std::string_view desired,
                                             std::span<const std::string> supported) const override {
        return withMemory([&] { return bestLanguage(desired, supported); }, std::optional<std::size_t>());
    }

    NumberPattern numberPattern(std::string_view identifier, NumberStyle style) const override {
        return withMemory([&] { return icuNumberPattern(identifier, style); }, plainNumberPattern(style));
    }

    YearForms yearForms(std::string_view locale) const override {
        return withMemory([&] { return icuYearForms(locale); }, YearForms());
    }
};

constinit const IcuServices icuServices;

} // namespace

} // namespace Intl

extern "C" LUMORA_EXPORT const Intl::Services* lumoraIntlServices() {
    return &Intl::icuServices;
}
