// Foundation/Host.h
// The host application's settings for the user: preferred languages and current locale.
// Text: UTF-8. Threads: any, at any time, also in a forked child. Readers take no lock and see the state either before
// or after a change. Memory: constant, however many changes are made. Errors: all functions may throw std::bad_alloc
// and then change nothing.
#pragma once

#include "Runtime/Export.h"
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation::Host {

// Sets the languages that the user reads, most preferred first: "ru", "pt-PT", "zh_CN". Overrides the environment.
// Empty names and names with a NUL are ignored, and so are those that do not fit into longestLanguages bytes together
// with the names before them. If no name is left, each bundle uses its development language.
LUMORA_EXPORT void setPreferredLanguages(const std::vector<std::string>& languages);
inline constexpr std::size_t longestLanguages = 2048;
// Sets the identifier of the user's locale: "de_AT". Overrides the environment. An identifier of more than
// longestLocale bytes is treated as an empty one, which formats as the root locale.
LUMORA_EXPORT void setCurrentLocale(std::string_view identifier);
inline constexpr std::size_t longestLocale = 256;
// Resets both to the environment, which is read at this call. A setting that was never set comes from the environment,
// too, which is then read at the first use. Languages: those of LANGUAGE, then that of the messages' locale, which is
// the first of LC_ALL, LC_MESSAGES and LANG that is not empty; if that locale is "C" or "POSIX", only English. Locale:
// LC_ALL, else LANG, or LC_MESSAGES if LANG is empty, "C" or "POSIX", without the character set and modifier
// (".UTF-8@euro"). The defaults are English and "en_US".
LUMORA_EXPORT void reset();

} // namespace Foundation::Host
