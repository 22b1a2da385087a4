// StringTables/internal/PluralPieces.h
// Iterates over the placeholders of a plural format and its forms, with the arguments they take. Shared by the
// formatter and the tools that list a format's arguments.
// Text: UTF-8. Threads: plain values. Ownership: borrows the format.
#pragma once

#include "StringTables/internal/Placeholder.h"
#include "StringTables/internal/PluralTable.h"
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace StringTables {

struct PluralPiece {
    Placeholder placeholder; // `end` is after the "NAME@" of a variable
    // The variable of "%#@days@"; null for any other placeholder and if the format has no variable of that name.
    const PluralVariable* variable = nullptr;
    // The arguments it takes, counted from 1. For a variable, `value` is the argument that selects its form.
    ArgumentCounter::Taken arguments;
};

// The placeholders of one text in order. Rules for placeholders without a position: In the format itself, each takes
// the next argument, as in any text. In a form, the first takes the variable's own number, unless it prints a text and
// the value type is not "@": then it takes the argument after that, so that a form without its number, such as "One
// file by %@", takes the same arguments as the other forms. For the same reason, a variable inside a form takes the
// argument that it has in the form with the most arguments before its first appearance, or the next one if its own form
// has already taken more.
class PluralPieces {
public:
    explicit PluralPieces(const PluralFormat& plural) noexcept : plural_(plural), text_(plural.format) {}
    // For `form`, a form of `variable`; argument `own` is the variable's number.
    PluralPieces(const PluralFormat& plural, std::string_view form, const PluralVariable& variable,
                 std::size_t own) noexcept
        : plural_(plural), text_(form), variable_(&variable), own_(own), counter_(own - 1) {}

    std::optional<PluralPiece> next() noexcept;

private:
    const PluralVariable* variableAt(std::string_view text, const Placeholder& placeholder) const noexcept;
    std::size_t indexOf(const PluralVariable& variable) const noexcept;
    std::size_t argumentOf(const PluralVariable& named) noexcept;
    void countMostBefore() noexcept;
    bool skipsOwn(const Placeholder& placeholder, std::size_t taken) const noexcept;

    const PluralFormat& plural_;
    std::string_view text_;
    const PluralVariable* variable_ = nullptr; // whose form this is; null in the format itself
    std::size_t own_ = 0;                      // the argument that is the variable's number
    std::size_t at_ = 0;
    ArgumentCounter counter_;
    // For each variable: how many arguments are taken before its first appearance in a form, in the form where these
    // are the most. Counted when first needed.
    std::optional<std::array<std::uint32_t, PluralTable::maxVariables>> mostBefore_;
};

// The arguments that a plural format and all its forms take. The kind of a variable's number is that of its value type.
[[nodiscard]] FormatSignature signatureOf(const PluralFormat& plural);

} // namespace StringTables
