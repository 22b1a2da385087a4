// Check/Arguments.h
// The arguments that a text takes, as people mean it: "50% off" has no placeholder, although "% o" reads as one.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "SourceBundle/Source.h"
#include "StringTables/internal/Placeholder.h"
#include <string>
#include <string_view>

namespace Check {

struct Arguments {
    StringTables::FormatSignature signature;
    std::string_view lonePercent; // the first '%' that is not written "%%", with what it seems to begin; or empty

    // Whether both take arguments of the same kinds by position.
    [[nodiscard]] bool fits(const Arguments& other) const { return signature.arguments == other.signature.arguments; }
    // "(text, whole number)"; "no arguments".
    [[nodiscard]] std::string text() const;
};

// Of the text, or of all forms of a plural text.
[[nodiscard]] Arguments argumentsOf(const SourceBundle::SourceEntry& entry);

// "text", "whole number", "floating number".
[[nodiscard]] std::string_view nameOf(StringTables::Placeholder::Kind kind) noexcept;

} // namespace Check
