// Writes findings as text for a terminal.
#include "Check/Writers.h"

#include "Generator/CodeText.h"
#include "Runtime/internal/Result.h"
#include "SourceBundle/MessageText.h"
#include <array>
#include <vector>

namespace Check {

namespace {

std::string visible(const std::string& text) {
    return Generator::visibleText(text, std::string::npos); // npos: whole
}

std::string placeOf(const Finding& finding) {
    return Runtime::Error{.file = visible(finding.file), .line = finding.line, .column = finding.column}.place();
}

std::string bold(std::string_view text) {
    return std::string("\033[1m").append(text).append("\033[0m");
}

std::string summary(const std::array<std::size_t, 3>& counts, Severity lowest) {
    const auto count = [&](Severity severity) {
        return SourceBundle::counted(counts[static_cast<std::size_t>(severity)], nameOf(severity));
    };
    std::string line = "lumora: " + count(Severity::error) + ", " + count(Severity::warning);
    if (counts[static_cast<std::size_t>(Severity::note)] != 0)
        line += ", " + count(Severity::note);
    std::size_t hidden = 0;
    for (const Severity severity : {Severity::note, Severity::warning})
        if (severity < lowest)
            hidden += counts[static_cast<std::size_t>(severity)];
    if (hidden != 0)
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
        const auto& found = byRule[static_cast<std::size_t>(rule.rule)];
        if (found.empty() || rule.severity < lowest)
            continue;
        text.append(isColored ? bold(rule.name) : rule.name)
            .append(": ")
            .append(rule.summary)
            .append(" (")
            .append(std::to_string(found.size()))
            .append(")\n");
        const std::string severity = std::string(nameOf(rule.severity)) + ":";
        const std::string label = isColored ? SourceBundle::colored(severity, rule.severity) : severity;
        for (const Finding* finding : found)
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
