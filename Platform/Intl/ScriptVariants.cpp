#include "Intl/internal/ScriptVariants.h"

#include <algorithm>
#include <iterator>

namespace Intl {

namespace {

#include "ScriptVariants.inc" // `severalScripts`

} // namespace

bool isWrittenInSeveralScripts(std::string_view language) noexcept {
    return std::ranges::find(severalScripts, language) != std::end(severalScripts);
}

} // namespace Intl
