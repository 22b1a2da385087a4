// Reads the text form of tables: "key" = "text";
#include "StringTables/internal/Contents.h"
#include "StringTables/internal/TextEscapes.h"
#include "StringTables/internal/TextSyntax.h"
#include "StringTables/internal/Unicode.h"
#include <array>

namespace StringTables::internal {

namespace {

enum CharacterClass : std::uint8_t { other, space, bare }; // bare: can be in a string without quotation marks

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

// table := entries | '{' entries '}'       entry := string ['=' value] ';'; the last ';' may be missing
// value := string | '{' entries '}' | '(' value, ... ')' | '<' hexadecimal digits '>'
// An entry without a value has its key as text. Recursive descent: each function starts at the first character of its
// construct and stops after the last; it returns false after setting `error_`. The source ends in the NUL of
// std::string and contains no other, so one character can be read without a check for the end.
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
    bool entry(std::size_t depth, bool isInBraces);
    bool value(std::string_view& text, std::size_t depth, const char*& skipped);
    bool array(std::size_t depth);
    bool data();
    bool string(std::string_view& out, const char* wanted);
    bool quotedString(std::string_view& out);
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
    constexpr std::size_t shortEntry = 48, fewest = 8, most = 65536; // an estimate; a table may have more entries
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

// Reads entries up to the brace that closes the one at `open`, or to the end of the file if `open` is null.
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
        if (!entry(depth, open != nullptr))
            return false;
    }
}

bool TextReader::entry(std::size_t depth, bool isInBraces) {
    const char* const begin = at_;
    std::string_view key;
    if (!string(key, "a key") || !blanks())
        return false;
    std::string_view text = key;
    const char* skipped = nullptr;
    const bool hasValue = *at_ == '=';
    if (hasValue) {
        ++at_;
        if (!blanks() || !value(text, depth, skipped) || !blanks())
            return false;
    }
    if (*at_ == ';')
        ++at_;
    else if (at_ != end_ && !(isInBraces && *at_ == '}'))
        return fail(at_, (!hasValue ? "expected '=' or ';' after the key "
                          : skipped ? "expected ';' after the value of "
                                    : "expected ';' after the text of ") +
                             quoted(key));
    if (depth > 0) // in a dictionary that is skipped
        return true;
    if (skipped)
        contents_.addSkipped(key, skipped, offset(begin));
    else if (!contents_.add(key, text, offset(begin)))
        return fail(begin, tooManyEntries);
    return true;
}

// A value that is not a text is validated and skipped; `skipped` is then set to its description.
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
        return fail(open, "the data is never closed");
    return *at_++ == '>' || fail(at_ - 1, "expected hexadecimal digits or '>' in data");
}

bool TextReader::string(std::string_view& out, const char* wanted) {
    if (*at_ == '"' || *at_ == '\'')
        return quotedString(out);
    const char* const begin = at_;
    // A comment may follow a bare string without a space.
    while (is(bare, *at_) && !beginsComment(at_))
        ++at_;
    out = between(begin, at_);
    if (out.empty())
        return fail(at_, std::string(at_ == end_ ? "the file ends where " : "expected ") + wanted +
                             (at_ == end_ ? " is expected" : ""));
    return true;
}

bool TextReader::quotedString(std::string_view& out) {
    const auto [close, firstEscape] = quotedEnd(at_, end_);
    if (close == end_)
        return fail(at_, "the string is never closed");
    out = between(at_ + 1, close);
    at_ = close + 1;
    if (firstEscape == close)
        return true;
    const Unescaped unescaped = unescape(out, contents_.arena.reserve(out.size()));
    if (unescaped.message)
        return fail(unescaped.at, unescaped.message);
    out = contents_.arena.keep(unescaped.end);
    return true;
}

// Skips white space, including Unicode's line and paragraph separators, and comments.
bool TextReader::blanks() {
    for (;;) {
        while (is(space, *at_))
            ++at_;
        if (beginsComment(at_)) {
            const char* const end = commentEnd(at_, end_);
            if (!end)
                return fail(at_, "the comment is never closed");
            at_ = end;
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
