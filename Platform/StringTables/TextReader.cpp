#include "StringTables/internal/Contents.h"
#include "StringTables/internal/Scan.h"
#include "StringTables/internal/Unicode.h"
#include <array>

namespace StringTables::internal {

namespace {

enum CharacterClass : std::uint8_t { other, space, bare };

constexpr auto classes = [] {
    std::array<std::uint8_t, 256> of{};
    for (unsigned char c = '\t'; c <= '\r'; ++c)
        of[c] = space;
    of[static_cast<unsigned char>(' ')] = space;
    for (const char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_$/:.-"))
        of[static_cast<unsigned char>(c)] = bare;
    return of;
}();
constexpr bool is(CharacterClass wanted, char c) noexcept {
    return classes[static_cast<unsigned char>(c)] == wanted;
}

// Octal escapes are bytes of the NEXTSTEP character set, which is ASCII below 0x80; 0xFE and 0xFF are no characters.
constexpr char16_t nextstep[0x7E] = {
    0x00A0, 0x00C0, 0x00C1, 0x00C2, 0x00C3, 0x00C4, 0x00C5, 0x00C7, 0x00C8, 0x00C9, 0x00CA, 0x00CB, 0x00CC, 0x00CD,
    0x00CE, 0x00CF, 0x00D0, 0x00D1, 0x00D2, 0x00D3, 0x00D4, 0x00D5, 0x00D6, 0x00D9, 0x00DA, 0x00DB, 0x00DC, 0x00DD,
    0x00DE, 0x00B5, 0x00D7, 0x00F7, 0x00A9, 0x00A1, 0x00A2, 0x00A3, 0x2044, 0x00A5, 0x0192, 0x00A7, 0x00A4, 0x2019,
    0x201C, 0x00AB, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x00AE, 0x2013, 0x2020, 0x2021, 0x00B7, 0x00A6, 0x00B6, 0x2022,
    0x201A, 0x201E, 0x201D, 0x00BB, 0x2026, 0x2030, 0x00AC, 0x00BF, 0x00B9, 0x02CB, 0x00B4, 0x02C6, 0x02DC, 0x00AF,
    0x02D8, 0x02D9, 0x00A8, 0x00B2, 0x02DA, 0x00B8, 0x00B3, 0x02DD, 0x02DB, 0x02C7, 0x2014, 0x00B1, 0x00BC, 0x00BD,
    0x00BE, 0x00E0, 0x00E1, 0x00E2, 0x00E3, 0x00E4, 0x00E5, 0x00E7, 0x00E8, 0x00E9, 0x00EA, 0x00EB, 0x00EC, 0x00C6,
    0x00ED, 0x00AA, 0x00EE, 0x00EF, 0x00F0, 0x00F1, 0x0141, 0x00D8, 0x0152, 0x00BA, 0x00F2, 0x00F3, 0x00F4, 0x00F5,
    0x00F6, 0x00E6, 0x00F9, 0x00FA, 0x00FB, 0x0131, 0x00FC, 0x00FD, 0x0142, 0x00F8, 0x0153, 0x00DF, 0x00FE, 0x00FF};

constexpr int hexDigit(char c) noexcept {
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// table := entries | '{' entries '}'       entry := string ['=' value] ';'; the last ';' may be missing
// value := string | '{' entries '}' | '(' value, ... ')' | '<' hexadecimal digits '>'
// Recursive descent. Each function begins where its piece does, with blanks taken off, and ends behind the piece; false
// means that `error` says why. The source ends in the zero of std::string and holds no other, so that one character
// may be looked at without asking for the end.
class TextReader {
public:
    explicit TextReader(Contents& contents)
        : contents_(contents), begin_(contents.source.data()), at_(begin_ + contents.begin),
          end_(begin_ + contents.source.size()) {}

    Runtime::Result<void> read() {
        if (!isText() || !table())
            return std::move(error_);
        return {};
    }

private:
    bool isText();
    bool table();
    bool entries(std::size_t depth, const char* open);
    bool entry(std::size_t depth, bool braces);
    bool value(std::string_view& text, std::size_t depth, const char*& skipped);
    bool array(std::size_t depth);
    bool data();
    bool string(std::string_view& out, const char* wanted);
    bool quotedString(std::string_view& out);
    bool unescape(std::string_view raw, std::string_view& out);
    bool escape(const char*& in, char*& out);
    bool unicodeEscape(const char*& in, char*& out);
    bool octalEscape(const char*& in, char*& out);
    bool blanks();

    bool fail(const char* at, std::string message) {
        error_ = contents_.errorAt(offset(at), std::move(message));
        return false;
    }
    std::size_t offset(const char* at) const noexcept { return static_cast<std::size_t>(at - begin_); }
    static std::string_view between(const char* from, const char* to) noexcept {
        return {from, static_cast<std::size_t>(to - from)};
    }

    Contents& contents_;
    const char* begin_;
    const char* at_;
    const char* end_;
    Runtime::Error error_;
};

bool TextReader::isText() {
    const std::string_view all = contents_.source;
    if (const std::size_t zero = all.find('\0'); zero != all.npos)
        return fail(begin_ + zero, "a NUL character");
    if (const std::size_t invalid = firstInvalidUtf8(all); invalid != all.npos)
        return fail(begin_ + invalid, "not UTF-8");
    return true;
}

bool TextReader::table() {
    constexpr std::size_t shortEntry = 48, fewest = 8, most = 65536;
    contents_.entries.reserve(std::clamp(contents_.source.size() / shortEntry, fewest, most));
    if (!blanks())
        return false;
    if (*at_ != '{')
        return entries(0, nullptr);
    const char* const open = at_++;
    if (!entries(0, open) || !blanks())
        return false;
    return at_ == end_ || fail(at_, "text after the table's closing brace");
}

// Up to the brace that closes `open`, or to the end of the file.
bool TextReader::entries(std::size_t depth, const char* open) {
    for (;;) {
        if (!blanks())
            return false;
        if (at_ == end_)
            return !open || fail(open, "the brace is never closed");
        if (open && *at_ == '}') {
            ++at_;
            return true;
        }
        if (!entry(depth, open))
            return false;
    }
}

bool TextReader::entry(std::size_t depth, bool braces) {
    const char* const begin = at_;
    std::string_view key;
    if (!string(key, "a key") || !blanks())
        return false;
    std::string_view text = key;
    const char* skipped = nullptr;
    const bool alone = *at_ != '=';
    if (!alone) {
        ++at_;
        if (!blanks() || !value(text, depth, skipped) || !blanks())
            return false;
    }
    if (*at_ == ';')
        ++at_;
    else if (at_ != end_ && !(braces && *at_ == '}'))
        return fail(at_,
                    alone ? "expected '=' or ';' after the key " + quoted(key)
                          : "expected ';' after the " + std::string(skipped ? "value" : "text") + " of " + quoted(key));
    if (depth > 0)
        return true;
    if (skipped)
        contents_.skipped(key, skipped, offset(begin));
    else if (!contents_.add(key, text, offset(begin)))
        return fail(begin, tooManyEntries);
    return true;
}

// A value that is no text is checked and passed over; `skipped` then says what it is.
bool TextReader::value(std::string_view& text, std::size_t depth, const char*& skipped) {
    if (depth == Table::maxDepth)
        return fail(at_, nestedTooDeeply);
    switch (*at_) {
    case '{':
        skipped = "a dictionary";
        return entries(depth + 1, at_++);
    case '(':
        skipped = "an array";
        return array(depth + 1);
    case '<':
        skipped = "data";
        return data();
    case '"':
        return quotedString(text);
    default:
        return string(text, "a value");
    }
}

bool TextReader::array(std::size_t depth) {
    const char* const open = at_++;
    for (;;) {
        std::string_view text;
        const char* skipped = nullptr;
        if (!blanks())
            return false;
        if (*at_ != ')' && (!value(text, depth, skipped) || !blanks()))
            return false;
        if (*at_ == ')') {
            ++at_;
            return true;
        }
        if (at_ == end_)
            return fail(open, "the parenthesis is never closed");
        if (*at_++ != ',')
            return fail(at_ - 1, "expected ',' or ')' in an array");
    }
}

bool TextReader::data() {
    const char* const open = at_++;
    while (is(space, *at_) || hexDigit(*at_) >= 0)
        ++at_;
    if (at_ == end_)
        return fail(open, "the data are never closed");
    return *at_++ == '>' || fail(at_ - 1, "expected hexadecimal digits or '>' in data");
}

bool TextReader::string(std::string_view& out, const char* wanted) {
    if (*at_ == '"' || *at_ == '\'')
        return quotedString(out);
    const char* const begin = at_;
    // A comment may begin right behind what is not quoted.
    while (is(bare, *at_) && !(*at_ == '/' && (at_[1] == '/' || at_[1] == '*')))
        ++at_;
    out = between(begin, at_);
    if (out.empty())
        return fail(at_, std::string(at_ == end_ ? "the file ends where " : "expected ") + wanted +
                             (at_ == end_ ? " is expected" : ""));
    return true;
}

bool TextReader::quotedString(std::string_view& out) {
    const char quote = *at_;
    const char* const begin = at_ + 1;
    const char* stop = findEither(begin, end_, quote, '\\');
    const bool plain = *stop == quote;
    while (*stop == '\\') // what it protects is no end
        stop = findEither(std::min(stop + 2, end_), end_, quote, '\\');
    if (stop == end_)
        return fail(at_, "the string is never closed");
    at_ = stop + 1;
    out = between(begin, stop);
    return plain || unescape(out, out);
}

bool TextReader::unescape(std::string_view raw, std::string_view& out) {
    const char* in = raw.data();
    const char* const end = in + raw.size();
    char* to = contents_.arena.room(raw.size()); // no escape is shorter than its character
    while (in != end) {
        const auto* found = static_cast<const char*>(std::memchr(in, '\\', static_cast<std::size_t>(end - in)));
        const char* const stop = found ? found : end;
        to = std::copy(in, stop, to);
        in = stop;
        if (in != end && !escape(in, to))
            return false;
    }
    out = contents_.arena.keep(to);
    return true;
}

// `in` is at the backslash, which something follows.
bool TextReader::escape(const char*& in, char*& out) {
    constexpr std::string_view letters = "abfnrtv", characters = "\a\b\f\n\r\t\v";
    const char c = in[1];
    if (c == 'U')
        return unicodeEscape(in, out);
    if (c >= '0' && c <= '7')
        return octalEscape(in, out);
    const std::size_t letter = letters.find(c);
    *out++ = letter != letters.npos ? characters[letter] : c; // of a longer character the rest is copied later
    in += 2;
    return true;
}

// The unit written as \U and four digits at `at`, or -1. Reading stops at the first character that is no digit, at the
// latest at the string's closing mark.
std::int32_t escapedUnit(const char* at) noexcept {
    if (at[0] != '\\' || at[1] != 'U')
        return -1;
    std::int32_t unit = 0;
    for (int i = 2; i < 6; ++i) {
        const int digit = hexDigit(at[i]);
        if (digit < 0)
            return -1;
        unit = unit * 16 + digit;
    }
    return unit;
}

bool TextReader::unicodeEscape(const char*& in, char*& out) {
    const std::int32_t unit = escapedUnit(in);
    if (unit < 0)
        return fail(in, "bad escape: \\U takes four hexadecimal digits");
    auto code = static_cast<char32_t>(unit);
    std::size_t length = 6;
    if (isHighSurrogate(code)) {
        const auto low = static_cast<char32_t>(escapedUnit(in + length));
        if (isLowSurrogate(low)) {
            code = joinSurrogates(code, low);
            length *= 2;
        }
    }
    if (isHighSurrogate(code) || isLowSurrogate(code))
        return fail(in, "bad escape: a surrogate without its other half");
    out = putUtf8(out, code);
    in += length;
    return true;
}

bool TextReader::octalEscape(const char*& in, char*& out) {
    const char* digit = in + 1;
    unsigned byte = 0;
    for (; digit != in + 4 && *digit >= '0' && *digit <= '7'; ++digit)
        byte = byte * 8 + static_cast<unsigned>(*digit - '0');
    if (byte >= 0x80 + std::size(nextstep))
        return fail(in, "bad escape: no character has this octal number");
    out = putUtf8(out, byte < 0x80 ? byte : nextstep[byte - 0x80]);
    in = digit;
    return true;
}

// Takes off white space and comments.
bool TextReader::blanks() {
    for (;;) {
        while (is(space, *at_))
            ++at_;
        if (*at_ == '/' && at_[1] == '/') {
            at_ = findEither(at_ + 2, end_, '\n', '\r');
        } else if (*at_ == '/' && at_[1] == '*') {
            const std::size_t close = between(at_ + 2, end_).find("*/");
            if (close == std::string_view::npos)
                return fail(at_, "the comment is never closed");
            at_ += close + 4;
        } else if (const std::string_view next = between(at_, end_);
                   *at_ == '\xE2' && (next.starts_with("\u2028") || next.starts_with("\u2029"))) {
            at_ += 3;
        } else {
            return true;
        }
    }
}

} // namespace

Runtime::Result<void> readText(Contents& contents) {
    return TextReader(contents).read();
}

} // namespace StringTables::internal
