#include "Exchange/PoSyntax.h"

#include "StringTables/internal/TextEscapes.h"
#include "StringTables/internal/Unicode.h"
#include <utility>

namespace Exchange {

namespace {

class Reader {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {
        constexpr std::string_view mark = "\xEF\xBB\xBF";
        if (rest_.starts_with(mark))
            rest_.remove_prefix(mark.size());
    }

    Runtime::Result<std::vector<PoText>> read() {
        while (!error_ && takeLine())
            readLine();
        if (!error_)
            finish();
        if (error_)
            return *std::move(error_);
        return std::move(texts_);
    }

private:
    // The parts of an entry in order.
    enum class Part { none, context, source, plural, target };

    bool takeLine() {
        if (rest_.empty())
            return false;
        const std::size_t size = std::min(rest_.find('\n'), rest_.size());
        wholeLine_ = rest_.substr(0, size);
        line_ = wholeLine_;
        rest_.remove_prefix(std::min(size + 1, rest_.size()));
        ++number_;
        if (const std::size_t invalid = StringTables::internal::firstInvalidUtf8(line_); invalid != line_.npos) {
            line_.remove_prefix(invalid);
            fail("not UTF-8");
        }
        return true;
    }

    void fail(std::string message) {
        const std::string_view before = wholeLine_.substr(0, wholeLine_.size() - line_.size());
        const std::size_t column = StringTables::internal::countCharacters(before) + 1;
        if (!error_)
            error_ = {.message = std::move(message), .line = number_, .column = column};
    }

    void skipBlanks() { line_.remove_prefix(std::min(line_.find_first_not_of(" \t\r\f\v"), line_.size())); }

    bool take(std::string_view word) {
        if (!line_.starts_with(word))
            return false;
        line_.remove_prefix(word.size());
        return true;
    }

    void readLine() {
        skipBlanks();
        if (error_ || line_.empty())
            return;
        if (line_[0] == '#')
            return readComment();
        if (line_[0] == '"')
            return part_ == Part::none ? fail("a string without a keyword") : readStrings();
        readKeyword();
    }

    void readComment() {
        if (take("#~")) {
            if (part_ == Part::none)
                current_ = {}; // the flags before it belong to the obsolete entry
            return;
        }
        if (part_ == Part::target) // a comment belongs to the entry after it
            finish();
        if (!take("#,"))
            return;
        while (!line_.empty()) {
            const std::size_t size = std::min(line_.find(','), line_.size());
            current_.isFuzzy |= trimmed(line_.substr(0, size)) == "fuzzy";
            line_.remove_prefix(std::min(size + 1, line_.size()));
        }
    }

    void readKeyword() {
        if (take("msgctxt"))
            begin(Part::context);
        else if (take("msgid_plural"))
            begin(Part::plural);
        else if (take("msgid"))
            begin(Part::source);
        else if (take("msgstr"))
            begin(Part::target);
        else
            return fail("expected msgctxt, msgid, msgid_plural, msgstr or a comment");
        if (error_)
            return;
        skipBlanks();
        if (line_.empty() || line_[0] != '"')
            return fail("expected a string");
        if (part_ == Part::source)
            current_.line = number_;
        readStrings();
    }

    bool mayBegin(Part part) const {
        switch (part) {
        case Part::context:
            return part_ == Part::none;
        case Part::source:
            return part_ <= Part::context;
        case Part::plural:
            return part_ == Part::source;
        default: // a second msgstr belongs to a plural
            return part_ >= Part::source && (part_ != Part::target || current_.plural);
        }
    }
    void begin(Part part) {
        const bool isNew = part == Part::context || part == Part::source;
        if (isNew && part_ == Part::target)
            finish();
        if (!mayBegin(part))
            return fail("not expected here");
        part_ = part;
        switch (part) {
        case Part::context:
            current_.context.emplace();
            break;
        case Part::plural:
            current_.plural.emplace();
            break;
        case Part::target:
            current_.targets.emplace_back();
            if (current_.plural && !take("[" + std::to_string(current_.targets.size() - 1) + "]"))
                fail("expected the form " + std::to_string(current_.targets.size() - 1) + " of msgstr");
            break;
        case Part::source:
        case Part::none:
            break;
        }
    }

    // Where the strings of the current part belong.
    std::string& text() {
        switch (part_) {
        case Part::context:
            return *current_.context;
        case Part::plural:
            return *current_.plural;
        case Part::target:
            return current_.targets.back();
        case Part::source:
        case Part::none:
            break;
        }
        return current_.source;
    }

    // Adjacent strings are concatenated.
    void readStrings() {
        for (skipBlanks(); !error_ && !line_.empty(); skipBlanks()) {
            if (!take("\""))
                return fail("expected a string or the end of the line");
            readString();
        }
    }

    void readString() {
        std::string& out = text();
        for (;;) {
            const std::size_t size = std::min(line_.find_first_of("\"\\"), line_.size());
            out += line_.substr(0, size);
            line_.remove_prefix(size);
            if (line_.empty())
                return fail("the string is not closed on its line");
            if (take("\""))
                return;
            if (!readEscape(out))
                return fail("bad escape");
        }
    }

    bool readEscape(std::string& out) {
        line_.remove_prefix(1);
        if (line_.empty())
            return false;
        if (const std::size_t letter = poEscapeLetters.find(line_[0]); letter != poEscapeLetters.npos) {
            out += poEscapedCharacters[letter];
            line_.remove_prefix(1);
            return true;
        }
        return take("x") ? readDigits(out, 16, 2) : readDigits(out, 8, 3);
    }

    bool readDigits(std::string& out, int base, std::size_t most) {
        int value = 0;
        std::size_t count = 0;
        for (; count < most && !line_.empty(); ++count) {
            const int digit = StringTables::internal::hexDigit(line_[0]);
            if (digit < 0 || digit >= base)
                break;
            value = value * base + digit;
            line_.remove_prefix(1);
        }
        constexpr int firstBeyondAscii = 0x80; // from here on, a single byte is not valid UTF-8
        out += static_cast<char>(value);
        return count != 0 && value < firstBeyondAscii;
    }

    // Stores the current entry.
    void finish() {
        if (part_ == Part::target)
            texts_.push_back(std::move(current_));
        else if (part_ != Part::none)
            return fail("the entry has no msgstr");
        current_ = {};
        part_ = Part::none;
    }

    std::string_view rest_; // the lines after the current one
    std::string_view wholeLine_;
    std::string_view line_;  // what is left of it
    std::size_t number_ = 0; // of the line
    PoText current_;
    Part part_ = Part::none;
    std::vector<PoText> texts_;
    std::optional<Runtime::Error> error_;
};

} // namespace

Runtime::Result<std::vector<PoText>> readPoTexts(std::string_view bytes) {
    return Reader(bytes).read();
}

} // namespace Exchange
