#include "Foundation/String.h"

#include "Foundation/NSNumber.h"
#include "Foundation/internal/FormattedNumber.h"
#include "Foundation/internal/FormattedText.h"
#include "Foundation/internal/NumberText.h"
#include "StringTables/internal/Placeholder.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <array>
#include <optional>

namespace Foundation::String {

namespace {

using StringTables::ArgumentCounter;
using StringTables::Placeholder;
using StringTables::internal::beginsCharacter;
using Kind = FormatArgument::Kind;

// The first `limit` characters of a text.
std::string_view firstCharacters(std::string_view text, std::size_t limit) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (beginsCharacter(text[i]) && limit-- == 0)
            return text.substr(0, i);
    return text;
}

// The beginning of a format in which each placeholder is a "%@" that has an argument; usually the whole format. It is
// formatted in a buffer on the stack, so that the formatted text needs one allocation. Empty if any of the arguments is
// not a text, or if the format and all arguments together are longer than the buffer.
class PlainBeginning {
public:
    PlainBeginning(std::string_view format, StringTables::PercentRange percents,
                   std::span<const FormatArgument> arguments) noexcept {
        if (!fits(format, arguments))
            return;
        const std::string_view withPercents = format.substr(0, percents.end(format));
        std::size_t at = nextPercent(withPercents, percents.begin());
        for (; at != format.npos && at + 1 < format.size() && format[at + 1] == '@' && taken_ < arguments.size();
             at = nextPercent(withPercents, done_)) {
            put(format.substr(done_, at - done_));
            put(arguments[taken_++].text());
            done_ = at + 2;
        }
        isWhole_ = at == format.npos;
        if (isWhole_)
            put(format.substr(done_));
    }

    // Whether this is the whole format.
    bool isWhole() const noexcept { return isWhole_; }
    std::string_view text() const noexcept { return {buffer_.data(), static_cast<std::size_t>(out_ - buffer_.data())}; }
    // How many bytes of the format, up to the end of the last "%@", and how many arguments text() was made from.
    std::size_t formatSize() const noexcept { return done_; }
    std::size_t argumentCount() const noexcept { return taken_; }

private:
    // Whether the buffer has room for the format and all arguments; never if one is not a text.
    bool fits(std::string_view format, std::span<const FormatArgument> arguments) const noexcept {
        std::size_t size = format.size();
        for (const FormatArgument& argument : arguments)
            size += argument.kind() == Kind::text ? argument.text().size() : buffer_.size() + 1;
        return size <= buffer_.size();
    }
    static std::size_t nextPercent(std::string_view format, std::size_t from) noexcept {
        const bool isThere = from < format.size() && format[from] == '%'; // usually saves the call of find()
        return isThere ? from : format.find('%', from);
    }
    void put(std::string_view text) noexcept { out_ = detail::copy(text, out_); }

    std::array<char, 512> buffer_;
    char* out_ = buffer_.data();
    std::size_t done_ = 0, taken_ = 0;
    bool isWhole_ = false;
};

// Formats the rest of a format after its plain beginning.
class Formatter {
public:
    Formatter(std::string_view format, const Locale* locale, std::span<const FormatArgument> arguments) noexcept
        : format_(format), locale_(locale), arguments_(arguments), limit_(format.size() + largestGrowth) {}

    std::string run(const PlainBeginning& beginning) {
        out_.reserve(std::min(expectedSize(beginning), limit_));
        out_ = beginning.text();
        counter_ = ArgumentCounter(beginning.argumentCount());
        fill(beginning.formatSize());
        if (out_.size() > limit_)
            out_.resize(StringTables::internal::cutToSize(out_, limit_).size());
        return std::move(out_);
    }

private:
    std::size_t expectedSize(const PlainBeginning& beginning) const noexcept {
        static constexpr std::size_t numberSize = 32;
        std::size_t size = beginning.text().size() + format_.size() - beginning.formatSize();
        for (const FormatArgument& argument : arguments_.subspan(beginning.argumentCount()))
            size += argument.kind() == Kind::text ? argument.text().size() : numberSize;
        return size;
    }

    // Formats what follows the first `done` bytes of the format, until the text exceeds the limit.
    void fill(std::size_t done) {
        while (out_.size() <= limit_) {
            const auto placeholder = StringTables::nextPlaceholder(format_, done);
            if (!placeholder)
                break;
            put(format_.substr(done, placeholder->begin - done));
            done = placeholder->end;
            append(*placeholder);
        }
        put(format_.substr(done));
    }

    // Appends up to one byte more than the limit, which marks the text as too long.
    void put(std::string_view text) {
        if (out_.size() <= limit_)
            out_ += text.substr(0, limit_ + 1 - out_.size());
    }

    // Null for a missing argument.
    const FormatArgument* argument(std::size_t position) const noexcept {
        return position >= 1 && position <= arguments_.size() ? &arguments_[position - 1] : nullptr;
    }

