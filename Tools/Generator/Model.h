// Generator/Model.h
// The accessors of each table for the emitter, with their namespaces, C++ names and parameters.
// Ownership: entries point into the source, which must outlive the model. Threads: plain values.
#pragma once

#include "Generator/NamesFile.h"
#include "Generator/Parameters.h"
#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/Source.h"
#include <string>
#include <vector>

namespace Generator {

// A key with an accessor.
struct NamedEntry {
    const SourceBundle::SourceEntry* source;
    std::string groups; // the enclosing namespaces below the table's, outermost first: "Settings::Profile"
    std::string name;
    std::vector<Parameter> parameters; // empty for a plain text
};

// A key without an accessor.
struct LeftOutEntry {
    const SourceBundle::SourceEntry* source;
    std::string reason;
};

// The accessors of a table of texts.
struct AccessorTable {
    std::string name;                  // "Localizable"
    std::string spelling;              // its namespace; empty if it has none and therefore no accessors
    std::vector<NamedEntry> entries;   // in the order of the development texts
    std::vector<LeftOutEntry> leftOut; // likewise
};

// Keys whose path below the table's namespace is longer or has more parts get no accessor.
inline constexpr std::size_t maxPathLength = 1000; // in bytes, with "::" between the parts
inline constexpr std::size_t maxPathParts = 64;

// The tables that exist in the development language or in Base, sorted by name. Warns about every key that cannot have
// an accessor. If names clash, the first key keeps the name, unless `names` assigns it to another. A table whose name
// gives no namespace, or that of another table, has no accessors, with one warning. Also warns about names in
// `names` that are not used.
[[nodiscard]] std::vector<AccessorTable> accessorTables(const SourceBundle::Source& source, NamesFile& names,
                                                        SourceBundle::Diagnostics& diagnostics);

} // namespace Generator
