#include "Intl/internal/PluralRules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>

namespace Intl {

namespace {

// Offsets instead of pointers need no relocation when the library is loaded.
struct Language {
    std::uint16_t name; // offset in `names`, NUL-terminated: "pt_PT"
    std::uint8_t ruleSet;
};

constexpr bool isBetween(std::uint64_t value, std::uint64_t first, std::uint64_t last) noexcept {
    return first <= value && value <= last;
}

// Generated. Defines `select`; `categories` and `expressions` (offsets in `expressionTexts`), both indexed by rule set;
// `names`; `languages`, sorted by name.
#include "PluralRules.inc"

constexpr std::size_t mostRead = 16; // bytes of a tag, more than any of `names` has; the rest is ignored
constexpr unsigned unknownLanguage = ~0U;

const Language* findLanguage(std::string_view name) noexcept {
    const auto nameOf = [](const Language& one) { return std::string_view(names + one.name); };
    const auto* const found = std::ranges::lower_bound(languages, name, {}, nameOf);
    return found != std::end(languages) && nameOf(*found) == name ? found : nullptr;
}

// Writes "PT-pt" in ICU's spelling, "pt_PT", and returns its end. Scripts become "LATN", which does not matter: no
// rules depend on them.
char* spellTag(std::string_view tag, char* out) noexcept {
    const auto within = [](char c, char first, char last) { return first <= c && c <= last; };
    bool isLanguage = true;
    for (const char c : tag) {
        isLanguage = isLanguage && c != '-' && c != '_';
        if (isLanguage && within(c, 'A', 'Z'))
            *out++ = static_cast<char>(c - 'A' + 'a');
        else if (!isLanguage && within(c, 'a', 'z'))
            *out++ = static_cast<char>(c - 'a' + 'A');
        else
            *out++ = c == '-' ? '_' : c;
    }
    return out;
}

// The rule set of the longest prefix of the tag that has one, or `unknownLanguage`.
unsigned ruleSetOf(std::string_view tag) noexcept {
    std::array<char, mostRead> buffer;
    const char* const end = spellTag(tag.substr(0, mostRead), buffer.data());
    for (std::string_view name(buffer.data(), end);;) {
        if (const Language* const found = findLanguage(name))
            return found->ruleSet;
        const std::size_t last = name.rfind('_');
        if (last == name.npos)
            return unknownLanguage;
        name = name.substr(0, last);
    }
}

constexpr std::uint64_t exactLimit = 1'000'000'000'000'000'000; // smaller numbers keep all their digits

// Appends a digit. A number that would become too long loses its first digits; `exactLimit` replaces them, so
// that the number does not become zero.
std::uint64_t withDigit(std::uint64_t number, char digit) noexcept {
    const bool isLong = number >= exactLimit / 10;
    const std::uint64_t last = number % (exactLimit / 10) * 10 + static_cast<std::uint64_t>(digit - '0');
    return isLong ? last + exactLimit : last;
}

bool isDigit(char c) noexcept {
    return '0' <= c && c <= '9';
}

void addFraction(PluralOperands& number, char digit) noexcept {
    number.f = withDigit(number.f, digit);
    ++number.v;
    if (digit != '0') {
        number.t = number.f;
        number.w = number.v;
    }
}

// Parses an exponent such as "e+06". 0 if there is none, or if it is too large for an int, which no printed double has.
int exponentOf(std::string_view text) noexcept {
    constexpr int most = 400; // more than the exponent of any double
    if (!text.starts_with('e') && !text.starts_with('E'))
        return 0;
    text.remove_prefix(text.substr(1).starts_with('+') ? 2 : 1);
    int exponent = 0;
    std::from_chars(text.data(), text.data() + text.size(), exponent);
    return std::clamp(exponent, -most, most);
}

} // namespace

PluralOperands pluralOperands(std::string_view decimal) noexcept {
    std::size_t at = 0;
    const auto takeDigits = [&] {
        const std::size_t begin = at;
        while (at < decimal.size() && isDigit(decimal[at]))
            ++at;
        return decimal.substr(begin, at - begin);
    };
    const std::string_view whole = takeDigits();
    std::string_view fraction;
    if (decimal.substr(at).starts_with('.')) {
        ++at;
        fraction = takeDigits();
    }
    const auto count = static_cast<int>(whole.size() + fraction.size());
    const int point = static_cast<int>(whole.size()) + exponentOf(decimal.substr(at));
    PluralOperands number;
    // Places count from the first digit of the text; the whole part ends at `point`.
    for (int place = std::min(point, 0); place < std::max(count, point); ++place) {
        const auto index = static_cast<std::size_t>(place);
        char digit = '0';
        if (place >= 0 && place < count)
            digit = index < whole.size() ? whole[index] : fraction[index - whole.size()];
        if (place < point)
            number.i = withDigit(number.i, digit);
        else
            addFraction(number, digit);
    }
    return number;
}

PluralRules::PluralRules(std::string_view language) noexcept : ruleSet_(ruleSetOf(language)) {}

PluralCategory PluralRules::category(const PluralOperands& number) const noexcept {
    return select(ruleSet_, number);
}

PluralCategory pluralCategory(std::string_view language, const PluralOperands& number) noexcept {
    return PluralRules(language).category(number);
}

PluralCategories pluralCategories(std::string_view language) noexcept {
    static constexpr std::uint8_t other = 1U << indexOf(PluralCategory::other);
    const unsigned ruleSet = ruleSetOf(language);
    return ruleSet == unknownLanguage ? PluralCategories{other, other} : categories[ruleSet];
}

std::string_view integerPluralExpression(std::string_view language) noexcept {
    const unsigned ruleSet = ruleSetOf(language);
    return ruleSet == unknownLanguage ? "0" : expressionTexts + expressions[ruleSet];
}

} // namespace Intl
