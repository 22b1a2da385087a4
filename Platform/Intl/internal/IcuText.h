// Intl/internal/IcuText.h
// Between ICU's texts and identifiers and ours; part of the plug-in.
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

// Whether ICU did what it was asked. What it lacked the memory for is thrown, so that nobody keeps it as an answer.
[[nodiscard]] inline bool succeeded(UErrorCode status) {
    if (status == U_MEMORY_ALLOCATION_ERROR)
        throw std::bad_alloc();
    return U_SUCCESS(status);
}

// ICU makes a text bogus where it lacks the memory for it.
[[nodiscard]] inline std::string utf8(const icu::UnicodeString& text) {
    if (text.isBogus())
        throw std::bad_alloc();
    std::string out;
    return text.toUTF8String(out);
}

// The locale of an identifier of any custom ("de_AT", "zh-Hans", "pt_PT.UTF-8@euro", "ar_EG@numbers=latn"), without its
// character set. Bogus when ICU makes nothing of it, and when it is longer than any in use.
[[nodiscard]] inline icu::Locale icuLocale(std::string_view identifier) {
    std::string name(identifier);
    if (name.find('\0') != name.npos) { // ICU would read the part before it
        icu::Locale none;
        none.setToBogus();
        return none;
    }
    if (const std::size_t dot = name.find('.'); dot != std::string::npos)
        name.erase(dot, name.find('@', dot) - dot);
    icu::Locale locale = icu::Locale::createFromName(name.c_str());
    // ICU copies names into places of this size, not always with care. Either may be the longer one.
    if (!locale.isBogus() &&
        std::max(std::strlen(locale.getName()), std::strlen(locale.getBaseName())) >= ULOC_FULLNAME_CAPACITY)
        locale.setToBogus();
    return locale;
}

} // namespace Intl
