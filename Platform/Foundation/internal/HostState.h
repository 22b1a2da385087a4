// Foundation/internal/HostState.h
// The host's inputs as the platform reads them; internal.
// Threads: any; reading takes no lock and needs no memory beyond the result's. A reader sees the state before a change
// or after it.
#pragma once

#include "Foundation/Locale.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation::detail {

// The number of the preferred languages in force. Setting them makes another one, so what is derived from them can be
// kept beside their number. Reads the environment if nothing has set them.
[[nodiscard]] std::uint64_t hostVersion();

struct HostLanguages {
    std::uint64_t version;
    std::vector<std::string> languages; // BCP 47, the best liked first
};
[[nodiscard]] HostLanguages hostLanguages();

// The host's tag as BCP 47: "sr_RS.UTF-8@latin" is "sr-Latn-RS".
[[nodiscard]] std::string languageTag(std::string_view hostName);

} // namespace Foundation::detail
