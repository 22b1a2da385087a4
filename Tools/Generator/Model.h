// Generator/Model.h
// The tree of texts, as the emitters need it: every accessor with its place, its name in C++ and its parameters.
// Ownership: entries point into the source, which must outlive the model. Threads: plain values.
#pragma once

#include "Generator/NamesFile.h"
#include "Generator/Parameters.h"
#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/Source.h"
#include <string>
#include <vector>

namespace Generator {

struct CatalogEntry {
    const SourceBundle::SourceEntry* source;
    std::string groups; // the namespaces around it below the table's, outermost first: "Settings::Profile"
    std::string name;
    std::vector<Parameter> parameters; // none: a plain entry
};

// A key without an accessor.
struct LeftOutEntry {
    const SourceBundle::SourceEntry* source;
    std::string reason;
};

struct CatalogTable {
    std::string name;                  // as it is looked up
    std::string spelling;              // its namespace; empty: it has none, and no accessors
    std::vector<CatalogEntry> entries; // in the order of the development texts
    std::vector<LeftOutEntry> leftOut; // likewise
};

// A longer path, or one of more parts, has no accessor.
inline constexpr std::size_t maxPathLength = 1000;
inline constexpr std::size_t maxPathParts = 64;

// The tables that have development texts, by name. A key that can have no accessor is a warning; a clash leaves the
// name to the key that is first, unless `names` gives it to another. A table whose file's name gives no name to a
// namespace, or that of another table, is left out with a warning.
[[nodiscard]] std::vector<CatalogTable> catalogOf(const SourceBundle::Source& source, NamesFile& names,
                                                  SourceBundle::Diagnostics& diagnostics);

} // namespace Generator
