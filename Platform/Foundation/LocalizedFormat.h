// Foundation/LocalizedFormat.h
// A bundle's entry for a key: a text, or a plural, whose words depend on numbers.
// Text: UTF-8. Threads: plain values. Ownership: a view of the bundle, which lives until the process ends, or of the
// text from which it was made.
#pragma once

#include "Foundation/FormatArgument.h"
#include "Foundation/Locale.h"
#include "Runtime/Export.h"
#include "StringTables/PercentRange.h"
#include <span>
#include <string>
#include <string_view>

namespace StringTables {
struct PluralFormat;
}

namespace Foundation {

class LocalizedFormat {
public:
    explicit LocalizedFormat(std::string_view text, StringTables::PercentRange percents = {}) noexcept
        : text_(text), percents_(percents) {}
    // `text`: the plural's text for use without numbers. `language`: the table's language, whose plural rules apply.
    LocalizedFormat(std::string_view text, const StringTables::PluralFormat& plural, std::string_view language) noexcept
        : text_(text), plural_(&plural), language_(language) {}

    // For a plural: its format with the form `other` of every variable.
    std::string_view text() const noexcept { return text_; }
    // The part of text() that has its percent signs.
    StringTables::PercentRange percents() const noexcept { return percents_; }
    // Null for a text.
    const StringTables::PluralFormat* plural() const noexcept { return plural_; }
    // Empty for a text.
    std::string_view language() const noexcept { return language_; }

private:
    std::string_view text_;
    StringTables::PercentRange percents_;
    const StringTables::PluralFormat* plural_ = nullptr;
    std::string_view language_;
};

namespace String {

// Like format() in Foundation/String.h. The arguments select the forms of a plural by the rules of its language;
// `locale`, by default the user's current one, determines how numbers are written.
[[nodiscard]] LUMORA_EXPORT std::string format(const LocalizedFormat& format, const Locale& locale,
                                               std::span<const FormatArgument> arguments);
[[nodiscard]] LUMORA_EXPORT std::string format(const LocalizedFormat& format,
                                               std::span<const FormatArgument> arguments);

} // namespace String

} // namespace Foundation
