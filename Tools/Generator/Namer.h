// Generator/Namer.h
// Derives the names of accessors, constants and their namespaces; Docs/naming.md has the rules and the exceptions. A
// component of a key first gets a name ("continue", "invoice№"), and each name has one C++ spelling ("continue_",
// "invoiceNo"). Text: UTF-8; invalid bytes separate words. Threads: any; no state.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Generator::Namer {

// Splits a key at its dots and drops empty components. The last component that gives a name names the entry, which is
// the accessor of a text; those before it name groups, which are namespaces.
[[nodiscard]] std::vector<std::string_view> components(std::string_view key);

// The name for a component of a key; empty if it has no character that is allowed in a name, other than '_'.
[[nodiscard]] std::string groupName(std::string_view component);
[[nodiscard]] std::string entryName(std::string_view component);

// The name for an asset: its words, separated by '_', '-', '.' or characters that are not allowed in names; all but the
// first are capitalized. Empty when there are none.
[[nodiscard]] std::string assetName(std::string_view asset);

// The C++ spelling of a name from the functions above: an identifier in NFC that is not reserved and has no two
// adjacent underscores. Empty for an empty name.
[[nodiscard]] std::string spelling(std::string_view name);

// The C++ spelling for the namespace of a table or an asset catalog. It is that of the table's own name if that is an
// identifier without an underscore at its beginning or two adjacent ones, otherwise that of groupName(table). A name
// that would clash with generated code gets an underscore at the end.
[[nodiscard]] std::string tableSpelling(std::string_view table);

// Whether `name` is an identifier without an underscore at its beginning or two adjacent ones, and spelling() returns
// it unchanged.
[[nodiscard]] bool isCppSpelling(std::string_view name);
// Whether `name` is such a spelling and also usable for a namespace in the tree.
[[nodiscard]] bool isNamespaceSpelling(std::string_view name);

// Whether `name` is usable for the module's namespace: a C++ spelling, neither "main" nor a namespace that C++
// reserves.
[[nodiscard]] bool isModuleName(std::string_view name);

} // namespace Generator::Namer
