// Foundation/internal/HostState.h
// The host's inputs as the platform reads them; internal.
#pragma once

#include "Foundation/Locale.h"
#include <string>
#include <string_view>
#include <vector>

namespace Foundation::detail {

// Languages and locale of one moment. Immutable and kept until the process ends, so that a reader needs neither lock
// nor count and whatever is derived from a state can be kept beside its address. A state that was in force before is
// used again: their number is that of the different settings a process has seen.
struct HostState {
    std::vector<std::string> languages; // BCP 47, the best liked first
    Locale locale;
    friend bool operator==(const HostState&, const HostState&) = default;
};

// The state in force.
const HostState& hostState();

// The host's tag as BCP 47: "sr_RS.UTF-8@latin" is "sr-Latn-RS".
std::string languageTag(std::string_view hostName);

} // namespace Foundation::detail
