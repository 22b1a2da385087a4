#include "Check/Writers.h"

#include "Generator/CodeText.h"
#include <array>
#include <vector>

namespace Check {

namespace {

std::string_view colorOf(Severity severity) noexcept {
    switch (severity) {
    case Severity::note:
        return "\033[36m";
    case Severity::warning:
        return "\033[33m";
    case Severity::error:
        break;
    }
    return "\033[31m";
}

std::string visible(const std::string& text) {
    return Generator::visibleText(text, std::string::npos);
}

std::string counted(std::size_t count, std::string_view word) {
    return std::to_string(count).append(" ").append(word).append(count == 1 ? "" : "s");
}

std::string placeOf(const Finding& finding) {
    std::string place = visible(finding.file);
    for (const std::uint32_t number : {finding.line, finding.line != 0 ? finding.column : 0})
        if (number != 0)
            place.append(":").append(std::to_string(number));
    return place;
}

std::string styled(std::string_view text, std::string_view style, bool isColored) {
    return isColored ? std::string(style).append(text).append("\033[0m") : std::string(text);
}

std::string summary(const std::array<std::size_t, 3>& counts, Severity lowest) {
    const auto count = [&](Severity severity) {
        return counted(counts[static_cast<std::size_t>(severity)], nameOf(severity));
    };
    std::string line = "lumora: " + count(Severity::error) + ", " + count(Severity::warning);
    if (counts[static_cast<std::size_t>(Severity::note)] != 0)
        line += ", " + count(Severity::note);
    if (lowest != Severity::note && (counts[0] != 0 || (lowest == Severity::error && counts[1] != 0)))
        line.append(" (--level note shows all)");
    return line + "\n";
}

} // namespace

std::string asText(std::span<const Finding> findings, Severity lowest, bool isColored) {
    std::array<std::vector<const Finding*>, ruleCount> byRule;
    std::array<std::size_t, 3> counts{}; // by severity
    for (const Finding& finding : findings) {
        byRule[static_cast<std::size_t>(finding.rule)].push_back(&finding);
        ++counts[static_cast<std::size_t>(infoOf(finding.rule).severity)];
    }
    std::string text;
    for (const RuleInfo& rule : allRules()) {
        const auto& its = byRule[static_cast<std::size_t>(rule.rule)];
        if (its.empty() || rule.severity < lowest)
            continue;
        text += styled(rule.name, "\033[1m", isColored);
        text.append(": ").append(rule.summary).append(" (").append(std::to_string(its.size())).append(")\n");
        const std::string label = styled(std::string(nameOf(rule.severity)) + ":", colorOf(rule.severity), isColored);
        for (const Finding* finding : its)
            text.append("  ")
                .append(placeOf(*finding))
                .append(": ")
                .append(label)
                .append(" ")
                .append(visible(finding->message))
                .append("\n");
        text += '\n';
    }
    return text + summary(counts, lowest);
}

} // namespace Check
