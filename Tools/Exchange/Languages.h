// Exchange/Languages.h
// Target languages: their names and plural forms.
#pragma once

#include "Exchange/Unit.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

// The language for a code such as "pt_BR" or "pt-br", as the source spells it; if the source does not have it, the code
// with hyphens. No value if it is not a language code, or is that of the development language or Base.
[[nodiscard]] std::optional<std::string> targetLanguage(const SourceBundle::Source& source, std::string_view code);
// Whether both codes mean the same language: "pt_BR" and "pt-br" do.
[[nodiscard]] bool isSameLanguage(std::string_view one, std::string_view other);

// The plural categories of a language, including those for fractions only, and `other`.
[[nodiscard]] std::vector<PluralCategory> categoriesOf(std::string_view language);
// The plural categories for integers, in the order of plural forms in PO files.
[[nodiscard]] std::vector<PluralCategory> integerCategoriesOf(std::string_view language);
// Whether a plural needs this form: the category is `other` or applies to an integer from 0 to 1,000. A category for
// millions alone, such as `many` in French, may be left out.
[[nodiscard]] bool needsCategory(std::string_view language, PluralCategory category);

} // namespace Exchange
