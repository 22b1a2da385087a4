// lumora check: finds faults in a source.
#include "Program/Command.h"

#include "Check/Check.h"
#include "Check/Writers.h"
#include "Program/SourceArguments.h"
#include "SourceBundle/MessageText.h"
#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <optional>
#include <unistd.h>

namespace Tools {

namespace {

using Check::Finding;
using SourceBundle::Diagnostics;
using SourceBundle::Severity;
using SourceBundle::Source;

struct CheckOptions {
    SourceArguments source;
    std::string format = "text";
    std::string level; // empty: the default of the format
    std::vector<std::string> disabled;
    std::vector<std::string> usedIn;
    std::string since;
};

Severity lowestShown(const CheckOptions& options) {
    for (const Severity severity : {Severity::error, Severity::warning, Severity::note})
        if (options.level == nameOf(severity))
            return severity;
    return options.format == "text" ? Severity::warning : Severity::note;
}

std::string written(const std::vector<Finding>& findings, const CheckOptions& options) {
    const Severity lowest = lowestShown(options);
    if (options.format == "json")
        return Check::asJson(findings, lowest);
    if (options.format == "sarif")
        return Check::asSarif(findings, lowest, std::filesystem::current_path(), LUMORA_VERSION);
    return Check::asText(findings, lowest, hasColor(STDOUT_FILENO));
}

std::vector<Finding> findingsOf(const CheckOptions& options, Diagnostics& diagnostics) {
    Check::Options checkOptions{.folders = options.source.folderPaths(),
                                .names = options.source.names,
                                .usedIn = {options.usedIn.begin(), options.usedIn.end()}};
    for (const std::string& name : options.disabled)
        checkOptions.disabled.set(static_cast<std::size_t>(*Check::ruleNamed(name)));
    std::optional<Source> older;
    if (!options.since.empty()) {
        const std::filesystem::path folders[] = {options.since};
        Diagnostics messages;
        checkOptions.older = &older.emplace(Source::read(folders, options.source.options, messages));
        // After an error, texts of the older source may be missing. Warnings about it no longer matter.
        for (const SourceBundle::Diagnostic& message : messages.all())
            if (message.severity == Severity::error)
                diagnostics.add(Severity::error, message.what);
    }
    const Source source = options.source.read(diagnostics);
    return Check::check(source, checkOptions, diagnostics);
}

Exit runCheck(const CheckOptions& options) {
    Diagnostics diagnostics;
    const std::vector<Finding> findings = findingsOf(options, diagnostics);
    const Exit read = report(diagnostics);
    const Exit printed = print(written(findings, options));
    if (read != Exit::done || printed != Exit::done)
        return Exit::failed;
    const bool hasError = std::ranges::any_of(
        findings, [](const Finding& finding) { return Check::infoOf(finding.rule).severity == Severity::error; });
    return hasError ? Exit::faultsFound : Exit::done;
}

CLI::Validator ruleName() {
    return {[](const std::string& name) { return Check::ruleNamed(name) ? "" : "unknown rule " + name; }, "RULE"};
}

} // namespace

void addCheckCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<CheckOptions>();
    CLI::App* command = program.add_subcommand("check", "Find faults in a source: texts, plural forms, names, assets.");
    options->source.addTo(*command)->required();
    options->source.addNamesTo(*command);
    command->add_option("--format", options->format, "text (default), json or sarif")
        ->check(CLI::IsMember({"text", "json", "sarif"}));
    command
        ->add_option("--level", options->level,
                     "The lowest severity that is shown: error, warning (default for text) or note (default otherwise)")
        ->check(CLI::IsMember({"error", "warning", "note"}));
    command->add_option("--disable", options->disabled, "A rule that is switched off (may be repeated)")
        ->allow_extra_args(false)
        ->check(ruleName());
    command
        ->add_option("--used-in", options->usedIn,
                     "A folder of C and C++ files: finds accessors that none of them uses (may be repeated)")
        ->allow_extra_args(false)
        ->check(notEmpty());
    command
        ->add_option("--since", options->since,
                     "An older source: finds development texts that take other arguments now")
        ->check(notEmpty());
    command->callback([options, &exit] { exit = runCheck(*options); });
}

} // namespace Tools
