// Generated from the resources of the module Odd; do not edit.
#include "OddResources.h"
#include "OddStrings/Internal/Lookup.h"

#include "Foundation/NSBundle.h"
#include "Runtime/OnceSlot.h"

namespace Odd::OddStrings {

// Texts without arguments are formatted, too, so that "%%" becomes "%".
std::string tr(const ::Foundation::LocalizedKey& key, std::span<const ::Foundation::FormatArgument> arguments) {
    return ::Odd::OddResources::bundle().formattedText(key, arguments);
}

const std::string& detail::noText() noexcept {
    static constinit ::Runtime::OnceSlot<std::string> empty;
    return empty.get([] { return std::string(); });
}

} // namespace Odd::OddStrings
