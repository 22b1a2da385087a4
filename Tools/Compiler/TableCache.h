// Compiler/TableCache.h
// Which tables of the last compile may stay as they are; internal to the compiler.
// Threads: any, after construction.
#pragma once

#include "StringTables/internal/Table.h"
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Compiler {

class TableCache {
public:
    // Reads the lines about tables in `mark`, the content of a mark file (SourceBundle::compiledMark).
    explicit TableCache(std::string_view mark);

    // A hash of everything that a compiled table depends on: its entries and the code of this program. Empty if the
    // program was linked without a build id: then nothing tells two versions of its code apart, and no table is kept.
    [[nodiscard]] static std::string keyOf(std::span<const StringTables::Entry> entries);

    // The line of the mark file for `table`, the bytes of the compiled table; empty for an empty key.
    [[nodiscard]] static std::string record(const std::string& key, std::string_view table);
    // The same line for the table at `file`, or no value if the last compile listed none for the key or the file has
    // other bytes.
    [[nodiscard]] std::optional<std::string> find(const std::string& key, const std::filesystem::path& file) const;

private:
    std::map<std::string, std::uint64_t, std::less<>> hashes_; // of compiled tables, by key
};

} // namespace Compiler
