// Check/Check.h
// Finds the faults of a source.
// Threads: works on all processors; the source is only read.
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
    const SourceBundle::Source* older = nullptr; // what development texts are compared with
    std::vector<std::filesystem::path> usedIn{}; // C++ sources that use accessors; empty: use is not looked for
};

// The findings, by file and place. `diagnostics` holds the messages about reading the source: those that are findings
// are taken out, what else goes wrong is added.
[[nodiscard]] std::vector<Finding> check(const SourceBundle::Source& source, const Options& options,
                                         SourceBundle::Diagnostics& diagnostics);

} // namespace Check
