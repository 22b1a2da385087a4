// Intl/internal/Intl.h
// What the platform must know of the world's languages: which one fits a user, how they write numbers, how they count
// years. The knowledge is ICU's, and ICU lies behind this page only, in the plug-in lumora-intl.so: loading
// ICU costs more than a process's first text, and most texts need none of it. Text: UTF-8. Threads: any. Ownership:
// what is returned by reference lives until the process ends.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Intl {

// How one locale counts years.
class YearPhrases {
public:
    virtual ~YearPhrases() = default;

    // "N years" in words, in the form that goes with that count; a negative one counts as its absolute value. "{0}"
    // stands for the number, which a form such as "a year" need not hold. The view lives as long as this does.
    virtual std::string_view phrase(std::int64_t count) const = 0;
};

class Services {
public:
    // The index in `supported` of the language that serves a reader of `desired` best, by CLDR's matching, or no value
    // when none is of a language that the reader named. Identifiers of both lists as BCP 47 or with '_'.
    virtual std::optional<std::size_t> matchLanguage(std::string_view desired,
                                                     std::span<const std::string> supported) const = 0;
    // Any identifier works; what is unknown is read as the root locale. "@numbers=" and other keywords are kept.
    virtual NumberPattern numberPattern(std::string_view locale, NumberStyle style) const = 0;
    // The same of the identifier. Null when there are no words.
    virtual std::unique_ptr<const YearPhrases> yearPhrases(std::string_view locale) const = 0;

protected:
    ~Services() = default;
};

// The services; null when the plug-in is absent, in which case callers fall back to plain forms. Loaded at the first
// call. Where that fails for the moment only, std::bad_alloc or std::system_error is thrown, so that nobody keeps a
// plain form as the answer, and the next call tries again.
[[nodiscard]] const Services* services();

// How the locale writes numbers: from what the build wrote down of it, else from the services, else plainly.
// Throws as they do.
[[nodiscard]] NumberPattern numberPattern(std::string_view locale, NumberStyle style);

} // namespace Intl
