// Generates code for the cardinal plural rules of all languages: each rule set is a case of a switch.
#include "Precompute/Precompute.h"

#include "Intl/internal/PluralCategory.h"
#include <algorithm>
#include <sstream>
#include <unicode/localpointer.h>
#include <unicode/unistr.h>
#include <unicode/ures.h>
#include <vector>

namespace Intl::Precompute {

namespace {

using Bundle = icu::LocalUResourceBundlePointer;

void check(UErrorCode status) {
    if (U_FAILURE(status))
        fail(std::string("ICU's plural rules: ") + u_errorName(status));
}

Bundle child(const Bundle& parent, const char* key) {
    UErrorCode status = U_ZERO_ERROR;
    Bundle found(ures_getByKey(parent.getAlias(), key, nullptr, &status));
    check(status);
    return found;
}

// The texts of a table by key.
std::map<std::string, std::string> texts(const Bundle& table) {
    std::map<std::string, std::string> out;
    UErrorCode status = U_ZERO_ERROR;
    while (ures_hasNext(table.getAlias())) {
        const char* key = nullptr;
        std::int32_t size = 0;
        const UChar* const text = ures_getNextString(table.getAlias(), &size, &key, &status);
        check(status);
        icu::UnicodeString(text, size).toUTF8String(out[key]);
    }
    return out;
}

std::string before(std::string_view text, std::string_view mark) {
    return std::string(text.substr(0, text.find(mark)));
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t at = text.find(separator);
        parts.emplace_back(text.substr(0, at));
        if (at == text.npos)
            return parts;
        text.remove_prefix(at + separator.size());
    }
}

template <class Make> std::string joined(const std::vector<std::string>& parts, std::string_view separator, Make make) {
    std::string out;
    for (const std::string& part : parts)
        out.append(out.empty() ? "" : separator).append(make(part));
    return out;
}

// Adds brackets if the text contains `mark`; compilers warn about missing and about redundant ones.
std::string inBrackets(const std::string& text, std::string_view mark) {
    return text.find(mark) == text.npos ? text : "(" + text + ")";
}

// "2..4" or "7" as a condition of `value`.
std::string inRange(const std::string& value, const std::string& range) {
    const std::vector<std::string> ends = split(range, "..");
    if (ends.size() == 1)
        return value + " == " + ends[0];
    return "isBetween(" + value + ", " + ends[0] + ", " + ends[1] + ")";
}

// "n % 10 != 2..4,7": an operand, an optional modulus, and ranges.
struct Relation {
    char operand = 'n';
    std::string modulus; // " % 10" or empty
    bool isEqual = true;
    std::vector<std::string> ranges;
};

Relation parsed(const std::string& text) {
    std::istringstream words(text);
    Relation relation;
    std::string operand, word, ranges;
    words >> operand >> word;
    if (word == "%") {
        words >> relation.modulus >> word;
        relation.modulus = " % " + relation.modulus;
    }
    words >> ranges;
    if (!words || operand.size() != 1 || std::string_view("nivwftec").find(operand) == std::string_view::npos ||
        (word != "=" && word != "!=") || ranges.find_first_not_of("0123456789.,") != ranges.npos)
        fail("cannot read the plural rule \"" + text + "\"");
    relation.operand = operand[0];
    relation.isEqual = word == "=";
    relation.ranges = split(ranges, ",");
    return relation;
}

// The relation as a C++ condition on `o`, the PluralOperands of a number.
std::string relation(const std::string& text) {
    const auto [operand, modulus, isEqual, ranges] = parsed(text);
    // Compact notation ("1.2M") is not supported, so its exponents e and c are always 0.
    const bool isExponent = operand == 'e' || operand == 'c';
    const std::string value = isExponent ? "0U" : std::string("o.") + (operand == 'n' ? 'i' : operand) + modulus;
    std::string any = joined(ranges, " || ", [&](const std::string& range) { return inRange(value, range); });
    if (operand == 'n') // n includes the fraction; without one it equals i
        any = "o.t == 0 && " + inBrackets(any, " || ");
    return isEqual ? inBrackets(any, " || ") : "!(" + any + ")";
}

std::string condition(const std::string& rule) {
    return joined(split(rule, " or "), " ||\n            ", [](const std::string& alternative) {
        return inBrackets(joined(split(alternative, " and "), " && ", relation), " && ");
    });
}

// The next three functions make the rule for integers as gettext has it: a C expression in `n` whose value is the index
// of the form.

constexpr const char* always = "1";
constexpr const char* never = "0";

// The fraction and exponent operands of an integer are 0, so relations on them are constant.
std::string integerRelation(const std::string& text) {
    const auto [operand, modulus, isEqual, ranges] = parsed(text);
    if (operand != 'n' && operand != 'i') {
        const bool hasZero =
            std::ranges::any_of(ranges, [](const auto& range) { return range == "0" || range.starts_with("0.."); });
        return hasZero == isEqual ? always : never;
    }
    const std::string value = "n" + modulus;
    const std::string any = joined(ranges, " || ", [&](const std::string& range) {
        const std::vector<std::string> ends = split(range, "..");
        return ends.size() == 1 ? value + " == " + ends[0]
                                : "(" + value + " >= " + ends[0] + " && " + value + " <= " + ends[1] + ")";
    });
    return isEqual ? inBrackets(any, " || ") : "!(" + any + ")";
}

std::string integerCondition(const std::string& rule) {
    std::vector<std::string> alternatives;
    for (const std::string& alternative : split(rule, " or ")) {
        std::vector<std::string> relations;
        for (const std::string& each : split(alternative, " and "))
            relations.push_back(integerRelation(each));
        if (std::ranges::find(relations, never) != relations.end())
            continue;
        std::erase(relations, always);
        alternatives.push_back(relations.empty() ? always
                                                 : joined(relations, " && ", [](const auto& one) { return one; }));
    }
    return alternatives.empty()
               ? never
               : joined(alternatives, " || ", [](const std::string& one) { return inBrackets(one, " && "); });
}

// "A ? 0 : B ? 1 : 2": integers that meet no condition have the last category.
std::string integerExpression(const std::vector<std::string>& conditions) {
    std::string out;
    for (std::size_t i = 0; i + 1 < conditions.size(); ++i)
        out.append(conditions[i]).append(" ? ").append(std::to_string(i)).append(" : ");
    return out + std::to_string(conditions.empty() ? 0 : conditions.size() - 1);
}

struct RuleSet {
    std::string code{};
    unsigned categories = 0;        // one bit per category
    unsigned integerCategories = 0; // those that occur for integers
    std::string expression = "0";   // for integers
};

// For languages without rules: every number has the category `other`.
RuleSet onlyOther() {
    constexpr unsigned other = 1U << indexOf(PluralCategory::other);
    return {.categories = other, .integerCategories = other};
}

RuleSet ruleSet(const std::map<std::string, std::string>& rules) {
    RuleSet set;
    std::vector<std::string> conditions; // of the categories that occur for integers
    for (std::size_t category = 0; category < pluralCategoryCount; ++category) {
        const std::string name(pluralCategoryNames[category]);
        const auto rule = rules.find(name);
        if (rule == rules.end())
            continue;
        set.categories |= 1U << category;
        // A rule is a condition (none for `other`), then samples: "n = 1 @integer 1 @decimal 1.0, 1.00".
        std::string text = before(rule->second, "@");
        text.erase(text.find_last_not_of(' ') + 1);
        if (rule->second.find("@integer") != std::string::npos) {
            set.integerCategories |= 1U << category;
            conditions.push_back(text.empty() ? always : integerCondition(text));
        }
        if (!text.empty())
            set.code += "        if (" + condition(text) + ")\n            return PluralCategory::" + name + ";\n";
    }
    set.expression = integerExpression(conditions);
    return set;
}

} // namespace

