// Check/Arguments.h
// The arguments that a text takes. A placeholder with a space after its percent sign does not count: "50% off". Nor
// does "%arg", which the source reader replaces where it is known. Text: UTF-8. Threads: any; no state.
#pragma once

#include "SourceBundle/Source.h"
#include "StringTables/internal/Placeholder.h"
#include <string>
#include <string_view>

namespace Check {

struct Arguments {
    StringTables::FormatSignature signature;
    // The first '%' that should be "%%": "%", or "% o" if it begins a placeholder that does not count; or "%arg".
    // Points into the entry; empty if there is none.
    std::string_view lonePercent;

    // Whether both take arguments of the same kinds at the same positions.
    [[nodiscard]] bool fits(const Arguments& other) const { return signature.arguments == other.signature.arguments; }
    // "(text, integer)", with "none" for a position that no placeholder takes and "..." for those after the 16th; or
    // "no arguments".
    [[nodiscard]] std::string text() const;
};

// The arguments of the text, or of all forms of a plural.
[[nodiscard]] Arguments argumentsOf(const SourceBundle::SourceEntry& entry);

// "text", "integer", "floating-point number".
[[nodiscard]] std::string_view nameOf(StringTables::Placeholder::Kind kind) noexcept;

} // namespace Check
