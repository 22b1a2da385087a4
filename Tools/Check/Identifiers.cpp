#include "Check/Identifiers.h"

#include <algorithm>
#include <array>
#include <string>

namespace Check {

namespace {

using Visit = std::function<void(std::string_view name, std::string_view qualifier)>;

// The keywords of C++20, sorted. None of them qualifies a name: in `return ::b`, b is global.
constexpr auto keywords = std::to_array<std::string_view>(
    {"alignas",     "alignof",  "and",        "and_eq",    "asm",       "auto",         "bitand",
     "bitor",       "bool",     "break",      "case",      "catch",     "char",         "char16_t",
     "char32_t",    "char8_t",  "class",      "co_await",  "co_return", "co_yield",     "compl",
     "concept",     "const",    "const_cast", "consteval", "constexpr", "constinit",    "continue",
     "decltype",    "default",  "delete",     "do",        "double",    "dynamic_cast", "else",
     "enum",        "explicit", "export",     "extern",    "false",     "float",        "for",
     "friend",      "goto",     "if",         "inline",    "int",       "long",         "mutable",
     "namespace",   "new",      "noexcept",   "not",       "not_eq",    "nullptr",      "operator",
     "or",          "or_eq",    "private",    "protected", "public",    "register",     "reinterpret_cast",
     "requires",    "return",   "short",      "signed",    "sizeof",    "static",       "static_assert",
     "static_cast", "struct",   "switch",     "template",  "this",      "thread_local", "throw",
     "true",        "try",      "typedef",    "typeid",    "typename",  "union",        "unsigned",
     "using",       "virtual",  "void",       "volatile",  "wchar_t",   "while",        "xor",
     "xor_eq"});
static_assert(std::ranges::is_sorted(keywords));

constexpr bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}
constexpr bool beginsName(char c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
constexpr bool isInName(char c) noexcept {
    return beginsName(c) || isDigit(c);
}

class Scanner {
public:
    Scanner(std::string_view code, const Visit& visit) : code_(code), visit_(visit) {}

    void run() {
        while (at_ < code_.size()) {
            const std::string_view rest = code_.substr(at_);
            if (beginsName(rest.front()))
                takeName();
            else if (isDigit(rest.front()))
                takeNumber();
            else if (rest.front() == '"' || rest.front() == '\'')
                takeLiteral();
            else if (rest.starts_with("//"))
                skipTo('\n');
            else if (rest.starts_with("/*"))
                takeBlockComment();
            else
                takeMark();
        }
    }

private:
    static bool isRawPrefix(std::string_view name) {
        return name == "R" || name == "LR" || name == "uR" || name == "UR" || name == "u8R";
    }

    void takeName() {
        const std::size_t begin = at_;
        while (at_ < code_.size() && isInName(code_[at_]))
            ++at_;
        const std::string_view name = code_.substr(begin, at_ - begin);
        if (at_ < code_.size() && code_[at_] == '"' && isRawPrefix(name))
            return takeRawLiteral();
        visit_(name, isQualified_ ? last_ : std::string_view());
        last_ = name;
        isQualified_ = false;
    }

    // Digits may be separated by quotation marks: 1'000.
    void takeNumber() {
        while (at_ < code_.size() && (isInName(code_[at_]) || code_[at_] == '.' || code_[at_] == '\''))
            ++at_;
        forget();
    }

    void takeLiteral() {
        const char mark = code_[at_++];
        while (at_ < code_.size() && code_[at_] != mark && code_[at_] != '\n')
            at_ += code_[at_] == '\\' ? 2U : 1U;
        ++at_;
        forget();
    }

    // R"mark( ... )mark"
    void takeRawLiteral() {
        const std::size_t open = std::min(code_.find('(', at_), code_.size());
        const std::string end = ")" + std::string(code_.substr(at_ + 1, open - at_ - 1)) + '"';
        const std::size_t close = code_.find(end, open);
        at_ = close == code_.npos ? code_.size() : close + end.size();
        forget();
    }

    void takeBlockComment() {
        const std::size_t end = code_.find("*/", at_ + 2);
        at_ = end == code_.npos ? code_.size() : end + 2;
    }

    void skipTo(char mark) { at_ = std::min(code_.find(mark, at_), code_.size()); }

    void takeMark() {
        if (code_.substr(at_).starts_with("::")) {
            isQualified_ = !last_.empty() && !std::ranges::binary_search(keywords, last_);
            at_ += 2;
            return;
        }
        const char c = code_[at_++];
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r')
            forget();
    }

    // Forgets the identifier that could have qualified the next one.
    void forget() {
        last_ = {};
        isQualified_ = false;
    }

    std::string_view code_;
    const Visit& visit_;
    std::size_t at_ = 0;
    std::string_view last_;    // the last identifier, if only white space, comments and "::" follow it
    bool isQualified_ = false; // whether it qualifies the next one
};

} // namespace

void forEachIdentifier(std::string_view code, const Visit& visit) {
    Scanner(code, visit).run();
}

} // namespace Check
