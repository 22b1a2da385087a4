#include "Exchange/Languages.h"

#include "Intl/internal/PluralRules.h"
#include "SourceBundle/LowerCase.h"
#include <algorithm>
#include <cstdint>

namespace Exchange {

namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Whether this is a language code: two or three letters, then parts of up to eight letters and digits after hyphens.
bool isCode(std::string_view code) {
    constexpr std::size_t longest = 8;
    for (bool isFirst = true;; isFirst = false) {
        const std::size_t size = std::min(code.find('-'), code.size());
        const std::string_view part = code.substr(0, size);
        const bool isValid =
            std::ranges::all_of(part, [isFirst](char c) { return isLetter(c) || (!isFirst && c >= '0' && c <= '9'); });
        if (!isValid || part.empty() || part.size() > longest || (isFirst && (part.size() < 2 || part.size() > 3)))
            return false;
        if (size == code.size())
            return true;
        code.remove_prefix(size + 1);
    }
}

std::vector<PluralCategory> categoriesIn(std::uint8_t bits) {
    std::vector<PluralCategory> all;
    for (std::size_t i = 0; i < Intl::pluralCategoryCount; ++i)
        if ((bits & (1U << i)) != 0)
            all.push_back(static_cast<PluralCategory>(i));
    return all;
}

} // namespace

bool isSameLanguage(std::string_view one, std::string_view other) {
    return SourceBundle::comparableCode(std::string(one)) == SourceBundle::comparableCode(std::string(other));
}

std::optional<std::string> targetLanguage(const SourceBundle::Source& source, std::string_view code) {
    if (isSameLanguage(code, source.developmentLanguage) || isSameLanguage(code, SourceBundle::baseLanguage))
        return std::nullopt;
    for (const SourceBundle::SourceTable& table : source.tables)
        for (const SourceBundle::LanguageTexts& texts : table.languages)
            if (isSameLanguage(texts.language, code))
                return texts.language;
    std::string language = SourceBundle::withHyphens(std::string(code));
    return isCode(language) ? std::optional(language) : std::nullopt;
}

std::vector<PluralCategory> categoriesOf(std::string_view language) {
    constexpr std::uint8_t other = 1U << indexOf(PluralCategory::other);
    return categoriesIn(Intl::pluralCategories(language).all | other);
}

std::vector<PluralCategory> integerCategoriesOf(std::string_view language) {
    return categoriesIn(Intl::pluralCategories(language).ofIntegers);
}

bool needsCategory(std::string_view language, PluralCategory category) {
    constexpr std::uint64_t most = 1000;
    if (category == PluralCategory::other)
        return true;
    const Intl::PluralRules rules(language);
    for (std::uint64_t i = 0; i <= most; ++i)
        if (rules.category({.i = i}) == category)
            return true;
    return false;
}

} // namespace Exchange
