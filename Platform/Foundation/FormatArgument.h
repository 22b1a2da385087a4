// Foundation/FormatArgument.h
// An argument of a format: a string, an integer or a floating-point number.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Runtime/Export.h"
#include <concepts>
#include <cstdint>
#include <string_view>

namespace Foundation {

// Borrows its string, which must outlive it.
class FormatArgument {
public:
    enum class Kind : std::uint8_t { text, integer, number };

    // Anything that converts to std::string_view, such as std::string and string literals, but no null pointer.
    template <class Text>
    requires std::convertible_to<const Text&, std::string_view>
    constexpr FormatArgument(const Text& text) noexcept : text_(text) {}
    // Keeps the bits of an unsigned 64-bit value, so that "%lu" and "%lx" print it correctly.
    constexpr FormatArgument(std::integral auto integer) noexcept
        : integer_(static_cast<std::int64_t>(integer)), kind_(Kind::integer) {}
    constexpr FormatArgument(std::floating_point auto number) noexcept
        : number_(static_cast<double>(number)), kind_(Kind::number) {}

    constexpr Kind kind() const noexcept { return kind_; }
    // Each returns an empty string or 0 when the argument is of another kind.
    constexpr std::string_view text() const noexcept { return kind_ == Kind::text ? text_ : std::string_view(); }
    constexpr std::int64_t integer() const noexcept { return kind_ == Kind::integer ? integer_ : 0; }
    constexpr double number() const noexcept { return kind_ == Kind::number ? number_ : 0; }

private:
    union {
        std::string_view text_;
        std::int64_t integer_;
        double number_;
    };
    Kind kind_ = Kind::text;
};

} // namespace Foundation
