// The cardinal plural rules of all languages, as code: each rule set is a case of a switch.
#include "Precompute/Precompute.h"

#include "Intl/internal/PluralCategory.h"
#include <array>
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

// Only where it holds `mark`: compilers warn of brackets too few and too many.
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

// "n % 10 != 2..4,7": an operand, a modulus or none, and ranges.
std::string relation(const std::string& text) {
    std::istringstream words(text);
    std::string operand, word, modulus, ranges;
    words >> operand >> word;
    if (word == "%") {
        words >> modulus >> word;
        modulus = " % " + modulus;
    }
    words >> ranges;
    if (!words || operand.size() != 1 || std::string_view("nivwftec").find(operand) == std::string_view::npos ||
        (word != "=" && word != "!=") || ranges.find_first_not_of("0123456789.,") != ranges.npos)
        fail("cannot read the plural rule \"" + text + "\"");
    // Numbers in compact notation are not written here: their exponents, e and c, are 0.
    const bool isExponent = operand == "e" || operand == "c";
    const std::string value = isExponent ? "0U" : (operand == "n" ? "o.i" : "o." + operand) + modulus;
    std::string any =
        joined(split(ranges, ","), " || ", [&](const std::string& range) { return inRange(value, range); });
    if (operand == "n") // has its fraction: without one it is i
        any = "o.t == 0 && " + inBrackets(any, " || ");
    return word == "!=" ? "!(" + any + ")" : inBrackets(any, " || ");
}

std::string condition(const std::string& rule) {
    return joined(split(rule, " or "), " ||\n            ", [](const std::string& alternative) {
        return inBrackets(joined(split(alternative, " and "), " && ", relation), " && ");
    });
}

struct RuleSet {
    std::string code;
    unsigned categories = 0;        // a bit for each
    unsigned integerCategories = 0; // those that whole numbers have
};

RuleSet ruleSet(const std::map<std::string, std::string>& rules) {
    RuleSet set;
    for (std::size_t category = 0; category < pluralCategoryCount; ++category) {
        const std::string name(pluralCategoryNames[category]);
        const auto rule = rules.find(name);
        if (rule == rules.end())
            continue;
        set.categories |= 1U << category;
        set.integerCategories |= rule->second.find("@integer") != std::string::npos ? 1U << category : 0U;
        std::string text = before(rule->second, "@");
        text.erase(text.find_last_not_of(' ') + 1);
        if (!text.empty())
            set.code += "        if (" + condition(text) + ")\n            return PluralCategory::" + name + ";\n";
    }
    return set;
}

} // namespace

std::string pluralRules() {
    UErrorCode status = U_ZERO_ERROR;
    const Bundle all(ures_openDirect(nullptr, "plurals", &status));
    check(status);
    const Bundle rules = child(all, "rules");
    std::string code, categories, languages;
    std::map<std::string, std::string> numbers; // of the sets that were written
    Pool names;
    for (const auto& [language, name] : texts(child(all, "locales"))) {
        const auto [number, isNew] = numbers.emplace(name, std::to_string(numbers.size()));
        if (isNew) {
            const RuleSet set = name.empty() ? RuleSet{"", 0x20, 0x20} : ruleSet(texts(child(rules, name.c_str())));
            code += "    case " + number->second + ":\n" + set.code + "        break;\n";
            categories +=
                "    {" + std::to_string(set.categories) + ", " + std::to_string(set.integerCategories) + "},\n";
        }
        languages += "    {" + std::to_string(names.offsetOf(language)) + ", " + number->second + "},\n";
    }
    return "PluralCategory select(unsigned ruleSet, const PluralOperands& o) noexcept {\n    switch (ruleSet) {\n" +
           code + "    }\n    return PluralCategory::other;\n}\n" + "constexpr Categories categories[] = {\n" +
           categories + "};\n" + names.definition("names") + "constexpr Language languages[] = {\n" + languages +
           "};\n";
}

} // namespace Intl::Precompute