std::string pluralRules() {
    UErrorCode status = U_ZERO_ERROR;
    const Bundle all(ures_openDirect(nullptr, "plurals", &status));
    check(status);
    const Bundle rules = child(all, "rules");
    std::string code, categories, languages, expressions;
    std::map<std::string, std::string> numbers; // of the rule sets, by name
    Pool names, expressionTexts;
    for (const auto& [language, name] : texts(child(all, "locales"))) {
        const auto [number, isNew] = numbers.emplace(name, std::to_string(numbers.size()));
        if (isNew) {
            const RuleSet set = name.empty() ? onlyOther() : ruleSet(texts(child(rules, name.c_str())));
            code += "    case " + number->second + ":\n" + set.code + "        break;\n";
            categories +=
                "    {" + std::to_string(set.categories) + ", " + std::to_string(set.integerCategories) + "},\n";
            expressions += "    " + std::to_string(expressionTexts.add(set.expression)) + ",\n";
        }
        languages += "    {" + std::to_string(names.add(language)) + ", " + number->second + "},\n";
    }
    return "PluralCategory select(unsigned ruleSet, const PluralOperands& o) noexcept {\n    switch (ruleSet) {\n" +
           code + "    }\n    return PluralCategory::other;\n}\n" + "constexpr PluralCategories categories[] = {\n" +
           categories + "};\n" + names.definition("names") + "constexpr Language languages[] = {\n" + languages +
           "};\n" + expressionTexts.definition("expressionTexts") + "constexpr std::uint16_t expressions[] = {\n" +
           expressions + "};\n";
}

} // namespace Intl::Precompute
