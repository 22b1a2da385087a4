#include "Foundation/String.h"

#include "Foundation/internal/NumberText.h"
#include "StringTables/internal/Placeholder.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace Foundation::String {

namespace {

using StringTables::Placeholder;

bool beginsCharacter(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

// The first `limit` characters of a text.
std::string_view firstCharacters(std::string_view text, std::size_t limit) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (beginsCharacter(text[i]) && limit-- == 0)
            return text.substr(0, i);
    return text;
}

// A sign for the two's complement of what a placeholder looks at.
std::uint64_t truncated(std::int64_t value, unsigned bits) noexcept {
    return bits == 64 ? static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value) & ((1U << bits) - 1);
}
std::int64_t signedTruncated(std::int64_t value, unsigned bits) noexcept {
    return bits == 8 ? static_cast<std::int8_t>(value) : bits == 16 ? static_cast<std::int16_t>(value) : value;
}

// Appends to a text of the caller's.
class Formatter {
public:
    Formatter(std::string& out, std::string_view format, const Locale& locale,
              std::span<const FormatArgument> arguments)
        : out_(out), format_(format), locale_(locale), arguments_(arguments) {}

    void run() {
        std::size_t size = format_.size();
        for (const FormatArgument& argument : arguments_)
            size += argument.kind() == FormatArgument::Kind::text ? argument.text().size() : numberSize;
        out_.reserve(size);
        std::size_t done = 0;
        for (std::size_t at = 0; (at = format_.find('%', at)) != format_.npos; at = done) {
            if (format_.substr(at + 1).starts_with('@')) { // nearly all of them: nothing to read
                out_ += format_.substr(done, at - done);
                done = at + 2;
                if (const FormatArgument* given = argument(++taken_))
                    appendText(*given);
                continue;
            }
            const auto placeholder = StringTables::nextPlaceholder(format_, at);
            if (!placeholder)
                break;
            out_ += format_.substr(done, placeholder->begin - done);
            done = placeholder->end;
            append(*placeholder);
        }
        out_ += format_.substr(done);
    }

private:
    static constexpr std::size_t numberSize = 32;

    const FormatArgument* argument(std::size_t position) const noexcept {
        return position >= 1 && position <= arguments_.size() ? &arguments_[position - 1] : nullptr;
    }

    // A width or precision; no value when there is none. May be negative when it is an argument.
    std::optional<std::int64_t> resolved(Placeholder::Size size) noexcept {
        if (size.from == Placeholder::Size::From::number)
            return size.value;
        if (size.from == Placeholder::Size::From::argument)
            if (const FormatArgument* given = argument(++taken_);
                given != nullptr && given->kind() == FormatArgument::Kind::integer)
                return given->integer();
        return std::nullopt;
    }
    static std::size_t bounded(std::int64_t size) noexcept {
        static constexpr std::int64_t largest = largestSize;
        return static_cast<std::size_t>(std::clamp(size, -largest, largest) * (size < 0 ? -1 : 1));
    }

    void append(const Placeholder& placeholder) {
        if (placeholder.kind == Placeholder::Kind::percent) {
            out_ += '%';
            return;
        }
        const std::int64_t width = resolved(placeholder.width).value_or(0);
        const std::int64_t givenPrecision = resolved(placeholder.precision).value_or(-1);
        precision_ = givenPrecision < 0 ? std::nullopt : std::optional(bounded(givenPrecision));
        const FormatArgument* given = argument(placeholder.position != 0 ? placeholder.position : ++taken_);
        if (given == nullptr)
            return;

        begin_ = zerosAt_ = out_.size();
        zero_ = " ";
        appendArgument(placeholder, *given);
        if (width != 0)
            pad(bounded(width), placeholder.leftAligned || width < 0);
    }

    // At most `limit` characters of it.
    void appendText(const FormatArgument& given, std::optional<std::size_t> limit = std::nullopt) {
        std::array<char, detail::scalarTextSize> buffer;
        const std::string_view text = given.kind() == FormatArgument::Kind::text
                                          ? given.text()
                                          : detail::integerText(given.integer(), buffer.data());
        out_ += limit ? firstCharacters(text, *limit) : text;
    }

