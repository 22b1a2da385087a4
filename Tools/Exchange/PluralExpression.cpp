#include "Exchange/PluralExpression.h"

#include "Intl/internal/PluralRules.h"
#include <algorithm>
#include <array>

namespace Exchange {

namespace {

// Recursive descent. After an error all functions return quickly.
class Evaluator {
public:
    Evaluator(std::string_view text, std::uint64_t n) : text_(text), n_(n) {}

    std::optional<std::uint64_t> value() {
        const std::uint64_t result = choice();
        skipBlanks();
        return isWrong_ || at_ != text_.size() ? std::nullopt : std::optional(result);
    }

private:
    struct Operator {
        std::string_view sign;
        int level; // precedence; higher levels bind more tightly
        std::uint64_t (*apply)(std::uint64_t left, std::uint64_t right);
    };
    using Number = std::uint64_t;
    // Longer signs come before their prefixes.
    static constexpr std::array<Operator, 13> operators = {{
        {"||", 0, [](Number a, Number b) -> Number { return a != 0 || b != 0; }},
        {"&&", 1, [](Number a, Number b) -> Number { return a != 0 && b != 0; }},
        {"==", 2, [](Number a, Number b) -> Number { return a == b; }},
        {"!=", 2, [](Number a, Number b) -> Number { return a != b; }},
        {"<=", 3, [](Number a, Number b) -> Number { return a <= b; }},
        {">=", 3, [](Number a, Number b) -> Number { return a >= b; }},
        {"<", 3, [](Number a, Number b) -> Number { return a < b; }},
        {">", 3, [](Number a, Number b) -> Number { return a > b; }},
        {"+", 4, [](Number a, Number b) -> Number { return a + b; }},
        {"-", 4, [](Number a, Number b) -> Number { return a - b; }},
        {"*", 5, [](Number a, Number b) -> Number { return a * b; }},
        {"/", 5, [](Number a, Number b) -> Number { return a / b; }},
        {"%", 5, [](Number a, Number b) -> Number { return a % b; }},
    }};
    static constexpr int highest = 5;

    void skipBlanks() {
        while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t' || text_[at_] == '\n'))
            ++at_;
    }
    bool take(std::string_view sign) {
        skipBlanks();
        if (!text_.substr(at_).starts_with(sign))
            return false;
        at_ += sign.size();
        return true;
    }
    std::uint64_t wrong() {
        isWrong_ = true;
        return 0;
    }

    std::uint64_t choice() {
        if (++depth_ > maxExpressionDepth || isWrong_)
            return wrong();
        std::uint64_t result = binary(0);
        if (take("?")) {
            const std::uint64_t first = choice();
            const std::uint64_t second = take(":") ? choice() : wrong();
            result = result != 0 ? first : second;
        }
        --depth_;
        return result;
    }

    std::uint64_t binary(int level) {
        if (level > highest)
            return unary();
        std::uint64_t left = binary(level + 1);
        while (!isWrong_) {
            const auto* const found = std::ranges::find_if(
                operators, [&](const Operator& each) { return each.level == level && take(each.sign); });
            if (found == operators.end())
                break;
            left = combined(*found, left, binary(level + 1));
        }
        return left;
    }

    std::uint64_t combined(const Operator& by, std::uint64_t left, std::uint64_t right) {
        const bool isDivision = by.sign == "/" || by.sign == "%";
        return right == 0 && isDivision ? wrong() : by.apply(left, right);
    }

    std::uint64_t unary() {
        std::size_t negations = 0;
        while (take("!"))
            ++negations;
        const std::uint64_t value = operand();
        if (negations == 0)
            return value;
        const bool isEven = negations % 2 == 0;
        return (value != 0) == isEven ? 1 : 0;
    }

    std::uint64_t operand() {
        if (take("n"))
            return n_;
        if (take("(")) {
            const std::uint64_t value = choice();
            return take(")") ? value : wrong();
        }
        const std::size_t begin = at_;
        std::uint64_t value = 0;
        for (; at_ < text_.size() && text_[at_] >= '0' && text_[at_] <= '9'; ++at_)
            value = value * 10 + static_cast<std::uint64_t>(text_[at_] - '0');
        return at_ == begin ? wrong() : value;
    }

    std::string_view text_;
    std::uint64_t n_;
    std::size_t at_ = 0;
    int depth_ = 0;
    bool isWrong_ = false;
};

} // namespace

std::optional<std::uint64_t> evaluated(std::string_view expression, std::uint64_t n) {
    return Evaluator(expression, n).value();
}

std::optional<std::vector<std::optional<Intl::PluralCategory>>>
categoriesOfForms(std::string_view expression, std::size_t count, std::string_view language) {
    constexpr std::uint64_t last = 200; // most rules depend on the last two digits only
    const Intl::PluralRules rules(language);
    std::vector<std::optional<Intl::PluralCategory>> categories(count);
    for (std::uint64_t n = 0; n <= last; ++n) {
        const auto form = evaluated(expression, n);
        if (!form || *form >= count)
            return std::nullopt;
        const Intl::PluralCategory category = rules.category({.i = n});
        if (categories[*form].value_or(category) != category)
            return std::nullopt;
        categories[*form] = category;
    }
    // Some languages have separate forms for thousands and millions.
    for (const std::uint64_t n : {std::uint64_t{1000}, std::uint64_t{100'000}, std::uint64_t{1'000'000}})
        if (const auto form = evaluated(expression, n); form && *form < count && !categories[*form])
            categories[*form] = rules.category({.i = n});
    return categories;
}

} // namespace Exchange
