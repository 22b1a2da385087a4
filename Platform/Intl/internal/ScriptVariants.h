// Intl/internal/ScriptVariants.h
// Languages that are written in several scripts.
// Text: ASCII. Threads: any; constant data.
#pragma once

#include <string_view>

namespace Intl {

// Whether the regions of a language ("sr") differ in script by ICU's data, which are written down when the library is
// built. The region then decides which variant a user can read.
[[nodiscard]] bool isWrittenInSeveralScripts(std::string_view language) noexcept;

} // namespace Intl
