// Check/Check.h
// Finds faults in a source.
// Threads: uses all processors; does not change the source.
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
    const SourceBundle::Source* older = nullptr; // development texts are compared with it
    std::vector<std::filesystem::path> usedIn{}; // C++ sources that use accessors; empty: usage is not checked
};

// The findings, sorted by file and location. `diagnostics` has the messages about reading the source: those that are
// findings are removed, and other problems are added.
[[nodiscard]] std::vector<Finding> check(const SourceBundle::Source& source, const Options& options,
                                         SourceBundle::Diagnostics& diagnostics);

} // namespace Check
