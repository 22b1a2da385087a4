#include "Check/Identifiers.h"

#include "Generator/ReservedNames.h"
#include <algorithm>
#include <string>

namespace Check {

namespace {

using Visit = std::function<void(std::string_view name, std::string_view qualifier)>;

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
                takePunctuator();
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

    void takePunctuator() {
        if (code_.substr(at_).starts_with("::")) {
            // A reserved name qualifies nothing: in `return ::b`, b is global.
            isQualified_ = !last_.empty() && !std::ranges::binary_search(Generator::Namer::reservedNames, last_);
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
