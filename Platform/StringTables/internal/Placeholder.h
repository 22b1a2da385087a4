// StringTables/internal/Placeholder.h
// Parses the printf-style placeholders of a text and finds the arguments they take. Shared by the formatter and
// the tools.
// Text: any bytes, UTF-8 expected. Threads: any; no state.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace StringTables {

struct Placeholder {
    // What it prints: a percent sign ("%%"), a text (%@ %s %S), an integer (%d and the like, %c), or a
    // floating-point number.
    enum class Kind : std::uint8_t { percent, text, integer, number };

    // A width or precision: none, the number `value`, or an argument ("*"): the one at position `value` ("*2$"), or the
    // next one if `value` is 0.
    struct Size {
        enum class From : std::uint8_t { none, number, argument } from = From::none;
        int value = 0;
    };

    Kind kind = Kind::percent;
    char conversion = '%'; // '%'; '@'; one of d i u x X o c; one of f F e E g G a A. %s and %S give '@', D U O C give
                           // their lower-case forms
    std::uint16_t position = 0; // 1 for "%1$@"; 0 when the placeholder takes the next argument
    bool leftAligned = false;   // '-'
    bool plusSign = false;      // '+'
    bool spaceSign = false;     // ' '
    bool alternative = false;   // '#'
    bool zeroPadded = false;    // '0'
    std::uint8_t bits = 64;     // how many bits of an integer are used: 8 for "hh", 16 for "h", else 64
    Size width;
    Size precision;
    std::size_t begin = 0; // of the '%'
    std::size_t end = 0;   // one past the conversion
};

// The first placeholder of `format` that begins at or after `from`: "%%", or % [position$] [flags] [width] [.precision]
// [length] conversion. Any other '%' is ordinary text: one before an unknown conversion or the end of the text, with a
// position of 0 or of more than four digits, or with a width or precision of more than six digits. Never fails,
// allocates nothing.
[[nodiscard]] std::optional<Placeholder> nextPlaceholder(std::string_view format, std::size_t from) noexcept;
// NAME if `placeholder` is the beginning of a variable, "%#@NAME@" or "%1$#@NAME@", or else an empty string.
[[nodiscard]] std::string_view variableName(std::string_view format, const Placeholder& placeholder) noexcept;

// Counts the arguments that the placeholders of one format take, in the order of the format.
class ArgumentCounter {
public:
    constexpr ArgumentCounter() noexcept = default;
    // Starts after the first `taken` arguments.
    constexpr explicit ArgumentCounter(std::size_t taken) noexcept : taken_(taken) {}

    // Positions of arguments, counted from 1; 0 means none.
    struct Taken {
        std::size_t width = 0;
        std::size_t precision = 0;
        std::size_t value = 0;
    };
    Taken take(const Placeholder& placeholder) noexcept {
        const std::size_t width = take(placeholder.width), precision = take(placeholder.precision);
        if (placeholder.kind == Placeholder::Kind::percent)
            return {width, precision, 0};
        return {width, precision, placeholder.position != 0 ? placeholder.position : next()};
    }
    // Takes the next argument, as a plain "%@" does.
    std::size_t next() noexcept { return ++taken_; }
    std::size_t taken() const noexcept { return taken_; }

private:
    std::size_t take(const Placeholder::Size& size) noexcept {
        if (size.from != Placeholder::Size::From::argument)
            return 0;
        return size.value != 0 ? static_cast<std::size_t>(size.value) : next();
    }

    std::size_t taken_ = 0;
};

// Whether the placeholders of one text take their arguments by position, in order, or both.
class ArgumentStyle {
public:
    void add(const Placeholder& placeholder) noexcept {
        if (placeholder.width.from == Placeholder::Size::From::argument)
            add(placeholder.width.value != 0);
        if (placeholder.precision.from == Placeholder::Size::From::argument)
            add(placeholder.precision.value != 0);
        if (placeholder.kind != Placeholder::Kind::percent)
            add(placeholder.position != 0);
    }
    bool isMixed() const noexcept { return hasPositions_ && hasOrder_; }

private:
    void add(bool isByPosition) noexcept { (isByPosition ? hasPositions_ : hasOrder_) = true; }

    bool hasPositions_ = false, hasOrder_ = false;
};

// All arguments that a format takes.
struct FormatSignature {
    using Kind = Placeholder::Kind;
    // Two placeholders use the same argument as different kinds.
    struct Conflict {
        std::size_t position; // of the argument, counted from 1
        Kind first, later;
    };

    // Element i is the kind of the argument at position i + 1, in a conflict the first kind, or no value if no
    // placeholder takes the argument. The last of mostArguments also represents all later ones, so that "%9999$d" does
    // not make a list of 9,999; conflicts of these are not reported.
    static constexpr std::size_t mostArguments = 256;
    std::vector<std::optional<Kind>> arguments;
    std::optional<Conflict> conflict; // the first one
    bool mixesPositions = false;      // one text takes arguments both by position and in order (ArgumentStyle)
    std::string unknownVariable{};    // the first variable that is named but does not exist, or empty
    bool hasLonePercent = false;      // what hasLonePercent() says of the format, in a plural also of its forms

    // Adds the arguments that a placeholder takes.
    void add(const Placeholder& placeholder, const ArgumentCounter::Taken& taken);
    // Adds an argument of that kind at `position`; does nothing for position 0.
    void add(std::size_t position, Kind kind);
    // Sets unknownVariable, unless it is set already or `name` is empty.
    void addUnknownVariable(std::string_view name);
};
[[nodiscard]] FormatSignature signatureOf(std::string_view format);
// Whether some '%' does not begin a placeholder.
[[nodiscard]] bool hasLonePercent(std::string_view format) noexcept;

} // namespace StringTables
