// Intl/internal/IcuText.h
// Converts ICU's strings to ours, and our locale identifiers to ICU's locales; part of the plug-in lumora-intl.so.
// Text: UTF-8 on our side. Threads: any; no state.
#pragma once

#include <algorithm> // std::max
#include <cstring>   // std::strlen
#include <new>       // std::bad_alloc
#include <string>
#include <string_view>
#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace Intl {

// Whether the status is a success. Throws std::bad_alloc when memory ran out, so that callers never cache such a
// failure.
[[nodiscard]] inline bool succeeded(UErrorCode status) {
    if (status == U_MEMORY_ALLOCATION_ERROR)
        throw std::bad_alloc();
    return U_SUCCESS(status);
}

// ICU marks a string as bogus when memory runs out.
[[nodiscard]] inline std::string utf8(const icu::UnicodeString& text) {
    if (text.isBogus())
        throw std::bad_alloc();
    std::string out;
    return text.toUTF8String(out);
}

// The locale of an identifier in any common form ("de_AT", "zh-Hans", "pt_PT.UTF-8@euro", "ar_EG@numbers=latn"),
// without its character set. Bogus when ICU cannot parse it, or when it is too long for ICU or contains a NUL.
[[nodiscard]] inline icu::Locale icuLocale(std::string_view identifier) {
    std::string name(identifier);
    if (name.find('\0') != name.npos) { // ICU would read only the part before the NUL
        icu::Locale none;
        none.setToBogus();
        return none;
    }
    if (const std::size_t dot = name.find('.'); dot != std::string::npos)
        name.erase(dot, name.find('@', dot) - dot); // without an '@', everything after the dot
    icu::Locale locale = icu::Locale::createFromName(name.c_str());
    // ICU copies each of the two names into buffers of this size, not always with a check.
    if (!locale.isBogus() &&
        std::max(std::strlen(locale.getName()), std::strlen(locale.getBaseName())) >= ULOC_FULLNAME_CAPACITY)
        locale.setToBogus();
    return locale;
}

} // namespace Intl
