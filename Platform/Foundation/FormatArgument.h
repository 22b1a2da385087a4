// Foundation/FormatArgument.h
// What a text can be formatted with: a text, a whole number or a floating number.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Runtime/Export.h"
#include <concepts>
#include <cstdint>
#include <string_view>

namespace Foundation {

// Borrows its text, which must outlive it.
class FormatArgument {
public:
    enum class Kind : std::uint8_t { text, integer, number };

    constexpr FormatArgument(std::string_view text) noexcept : text_(text), kind_(Kind::text) {}
    // A 64-bit unsigned value keeps its bits: "%lu" and "%lx" print it right.
    constexpr FormatArgument(std::integral auto integer) noexcept
        : integer_(static_cast<std::int64_t>(integer)), kind_(Kind::integer) {}
    constexpr FormatArgument(std::floating_point auto number) noexcept
        : number_(static_cast<double>(number)), kind_(Kind::number) {}

    constexpr Kind kind() const noexcept { return kind_; }
    // Each is empty or 0 unless the argument is of its kind.
    constexpr std::string_view text() const noexcept { return kind_ == Kind::text ? text_ : std::string_view(); }
    constexpr std::int64_t integer() const noexcept { return kind_ == Kind::integer ? integer_ : 0; }
    constexpr double number() const noexcept { return kind_ == Kind::number ? number_ : 0; }

private:
    union {
        std::string_view text_;
        std::int64_t integer_;
        double number_;
    };
    Kind kind_;
};

} // namespace Foundation
