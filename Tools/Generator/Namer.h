// Generator/Namer.h
// From keys to names. Every name in generated code is made here, and every exception is known here only; Docs/naming.md
// lists them. A component of a key has a name in the catalog's own vocabulary ("continue", "invoice№"), and each name
// one spelling in C++ ("continue_", "invoiceNo"). Text: UTF-8; any bytes are taken, what is no text separates words.
// Threads: any; no state.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Generator::Namer {

// A key split at its dots, without empty components. All but the last name groups; the last names the entry.
[[nodiscard]] std::vector<std::string_view> components(std::string_view key);

// The catalog's name for a component; empty when it holds no character that can stand in a name.
[[nodiscard]] std::string groupName(std::string_view component);
[[nodiscard]] std::string entryName(std::string_view component);

// The catalog's name for an asset: the words between '_', '-', '.' and whatever cannot stand in a name, the first as it
// is, the others with a capital. Empty when there are none.
[[nodiscard]] std::string assetName(std::string_view asset);

// A name as C++ spells it: an identifier in NFC, no reserved word, without two underscores running. Empty for an empty
// name.
[[nodiscard]] std::string spelling(std::string_view name);

// A table's name as C++ spells it: its own where that is an identifier, otherwise one by the rule for groups.
[[nodiscard]] std::string tableSpelling(std::string_view table);

// That `name` can stand in C++ as it is.
[[nodiscard]] bool isSpelled(std::string_view name);

// That a namespace of the program's own can have this name.
[[nodiscard]] bool isModuleName(std::string_view name);

} // namespace Generator::Namer
