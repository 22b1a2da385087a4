// StringTables/internal/Placeholder.h
// The printf-style placeholders of a text, found in one place for the formatter that fills them and for the generator
// that makes parameters of them.
// Text: any bytes, UTF-8 expected. Threads: any; no state. Never fails, allocates nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace StringTables {

struct Placeholder {
    enum class Kind : std::uint8_t { percent, text, integer }; // "%%", "%@", and the integer conversions

    // A width or precision: none, a number, or the next argument ("*").
    struct Size {
        enum class From : std::uint8_t { none, number, argument } from = From::none;
        int value = 0;
    };

    Kind kind = Kind::percent;
    char conversion = '%';      // '@', or one of d i u x X o c (D, U, O read as their lower-case forms)
    std::uint16_t position = 0; // 1 for "%1$@"; 0 when the placeholder takes the next argument
    bool leftAligned = false;   // '-'
    bool plusSign = false;      // '+'
    bool spaceSign = false;     // ' '
    bool alternative = false;   // '#'
    bool zeroPadded = false;    // '0'
    std::uint8_t bits = 64;     // of the argument that is looked at: 8 for "hh", 16 for "h", else 64
    Size width;
    Size precision;
    std::size_t begin = 0; // of the '%'
    std::size_t end = 0;   // one past the conversion
};

// The first placeholder of `format` that begins at or after `from`: "%%", or % [position$] [flags] [width] [.precision]
// [length] conversion. A '%' that begins none is passed over as ordinary text: an unknown conversion, the end of the
// text, a position outside of 1 to 9999, a width or precision of more than six digits.
[[nodiscard]] std::optional<Placeholder> nextPlaceholder(std::string_view format, std::size_t from) noexcept;

} // namespace StringTables
