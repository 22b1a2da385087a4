// Generator/Model.h
// What the tables say, as the emitters need it: every entry with its place in the tree, its name in C++ and its
// parameters. Ownership: keys and texts are views of the tables, which must outlive the model. Threads: plain values.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/Tables.h"
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Generator {

enum class Parameter { described, integer };

struct CatalogEntry {
    std::string
        groups; // the namespaces around it, outermost first, below the table's: "Settings::Profile"; empty at the root
    std::string name;
    std::string_view key;
    std::string_view text;             // in the development language
    std::vector<Parameter> parameters; // none: a plain entry
};

struct CatalogTable {
    std::string_view name;             // as it is looked up
    std::string spelling;              // its namespace
    std::vector<CatalogEntry> entries; // in the table's order
};

// Neighbours of one name are one table: of a key in both the first one's text counts. Tables and entries with a fault
// among `diagnostics` are left out.
[[nodiscard]] std::vector<CatalogTable> catalogOf(std::span<const SourceBundle::SourceTable> tables,
                                                  SourceBundle::Diagnostics& diagnostics);

} // namespace Generator
