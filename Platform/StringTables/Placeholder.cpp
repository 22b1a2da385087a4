#include "StringTables/internal/Placeholder.h"

#include <algorithm>

namespace StringTables {

namespace {

// Reads the parts of a placeholder in order. A function that reads a part returns false if this is not a placeholder.
class Reader {
public:
    Reader(std::string_view format, std::size_t percent) noexcept : format_(format), at_(percent + 1) {
        out_.begin = percent;
    }

    bool read() noexcept {
        if (take('%')) {
            out_.end = at_;
            return true;
        }
        if (next() == '@') // "%@", the most frequent one
            return conversion();
        int number = 0;
        if (!position(number))
            return false;
        out_.position = static_cast<std::uint16_t>(number);
        flags();
        if (!size(out_.width) || (take('.') && !precision()))
            return false;
        length();
        return conversion();
    }
    const Placeholder& placeholder() const noexcept { return out_; }

private:
    char next() const noexcept { return at_ < format_.size() ? format_[at_] : '\0'; }
    // Consumes `c`, which is not NUL, if it is next.
    bool take(char c) noexcept {
        const bool is = next() == c;
        at_ += is;
        return is;
    }

    // Reads digits; false when there are more than `most`. No digits give 0.
    bool digits(int most, int& value) noexcept {
        value = 0;
        for (int count = 0; next() >= '0' && next() <= '9'; ++count, ++at_) {
            if (count == most)
                return false;
            value = value * 10 + (next() - '0');
        }
        return true;
    }

    // Reads a position such as "12$". Digits without the '$' are not consumed and leave `out` as it is. False for a
    // position of 0 or of more than four digits.
    bool position(int& out) noexcept {
        const std::size_t begin = at_;
        int number = 0;
        const bool few = digits(4, number);
        while (next() >= '0' && next() <= '9')
            ++at_;
        if (!take('$')) {
            at_ = begin;
            return true;
        }
        out = number;
        return few && number > 0;
    }

    void flags() noexcept {
        for (;; ++at_)
            switch (next()) {
            case '-':
                out_.leftAligned = true;
                break;
            case '+':
                out_.plusSign = true;
                break;
            case ' ':
                out_.spaceSign = true;
                break;
            case '#':
                out_.alternative = true;
                break;
            case '0':
                out_.zeroPadded = true;
                break;
            case '\'': // POSIX digit grouping; ignored, the locale decides
                break;
            default:
                return;
            }
    }

    // Reads a width, or a precision without its point.
    bool size(Placeholder::Size& out) noexcept {
        using From = Placeholder::Size::From;
        const std::size_t begin = at_;
        if (take('*')) {
            out.from = From::argument;
            return position(out.value);
        }
        if (!digits(6, out.value))
            return false;
        if (at_ != begin)
            out.from = From::number;
        return true;
    }

    // Reads what follows the point. A point alone is a precision of 0.
    bool precision() noexcept {
        if (!size(out_.precision))
            return false;
        if (out_.precision.from == Placeholder::Size::From::none)
            out_.precision.from = Placeholder::Size::From::number;
        return true;
    }

    void length() noexcept {
        if (take('h')) {
            out_.bits = take('h') ? 8 : 16;
        } else if (take('l')) {
            take('l');
        } else {
            constexpr std::string_view others = "qztjL"; // without effect: arguments have 64 bits
            if (next() != '\0' && others.find(next()) != others.npos)
                ++at_;
        }
    }

    bool conversion() noexcept {
        // Each conversion, and the one that it is read as ("%s" as "%@", "%D" as "%d"): texts, integers, numbers.
        constexpr std::string_view known = "@sSdiuxXocDUOCfFeEgGaA", read = "@@@diuxXocduocfFeEgGaA";
        const std::size_t found = next() == '\0' ? known.npos : known.find(next());
        if (found == known.npos)
            return false;
        out_.conversion = read[found];
        if (found < known.find('d'))
            out_.kind = Placeholder::Kind::text;
        else
            out_.kind = found < known.find('f') ? Placeholder::Kind::integer : Placeholder::Kind::number;
        out_.end = ++at_;
        return true;
    }

    std::string_view format_;
    std::size_t at_;
    Placeholder out_;
};

} // namespace

std::optional<Placeholder> nextPlaceholder(std::string_view format, std::size_t from) noexcept {
    for (std::size_t at = format.find('%', from); at != format.npos; at = format.find('%', at + 1))
        if (Reader reader(format, at); reader.read())
            return reader.placeholder();
    return std::nullopt;
}

std::string_view variableName(std::string_view format, const Placeholder& placeholder) noexcept {
    if (!format.substr(0, placeholder.end).ends_with("#@"))
        return {};
    const std::size_t end = format.find('@', placeholder.end);
    return end == format.npos ? std::string_view() : format.substr(placeholder.end, end - placeholder.end);
}

void FormatSignature::add(std::size_t position, Kind kind) {
    if (position == 0)
        return;
    const std::size_t count = std::min(position, mostArguments);
    if (arguments.size() < count)
        arguments.resize(count);
    std::optional<Kind>& known = arguments[count - 1];
    if (!known)
        known = kind;
    else if (*known != kind && !conflict && position < mostArguments) // the last one represents several positions
        conflict = {position, *known, kind};
}

void FormatSignature::add(const Placeholder& placeholder, const ArgumentCounter::Taken& taken) {
    add(taken.width, Kind::integer);
    add(taken.precision, Kind::integer);
    add(taken.value, placeholder.kind);
}

void FormatSignature::addUnknownVariable(std::string_view name) {
    if (unknownVariable.empty())
        unknownVariable = name;
}

bool hasLonePercent(std::string_view format) noexcept {
    std::size_t at = 0;
    while (const auto found = nextPlaceholder(format, at)) {
        if (format.find('%', at) < found->begin)
            return true;
        at = found->end;
    }
    return format.find('%', at) != format.npos;
}

FormatSignature signatureOf(std::string_view format) {
    FormatSignature signature;
    ArgumentCounter counter;
    ArgumentStyle style;
    std::size_t at = 0;
    while (const auto found = nextPlaceholder(format, at)) {
        at = found->end;
        signature.add(*found, counter.take(*found));
        style.add(*found);
        signature.addUnknownVariable(variableName(format, *found));
    }
    signature.mixesPositions = style.isMixed();
    signature.hasLonePercent = hasLonePercent(format);
    return signature;
}

} // namespace StringTables
