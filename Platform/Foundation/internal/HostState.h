// Foundation/internal/HostState.h
// Read access to the host settings; internal.
// Threads: any; lock-free; allocates only the result. A reader sees the state either before or after a change.
#pragma once

#include "Foundation/Locale.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation::detail {

// The version of the preferred languages, which changes whenever they are set: the key for caching what is derived from
// them. Reads the environment if they were not set.
[[nodiscard]] std::uint64_t hostVersion();

struct HostLanguages {
    std::uint64_t version;
    std::vector<std::string> languages; // BCP 47, most preferred first
};
[[nodiscard]] HostLanguages hostLanguages();

// Converts a POSIX locale name to BCP 47: "sr_RS.UTF-8@latin" gives "sr-Latn-RS".
[[nodiscard]] std::string languageTag(std::string_view hostName);

} // namespace Foundation::detail
