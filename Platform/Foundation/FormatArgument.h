// Foundation/FormatArgument.h
// What a text can be formatted with: a text, or a whole number.
// Text: UTF-8. Threads: plain values.
#pragma once

#include <cstdint>
#include <string_view>

namespace Foundation {

// Borrows its text, which must outlive it.
class FormatArgument {
public:
    enum class Kind : std::uint8_t { text, integer };

    constexpr FormatArgument(std::string_view text) noexcept : text_(text), kind_(Kind::text) {}
    constexpr FormatArgument(std::int64_t integer) noexcept : integer_(integer), kind_(Kind::integer) {}

    constexpr Kind kind() const noexcept { return kind_; }
    // Empty unless kind() is text; 0 unless kind() is integer.
    constexpr std::string_view text() const noexcept { return text_; }
    constexpr std::int64_t integer() const noexcept { return integer_; }

private:
    std::string_view text_;
    std::int64_t integer_ = 0;
    Kind kind_;
};

} // namespace Foundation
