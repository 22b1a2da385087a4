// Made from the resources of the module Odd; do not edit.
#include "OddResources.h"
#include "OddStrings/Internal/Catalog.h"

#include "Foundation/Locale.h"
#include "Foundation/NSBundle.h"
#include "Foundation/String.h"
#include "Runtime/OnceSlot.h"

namespace Odd::OddStrings {

// A text without arguments is formatted as well: its doubled percent signs become single ones.
std::string tr(std::string_view table, std::string_view key, std::span<const ::Foundation::FormatArgument> arguments) {
    const ::Foundation::LocalizedFormat format = ::Odd::OddResources::bundle().localizedFormat(key, table);
    return ::Foundation::String::format(format, ::Foundation::Locale::current(), arguments);
}

const std::string& detail::noText() noexcept {
    static constinit ::Runtime::OnceSlot<std::string> empty;
    return empty.get([] { return std::string(); });
}

} // namespace Odd::OddStrings