    void appendArgument(const Placeholder& placeholder, const FormatArgument& given) {
        if (placeholder.kind == Placeholder::Kind::text) {
            appendText(given, precision_);
            return;
        }
        if (given.kind() == FormatArgument::Kind::text) {
            out_ += given.text();
            return;
        }
        if (placeholder.conversion == 'c') {
            std::array<char, detail::scalarTextSize> buffer;
            const auto codePoint = static_cast<std::uint64_t>(given.integer());
            out_ += detail::characterText(static_cast<std::uint32_t>(std::min(codePoint, std::uint64_t{UINT32_MAX})),
                                          buffer.data());
        } else if (placeholder.conversion == 'd' || placeholder.conversion == 'i' || placeholder.conversion == 'u') {
            appendDecimal(placeholder, given.integer());
        } else {
            appendPlain(placeholder, truncated(given.integer(), placeholder.bits));
        }
    }

    void appendDecimal(const Placeholder& placeholder, std::int64_t value) {
        if (!pattern_)
            pattern_ = detail::numberPattern(locale_.identifier(), Intl::NumberStyle::decimal);
        std::int64_t looked = 0;
        std::uint64_t magnitude = truncated(value, placeholder.bits);
        if (placeholder.conversion != 'u') {
            looked = signedTruncated(value, placeholder.bits);
            magnitude = static_cast<std::uint64_t>(looked);
            magnitude = looked < 0 ? -magnitude : magnitude;
            if (looked >= 0 && placeholder.plusSign)
                out_ += pattern_->plusSign;
            else if (looked >= 0 && placeholder.spaceSign)
                out_ += ' ';
        }
        out_ += looked < 0 ? pattern_->negativePrefix : pattern_->positivePrefix;
        beginDigits(placeholder, pattern_->digits[0]);
        std::array<char, detail::scalarTextSize> buffer;
        std::string_view digits = detail::unsignedText(magnitude, buffer.data());
        std::string filled;
        if (precision_ && *precision_ > digits.size())
            digits = filled.append(*precision_ - digits.size(), '0').append(digits);
        detail::appendWhole(out_, *pattern_, digits);
        out_ += looked < 0 ? pattern_->negativeSuffix : pattern_->positiveSuffix;
    }

    void appendPlain(const Placeholder& placeholder, std::uint64_t value) {
        const bool isOctal = placeholder.conversion == 'o';
        std::array<char, detail::scalarTextSize> buffer;
        char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, isOctal ? 8 : 16).ptr;
        const auto size = static_cast<std::size_t>(end - buffer.data());
        if (placeholder.conversion == 'X')
            std::transform(buffer.data(), end, buffer.data(), [](char c) { return c >= 'a' ? c - 'a' + 'A' : c; });
        if (placeholder.alternative && value != 0)
            out_ += isOctal ? "0" : placeholder.conversion == 'X' ? "0X" : "0x";
        beginDigits(placeholder, "0");
        if (precision_ && *precision_ > size)
            out_.append(*precision_ - size, '0');
        out_.append(buffer.data(), size);
    }

    // Zeros that fill the width stand between the sign and the digits, as long as nothing else says how many digits
    // there are.
    void beginDigits(const Placeholder& placeholder, std::string_view zero) noexcept {
        if (placeholder.zeroPadded && !placeholder.leftAligned && !precision_) {
            zerosAt_ = out_.size();
            zero_ = zero;
        }
    }

    // Brings what was appended since begin_ to `width` characters.
    void pad(std::size_t width, bool leftAligned) {
        const auto written = std::string_view(out_).substr(begin_);
        const auto characters = static_cast<std::size_t>(std::ranges::count_if(written, beginsCharacter));
        if (characters >= width)
            return;
        if (leftAligned) {
            out_.append(width - characters, ' ');
            return;
        }
        std::string padding;
        for (std::size_t i = characters; i < width; ++i)
            padding += zero_;
        out_.insert(zerosAt_, padding);
    }

    std::string& out_;
    std::string_view format_;
    const Locale& locale_;
    std::span<const FormatArgument> arguments_;
    std::size_t taken_ = 0;                     // arguments that placeholders without a position have used
    detail::Kept<Intl::NumberPattern> pattern_; // once a number has asked for it

    // Of the placeholder at hand.
    std::optional<std::size_t> precision_;
    std::size_t begin_ = 0;   // of its text in out_
    std::size_t zerosAt_ = 0; // where padding is put, and with what
    std::string_view zero_;
};

} // namespace

std::string format(std::string_view format, const Locale& locale, std::span<const FormatArgument> arguments) {
    std::string out;
    Formatter(out, format, locale, arguments).run();
    return out;
}

} // namespace Foundation::String
