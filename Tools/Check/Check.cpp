#include "Check/Check.h"

#include "Check/AssetRules.h"
#include "Check/MessageFindings.h"
#include "Check/TextRules.h"
#include "Check/Usage.h"
#include "Generator/Generator.h"
#include "SourceBundle/Parallel.h"
#include <algorithm>
#include <future>
#include <iterator>
#include <tuple>

namespace Check {

using SourceBundle::Diagnostics;
using SourceBundle::Source;
using SourceBundle::SourceTable;

namespace {

// The tables with development texts, sorted by name. `older`: those of an older source, or none.
std::vector<CheckedTable> checkedTables(const Source& source, std::span<const CheckedTable> older) {
    std::vector<CheckedTable> checked;
    for (const SourceTable& table : source.tables) {
        if (!source.hasDevelopmentLanguage(table))
            continue;
        const auto before = std::ranges::lower_bound(
            older, table.name, {}, [](const CheckedTable& other) -> std::string_view { return other.table->name; });
        const bool existed = before != older.end() && before->table->name == table.name;
        checked.push_back({&table, {source, table, existed ? &before->development : nullptr}});
    }
    return checked;
}

// Checks the texts, each language in a separate step with a report of its own, which is added to `reports`.
void checkTexts(const Source& source, std::span<const CheckedTable> tables, std::vector<Report>& reports) {
    const std::set<std::string> sorted = source.languages();
    const std::vector<std::string> languages(sorted.begin(), sorted.end());
    const auto shared = sharedTexts(tables);
    const std::size_t first = reports.size();
    for (std::size_t i = 0; i < languages.size(); ++i)
        reports.emplace_back(reports.front().settings());
    SourceBundle::inParallel(languages.size(), [&](std::size_t number) {
        const std::string& language = languages[number];
        Report& report = reports[first + number];
        Coverage coverage;
        for (const CheckedTable& table : tables)
            coverage += checkTable(source, table, language, report);
        if (!isTranslation(language, source))
            return;
        checkConsistency(shared, language, report);
        reportCoverage(tables, language, coverage, report);
    });
}

auto placeOf(const Finding& finding) {
    return std::tie(finding.file, finding.line, finding.column, finding.rule, finding.language, finding.subject,
                    finding.message);
}

bool areSame(const Finding& one, const Finding& other) {
    return placeOf(one) == placeOf(other);
}

// Whether the finding says that a key has no accessor, and an earlier finding says that the placeholders of its
// development text contradict each other, which is the likely reason.
bool isExplained(const Finding& finding, std::span<const Finding> earlier, const Source& source) {
    if (finding.rule != Rule::unnamedKey)
        return false;
    for (; !earlier.empty() && earlier.back().file == finding.file && earlier.back().subject == finding.subject;
         earlier = earlier.first(earlier.size() - 1))
        if (earlier.back().rule == Rule::placeholderMismatch && !isTranslation(earlier.back().language, source))
            return true;
    return false;
}

std::vector<Finding> sorted(std::vector<Finding> findings, const Source& source) {
    std::ranges::sort(findings, [](const Finding& one, const Finding& other) { return placeOf(one) < placeOf(other); });
    // Not std::ranges::unique: clang 14 cannot compile that of libstdc++.
    findings.erase(std::unique(findings.begin(), findings.end(), areSame), findings.end());
    // The findings about one key are adjacent, errors first.
    std::vector<Finding> kept;
    for (Finding& finding : findings)
        if (!isExplained(finding, kept, source))
            kept.push_back(std::move(finding));
    return kept;
}

} // namespace

std::vector<Finding> check(const Source& source, const Options& options, Diagnostics& diagnostics) {
    Diagnostics others;
    const Settings settings = Settings::read(options.folders, options.disabled, others);
    // Runs beside the checks of texts, because names and assets take as long as all of these. The model does not depend
    // on the module's name.
    auto modelling = std::async(std::launch::async | std::launch::deferred, [&] {
        return Generator::modelOf(source, {.module = "Module", .names = options.names}, diagnostics);
    });
    const std::vector<CheckedTable> older =
        options.older == nullptr ? std::vector<CheckedTable>() : checkedTables(*options.older, {});
    const std::vector<CheckedTable> tables = checkedTables(source, older);
    std::vector<Report> reports(1, Report(settings));
    checkTexts(source, tables, reports);
    const Generator::Model model = modelling.get();
    checkAssets(model.assets, reports.front());
    if (!options.usedIn.empty())
        checkUsage(model, source.developmentLanguage, options.usedIn, reports.front(), others);
    takeFindings(source, diagnostics, reports.front(), others);
    diagnostics = std::move(others);

    std::vector<Finding> findings;
    for (Report& report : reports) {
        std::ranges::move(report.take(), std::back_inserter(findings));
        for (Runtime::Error& warning : report.takeWarnings())
            diagnostics.add(Severity::warning, std::move(warning));
    }
    return sorted(std::move(findings), source);
}

} // namespace Check
