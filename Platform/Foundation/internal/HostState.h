// Foundation/internal/HostState.h
// Read access to the host settings; internal.
// Threads: any; lock-free after the first call. A reader sees the state either before or after a change.
#pragma once

#include "Foundation/Locale.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation::detail {

// The version of the preferred languages: 1 or more, increased whenever they are set. It shows whether cached values
// that depend on them are outdated. Reads the environment if no languages were set.
[[nodiscard]] std::uint64_t hostLanguagesVersion();

struct HostLanguages {
    std::uint64_t version;              // as of hostLanguagesVersion()
    std::vector<std::string> languages; // BCP 47, most preferred first
};
[[nodiscard]] HostLanguages hostLanguages();

// Converts a POSIX locale name to BCP 47: "sr_RS.UTF-8@latin" gives "sr-Latn-RS". Modifiers other than "latin" and
// "cyrillic" are dropped. A BCP 47 tag stays as it is.
[[nodiscard]] std::string languageTag(std::string_view localeName);

} // namespace Foundation::detail