    // A width or precision; no value when there is none. Negative values come from arguments.
    std::optional<std::int64_t> resolved(Placeholder::Size size, std::size_t position) const noexcept {
        if (size.from == Placeholder::Size::From::number)
            return size.value;
        const FormatArgument* const given = argument(position);
        return given != nullptr && given->kind() == Kind::integer ? std::optional(given->integer()) : std::nullopt;
    }
    // The magnitude of a width or precision, at most largestSize.
    static std::size_t boundedMagnitude(std::int64_t size) noexcept {
        static constexpr std::int64_t largest = largestSize;
        return static_cast<std::size_t>(std::clamp(size, -largest, largest) * (size < 0 ? -1 : 1));
    }

    void append(const Placeholder& placeholder) {
        const ArgumentCounter::Taken taken = counter_.take(placeholder);
        if (placeholder.kind == Placeholder::Kind::percent) {
            put("%");
            return;
        }
        const FormatArgument* const given = argument(taken.value);
        if (given == nullptr)
            return;
        const std::int64_t width = resolved(placeholder.width, taken.width).value_or(0);
        const std::int64_t precision = resolved(placeholder.precision, taken.precision).value_or(-1);
        const std::size_t begin = out_.size();
        const detail::Padding padding = appendArgument(
            {placeholder, precision < 0 ? std::nullopt : std::optional(boundedMagnitude(precision))}, *given);
        if (width != 0 && out_.size() <= limit_)
            pad(begin, boundedMagnitude(width), placeholder.leftAligned || width < 0, padding);
    }

    detail::Padding appendArgument(const detail::ResolvedPlaceholder& resolved, const FormatArgument& given) {
        const Placeholder& placeholder = resolved.placeholder;
        if (placeholder.kind == Placeholder::Kind::text) {
            putText(given, resolved.precision);
            return std::nullopt;
        }
        if (given.kind() == Kind::text) {
            put(given.text());
            return std::nullopt;
        }
        const bool isFloating = given.kind() == Kind::number;
        if (placeholder.kind == Placeholder::Kind::number)
            return detail::appendFloating(out_, resolved, pattern(),
                                          isFloating ? given.number() : static_cast<double>(given.integer()));
        const std::int64_t value = isFloating ? NSNumber(given.number()).int64Value() : given.integer();
        switch (placeholder.conversion) {
        case 'c':
            putCharacter(value);
            return std::nullopt;
        case 'd':
        case 'i':
        case 'u':
            return detail::appendDecimal(out_, resolved, pattern(), value);
        default:
            return detail::appendPlain(out_, resolved, value);
        }
    }

    void putText(const FormatArgument& given, std::optional<std::size_t> precision) {
        std::array<char, detail::scalarTextSize> buffer;
        const std::string_view text = textOf(given, buffer.data());
        put(precision ? firstCharacters(text, *precision) : text);
    }

    // `buffer`: of detail::scalarTextSize characters, for a number.
    static std::string_view textOf(const FormatArgument& given, char* buffer) noexcept {
        switch (given.kind()) {
        case Kind::integer:
            return detail::integerText(given.integer(), buffer);
        case Kind::number:
            return detail::floatingText(given.number(), buffer);
        default:
            return given.text();
        }
    }

    void putCharacter(std::int64_t value) {
        std::array<char, detail::scalarTextSize> buffer;
        constexpr std::uint32_t invalidCode = UINT32_MAX;
        const bool isCode = value >= 0 && value <= UINT32_MAX;
        put(detail::characterText(isCode ? static_cast<std::uint32_t>(value) : invalidCode, buffer.data()));
    }

    const Intl::NumberPattern& pattern() {
        if (!pattern_)
            pattern_ = detail::numberPattern((locale_ != nullptr ? *locale_ : Locale::current()).identifier(),
                                             Intl::NumberStyle::decimal);
        return *pattern_;
    }

    // Pads the text appended since `begin` to `width` characters.
    void pad(std::size_t begin, std::size_t width, bool leftAligned, const detail::Padding& padding) {
        const auto written = std::string_view(out_).substr(begin);
        const std::size_t characters = StringTables::internal::countCharacters(written);
        if (characters >= width)
            return;
        if (leftAligned) {
            out_.append(width - characters, ' ');
            return;
        }
        std::string filling;
        for (std::size_t i = characters; i < width; ++i)
            filling += padding ? padding->zero : std::string_view(" ");
        out_.insert(padding ? padding->at : begin, filling);
    }

    std::string out_;
    std::string_view format_;
    const Locale* locale_; // null: the user's current one, read when the first number needs it
    std::span<const FormatArgument> arguments_;
    std::size_t limit_; // the most bytes of the result
    ArgumentCounter counter_;
    detail::Kept<Intl::NumberPattern> pattern_; // loaded for the first number
};

} // namespace

std::string format(std::string_view format, const Locale& locale, std::span<const FormatArgument> arguments) {
    return detail::formattedText(format, {}, &locale, arguments);
}

} // namespace Foundation::String

namespace Foundation {

std::string detail::formattedPieces(std::string_view format, StringTables::PercentRange percents, const Locale* locale,
                                    std::span<const FormatArgument> arguments) {
    const String::PlainBeginning beginning(format, percents, arguments);
    if (beginning.isWhole())
        return std::string(beginning.text());
    return String::Formatter(format, locale, arguments).run(beginning);
}

} // namespace Foundation
