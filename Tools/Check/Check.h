// Check/Check.h
// Finds faults in a source.
// Threads: any; uses all processors.
#pragma once

#include "Check/Finding.h"
#include "Check/Settings.h"
#include "SourceBundle/Source.h"
#include <filesystem>
#include <vector>

namespace Check {

struct Options {
    std::vector<std::filesystem::path> folders{}; // of the source; their settings files are read
    std::filesystem::path names{};                // see Generator::NamesFile; empty: none
    RuleSet disabled{};
    const SourceBundle::Source* older = nullptr; // an earlier state of the source, for changed-placeholder; or null
    std::vector<std::filesystem::path> usedIn{}; // folders of code; empty: the use of accessors is not checked
};

// The findings, sorted by file and location. `diagnostics` has the messages about reading the source. They are replaced
// by the warnings and errors that are not findings, including those about the settings, the names file, unknown rules
// in comments, and unreadable code.
[[nodiscard]] std::vector<Finding> check(const SourceBundle::Source& source, const Options& options,
                                         SourceBundle::Diagnostics& diagnostics);

} // namespace Check
