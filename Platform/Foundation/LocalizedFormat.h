// Foundation/LocalizedFormat.h
// What a bundle has for a key: a text, or a format whose words depend on numbers (a plural).
// Text: UTF-8. Threads: values. Ownership: views into the bundle, which lives until the process ends.
#pragma once

#include "Foundation/FormatArgument.h"
#include "Foundation/Locale.h"
#include "Runtime/Export.h"
#include <span>
#include <string>
#include <string_view>

namespace StringTables {
struct PluralFormat;
}

namespace Foundation {

class LocalizedFormat {
public:
    explicit LocalizedFormat(std::string_view text) noexcept : text_(text) {}
    // `text`: what the plural reads as where there are no numbers. `language`: the table's, whose rules choose.
    LocalizedFormat(std::string_view text, const StringTables::PluralFormat& plural, std::string_view language) noexcept
        : text_(text), plural_(&plural), language_(language) {}

    // Of a plural: its format with the form `other` of every variable.
    std::string_view text() const noexcept { return text_; }
    // Null unless it is a plural.
    const StringTables::PluralFormat* plural() const noexcept { return plural_; }
    std::string_view language() const noexcept { return language_; }

private:
    std::string_view text_;
    const StringTables::PluralFormat* plural_ = nullptr;
    std::string_view language_;
};

namespace String {

// As format() of a text. The arguments choose the forms of a plural by the rules of its language; numbers are printed
// as `locale` writes them.
[[nodiscard]] LUMORA_EXPORT std::string format(const LocalizedFormat& format, const Locale& locale,
                                               std::span<const FormatArgument> arguments);

} // namespace String

} // namespace Foundation
