// Foundation/Host.h
// What a host tells the platform of its user: preferred languages and current locale.
// Text: UTF-8. Threads: all functions from any thread, at any time, in a forked child too; a reader sees the state
// before a change or after it, and takes no lock. Memory: fixed, however many users a process serves. Errors: all may
// throw std::bad_alloc, and then the state in force stays.
#pragma once

#include "Runtime/Export.h"
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation::Host {

// The languages that the user reads, the best liked first: "ru", "pt-PT", "zh_CN". Replaces the environment's. A name
// with a NUL matches nothing; names beyond longestLanguages bytes together are left out.
LUMORA_EXPORT void setPreferredLanguages(const std::vector<std::string>& languages);
inline constexpr std::size_t longestLanguages = 2048;
// The identifier of the user's locale: "de_AT". Replaces the environment's. A longer one than longestLocale bytes is
// taken as the empty one, which formats as the root locale.
LUMORA_EXPORT void setCurrentLocale(std::string_view identifier);
inline constexpr std::size_t longestLocale = 256;
// Back to the environment, read at this call and at the first use. Languages: those of LANGUAGE, then that of the first
// of LC_ALL, LC_MESSAGES and LANG that is not empty; English alone where that one says "C". Locale: that of LC_ALL,
// else of LANG, or where LANG says nothing or "C", of LC_MESSAGES. What nobody says is English and "en_US".
LUMORA_EXPORT void reset();

} // namespace Foundation::Host
