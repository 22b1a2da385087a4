// StringTables/internal/Table.h
// One string table: a flat, immutable map from key to text, read from any of the three forms in which tables are
// stored.
// Text: UTF-8. Threads: any, immutable after reading.
// Ownership: the table owns its bytes; views live as long as it does.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace StringTables {

// How a table is stored. Told by the content, never by the file's name.
enum class Form { text, xml, binary };

// A place in a text or XML table, counted from 1; columns count characters. {0, 0} in a binary table.
struct Location {
    std::size_t line = 0;
    std::size_t column = 0;
};

struct Entry {
    std::string_view key;
    std::string_view text;
    std::uint32_t offset = 0; // of the key in the source: its first byte, its quotation mark or its tag
};

// What was passed over in a table: one sentence with its place.
struct TableNote : Runtime::Error {
    std::optional<std::string> repeatedKey{}; // where a key appears again: which one
};

namespace internal {
struct Contents;
}

class Table {
public:
    // Reads a table. Errors name line, column and reason (text, XML) or the byte offset (binary). A source of no bytes,
    // of a byte-order mark or of comments only is an empty table.
    // Limits, checked before memory is taken: maxBytes of source, maxEntries of text, maxDepth of nesting.
    // Both overloads throw std::bad_alloc when memory runs out.
    [[nodiscard]] static Runtime::Result<Table> read(std::string bytes);
    // The same from the regular file at `path`, which errors and notes name.
    [[nodiscard]] static Runtime::Result<Table> readFile(const std::string& path);
    static constexpr std::size_t maxBytes = std::size_t{256} << 20;
    static constexpr std::size_t maxEntries = std::size_t{1} << 22;
    static constexpr std::size_t maxDepth = 128;

    Table();
    Table(Table&&) noexcept;
    Table& operator=(Table&&) noexcept;
    ~Table();

    // The text of `key` (exact, case-sensitive), or no value. Never fails, allocates nothing.
    [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const noexcept;

    // Every key once, in the order of the source, with the text that holds: the last value of equal keys wins, and a
    // key whose last value is not a text has none.
    [[nodiscard]] std::span<const Entry> entries() const noexcept;
    // What was passed over: values that are not texts, keys that appear again. One sentence each, with its place, in
    // the order of the source; after maxNotes of them one that tells how many more there were.
    static constexpr std::size_t maxNotes = 1000;
    [[nodiscard]] std::span<const TableNote> notes() const noexcept;
    // Where the key of every entry stands, in the order of the entries; found in one pass.
    [[nodiscard]] std::vector<Location> locations() const;
    // The comment of every entry, in the order of the entries, found in one pass: the comments directly before its key,
    // without a blank line between, joined by line feeds; empty without one, and in a binary table.
    [[nodiscard]] std::vector<std::string> comments() const;
    [[nodiscard]] Form form() const noexcept;

private:
    static Runtime::Result<Table> read(std::string bytes, const std::string& file);

    std::unique_ptr<const internal::Contents> contents_; // null in a table that was not read
};

} // namespace StringTables
