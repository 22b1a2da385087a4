// Check/Arguments.h
// The arguments that a text takes. "50% off" counts as having no placeholder, although "% o" is one.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "SourceBundle/Source.h"
#include "StringTables/internal/Placeholder.h"
#include <string>
#include <string_view>

namespace Check {

struct Arguments {
    StringTables::FormatSignature signature;
    // The first '%' that is not written "%%", with the placeholder that it seems to begin; or empty.
    std::string_view lonePercent;

    // Whether both take arguments of the same kinds at the same positions.
    [[nodiscard]] bool fits(const Arguments& other) const { return signature.arguments == other.signature.arguments; }
    // "(text, integer)" or "no arguments".
    [[nodiscard]] std::string text() const;
};

// The arguments of the text, or of all forms of a plural.
[[nodiscard]] Arguments argumentsOf(const SourceBundle::SourceEntry& entry);

// "text", "integer", "floating-point number".
[[nodiscard]] std::string_view nameOf(StringTables::Placeholder::Kind kind) noexcept;

} // namespace Check
