// StringTables/internal/PluralPieces.h
// The placeholders of a plural format and of its forms, with the arguments they take. One place for the formatter and
// for the tools that list a format's arguments.
// Text: UTF-8. Threads: values. Ownership: borrows the format.
#pragma once

#include "StringTables/internal/Placeholder.h"
#include "StringTables/internal/PluralTable.h"
#include <cstddef>
#include <optional>
#include <string_view>

namespace StringTables {

struct PluralPiece {
    Placeholder placeholder; // `end` is behind a variable's name
    // The variable that is named, "%#@days@", or null.
    const PluralVariable* variable = nullptr;
    // The arguments it takes, from 1 on; of a variable the one that chooses its form.
    ArgumentCounter::Taken arguments;
};

// The placeholders of one text in their order. In the format itself each takes the next argument, as in any text. In a
// form the first is the variable's own number, unless it prints a text and the number is none; so a form without its
// number, "One file by %@", takes the same arguments as the others. A variable that is named in a form takes the
// argument that it has in the form where most placeholders come before it.
class PluralPieces {
public:
    explicit PluralPieces(const PluralFormat& plural) noexcept : plural_(plural), text_(plural.format) {}
    // Of `form`, one of those of `variable`, which argument `own` has chosen.
    PluralPieces(const PluralFormat& plural, std::string_view form, const PluralVariable& variable,
                 std::size_t own) noexcept
        : plural_(plural), text_(form), variable_(&variable), own_(own), counter_(own - 1) {}

    std::optional<PluralPiece> next() noexcept;

private:
    const PluralVariable* variableAt(const Placeholder& placeholder) const noexcept;
    std::size_t argumentOf(const PluralVariable& named) const noexcept;
    bool skipsOwn(const Placeholder& placeholder) const noexcept;

    const PluralFormat& plural_;
    std::string_view text_;
    const PluralVariable* variable_ = nullptr; // whose form it is, or null
    std::size_t own_ = 0;
    std::size_t at_ = 0;
    ArgumentCounter counter_;
};

// The arguments that a plural format and all its forms take: of a variable's number the kind of its value type.
[[nodiscard]] FormatSignature signatureOf(const PluralFormat& plural);

} // namespace StringTables
