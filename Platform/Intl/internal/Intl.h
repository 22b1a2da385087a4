// Intl/internal/Intl.h
// Language data: which language fits a user, how numbers and numbers of years are written. The number patterns and
// year forms of all locales that ICU lists are generated at build time. The rest is left to ICU at run time, in the
// plug-in lumora-intl.so: loading ICU takes longer than the first text of a process, and most processes never need it.
// Text: UTF-8. Threads: any. Errors: transient failures throw std::bad_alloc or std::system_error, so that callers
// never cache a degraded result; the next call tries again. Without the plug-in, languages are matched by their tags
// only, and a locale that ICU does not list has plainNumberPattern() and empty year forms.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include "Intl/internal/YearForms.h"
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Intl {

// The index in `supported` of the best match for `desired` by CLDR's rules, or no value when none has the same language
// in a script that readers of `desired` can read. Identifiers are BCP 47 or use '_'.
[[nodiscard]] std::optional<std::size_t> matchLanguage(std::string_view desired,
                                                       std::span<const std::string> supported);
// How a locale writes numbers. An unknown identifier gives the root locale's pattern. Keywords such as "@numbers=" are
// respected.
[[nodiscard]] NumberPattern numberPattern(std::string_view locale, NumberStyle style);
// How a locale writes a number of years. An unknown identifier gives the root locale's forms.
[[nodiscard]] YearForms yearForms(std::string_view locale);

// The interface of the plug-in: the same functions, computed by ICU. Throws only std::bad_alloc.
class Services {
public:
    virtual std::optional<std::size_t> matchLanguage(std::string_view desired,
                                                     std::span<const std::string> supported) const = 0;
    virtual NumberPattern numberPattern(std::string_view locale, NumberStyle style) const = 0;
    virtual YearForms yearForms(std::string_view locale) const = 0;

protected:
    ~Services() = default;
};

} // namespace Intl
