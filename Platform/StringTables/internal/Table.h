// StringTables/internal/Table.h
// One string table: a flat, immutable map from key to text, read from any of three file formats.
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

// How a table is stored. Detected from the content, never from the file's name.
enum class Form { text, xml, binary };

// A position in a text or XML table. Both numbers count from 1; columns count characters, but may be too small
// in XML in an encoding such as ISO 8859-1. {0, 0} in a binary table.
struct Location {
    std::size_t line = 0;
    std::size_t column = 0;
};

struct Entry {
    std::string_view key;
    std::string_view text;
    std::uint32_t offset = 0; // where the key begins in the source, with its quotation mark, tag or binary marker
};

// What was skipped in a table: one sentence with its location.
struct TableNote : Runtime::Error {
    std::optional<std::string> repeatedKey{}; // the key, if it is repeated and its last value is used
};

namespace internal {
struct Contents;
}

class Table {
public:
    // Reads a table. Errors name the reason and its place: line and column (text, XML) or the byte offset (binary).
    // They have no place if the source is too large or the XML parser cannot be loaded. A source with only a byte-order
    // mark, white space and comments of the text form, or with nothing, is an empty table. Limits: maxBytes of source,
    // maxEntries entries including repeated keys, maxDepth levels of nesting. read() and readFile() throw
    // std::bad_alloc when memory runs out.
    [[nodiscard]] static Runtime::Result<Table> read(std::string bytes);
    // The same from the regular file at `path`, which errors and notes name. If `bundle` is not empty, `path` begins
    // with it, and links must not lead out of that folder.
    [[nodiscard]] static Runtime::Result<Table> readFile(const std::string& path, std::string_view bundle = {});
    static constexpr std::size_t maxBytes = std::size_t{256} << 20;
    static constexpr std::size_t maxEntries = std::size_t{1} << 22;
    static constexpr std::size_t maxDepth = 128;

    Table();
    Table(Table&&) noexcept;
    Table& operator=(Table&&) noexcept;
    ~Table();

    // The text of `key` (exact, case-sensitive), or no value. Never fails, allocates nothing.
    [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const noexcept;

    // Every key once, in source order, with its text. The last value of equal keys wins, and its entry may be in the
    // place of an earlier one; a key whose last value is not a text has no entry.
    [[nodiscard]] std::span<const Entry> entries() const noexcept;
    // What was skipped: values that are not texts, and values of repeated keys. One sentence each, with its location,
    // in the order of the locations. After maxNotes notes, one more without a location says how many were left out.
    static constexpr std::size_t maxNotes = 1000;
    [[nodiscard]] std::span<const TableNote> notes() const noexcept;
    // The location of every entry's key, in the order of the entries; found in one pass.
    [[nodiscard]] std::vector<Location> locations() const;
    // The comment of every entry, in the order of the entries; found in one pass. It is made of the comments before
    // the key, back to the nearest blank line or other content, joined with LF; a comment at the end of another entry's
    // line is not part of it. Empty when there is none, and in a binary table.
    [[nodiscard]] std::vector<std::string> comments() const;
    [[nodiscard]] Form form() const noexcept; // text for a default-constructed table

private:
    static Runtime::Result<Table> read(std::string bytes, const std::string& file);

    std::unique_ptr<const internal::Contents> contents_; // null in a default-constructed table
};

} // namespace StringTables
