// Intl/internal/Intl.h
// What the platform knows of the world's languages: which one fits a user, how they write numbers, how they count
// years. Most of it was taken from ICU when the library was built. The rest is asked of ICU at run time, in the plug-in
// lumora-intl.so: loading ICU costs more than a process's first text, and most processes never need it.
// Text: UTF-8. Threads: any. Errors: where the plug-in cannot be loaded or has no memory at the moment, std::bad_alloc
// or std::system_error is thrown, so that nobody keeps a poorer result, and the next call tries again. Without the
// plug-in there are plain forms.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include "Intl/internal/YearForms.h"
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Intl {

// The index in `supported` of the language that serves a reader of `desired` best, by CLDR's matching, or no value when
// none is of a language that the reader named. Identifiers of both lists as BCP 47 or with '_'.
[[nodiscard]] std::optional<std::size_t> matchLanguage(std::string_view desired,
                                                       std::span<const std::string> supported);
// How a locale writes numbers. Any identifier works; what is unknown is read as the root locale. "@numbers=" and other
// keywords are kept.
[[nodiscard]] NumberPattern numberPattern(std::string_view locale, NumberStyle style);
// The same of the identifier. Empty forms when there are no words.
[[nodiscard]] YearForms yearForms(std::string_view locale);

// The plug-in.
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
