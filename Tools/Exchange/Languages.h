// Exchange/Languages.h
// The language that texts are translated to: its name, and the plural forms that it needs.
#pragma once

#include "Exchange/Unit.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

// The language of that code, "pt_BR" or "pt-br", as the source has it; one that the source does not have is "pt-BR" as
// given, with hyphens. No value where it is no code of a language, or is that of the development texts.
[[nodiscard]] std::optional<std::string> targetLanguage(const SourceBundle::Source& source, std::string_view code);
// Whether the source has texts in it.
[[nodiscard]] bool hasLanguage(const SourceBundle::Source& source, std::string_view language);
[[nodiscard]] bool isSameLanguage(std::string_view one, std::string_view other);

// The plural categories of a language, those that only fractions have among them, and `other`.
[[nodiscard]] std::vector<PluralCategory> categoriesOf(std::string_view language);
// Those that whole numbers have, in the order in which PO files number them.
[[nodiscard]] std::vector<PluralCategory> integerCategoriesOf(std::string_view language);
// Whether a plural without the form is incomplete: whole numbers up to 1,000 have the category, or it is `other`.
[[nodiscard]] bool needsCategory(std::string_view language, PluralCategory category);

} // namespace Exchange
