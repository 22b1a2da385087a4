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
#include <set>
#include <tuple>
#include <utility>

namespace Check {

using SourceBundle::Diagnostics;
using SourceBundle::Source;
using SourceBundle::SourceTable;

namespace {

// The tables in the development language or Base, sorted by name. `older`: those of an older source, or none.
std::vector<CheckedTable> checkedTables(const Source& source, std::span<const CheckedTable> older) {
    std::vector<CheckedTable> checked;
    for (const SourceTable& table : source.tables) {
        if (!source.hasDevelopmentLanguage(table))
            continue;
        const auto found = std::ranges::lower_bound(
            older, table.name, {}, [](const CheckedTable& other) -> std::string_view { return other.table->name; });
        const bool existed = found != older.end() && found->table->name == table.name;
        checked.push_back({&table, {source, table, existed ? &found->development : nullptr}});
    }
    return checked;
}

// Checks the texts, each language in a separate step. Returns a report for each language.
std::vector<Report> checkTexts(const Source& source, std::span<const CheckedTable> tables, const Settings& settings) {
    const std::set<std::string> names = source.languages();
    const std::vector<std::string> languages(names.begin(), names.end());
    const auto shared = sharedTexts(tables);
    std::vector<Report> reports(languages.size(), Report(settings));
    SourceBundle::inParallel(languages.size(), [&](std::size_t number) {
        const std::string& language = languages[number];
        Report& report = reports[number];
        Coverage coverage;
        for (const CheckedTable& table : tables)
            coverage += checkTable(source, table, language, report);
        if (!isTranslation(language, source))
            return;
        checkConsistency(shared, language, report);
        reportCoverage(tables, language, coverage, report);
    });
    return reports;
}

// If the placeholders of a development text contradict each other, that is the likely reason why its key has no
// accessor: then only the placeholders are reported.
void removeConsequences(std::vector<Finding>& findings, const Source& source) {
    std::set<std::pair<std::string, std::string>> contradictory; // the files and keys of such texts
    for (const Finding& one : findings)
        if (one.rule == Rule::placeholderMismatch &&
            (one.language == source.developmentLanguage || one.language == SourceBundle::baseLanguage))
            contradictory.emplace(one.file, one.subject);
    std::erase_if(findings, [&](const Finding& one) {
        return one.rule == Rule::unnamedKey && contradictory.contains({one.file, one.subject});
    });
}

// A key that appears again in a string catalog has an equal finding for each of its languages.
void sortAndRemoveRepeated(std::vector<Finding>& findings) {
    const auto members = [](const Finding& one) {
        return std::tie(one.file, one.line, one.column, one.rule, one.language, one.subject, one.message);
    };
    std::ranges::sort(findings, {}, members);
    // Not std::ranges::unique: clang 14 cannot compile that of libstdc++.
    const auto areEqual = [&](const Finding& one, const Finding& other) { return members(one) == members(other); };
    findings.erase(std::unique(findings.begin(), findings.end(), areEqual), findings.end());
}

} // namespace

std::vector<Finding> check(const Source& source, const Options& options, Diagnostics& diagnostics) {
    Diagnostics others;
    const Settings settings = Settings::read(options.folders, options.disabled, others);
    // Runs beside the checks of texts, because names and assets together take as long as these; after them (deferred)
    // if there is no thread for it. The model does not depend on the module's name.
    auto modelling = std::async(std::launch::async | std::launch::deferred, [&] {
        return Generator::modelOf(source, {.module = "Module", .names = options.names}, diagnostics);
    });
    const std::vector<CheckedTable> older =
        options.older == nullptr ? std::vector<CheckedTable>() : checkedTables(*options.older, {});
    const std::vector<CheckedTable> tables = checkedTables(source, older);
    std::vector<Report> reports = checkTexts(source, tables, settings);
    Report& rest = reports.emplace_back(settings);
    const Generator::Model model = modelling.get();
    checkAssets(model.assets, rest);
    if (!options.usedIn.empty())
        checkUsage(model, source.developmentLanguage, options.usedIn, rest, others);
    takeFindings(source, diagnostics, rest, others);
    diagnostics = std::move(others);

    std::vector<Finding> findings;
    for (Report& report : reports) {
        std::ranges::move(report.take(), std::back_inserter(findings));
        for (Runtime::Error& warning : report.takeWarnings())
            diagnostics.add(Severity::warning, std::move(warning));
    }
    removeConsequences(findings, source);
    sortAndRemoveRepeated(findings);
    return findings;
}

} // namespace Check
