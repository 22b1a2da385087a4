// Intl/internal/ScriptVariants.h
// The languages that are written in several scripts.
// Text: ASCII. Threads: any; constant data.
#pragma once

#include <string_view>

namespace Intl {

// Whether regions of a language ("sr") use different scripts, so that the region determines which variant a user can
// read. Generated from ICU's data at build time.
[[nodiscard]] bool isWrittenInSeveralScripts(std::string_view language) noexcept;

} // namespace Intl
