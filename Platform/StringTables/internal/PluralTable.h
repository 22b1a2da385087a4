// StringTables/internal/PluralTable.h
// A table of texts that depend on numbers (TABLE.stringsdict): each key has a format whose variables, "%#@days@", are
// replaced by the form that goes with their number.
// Text: UTF-8. Threads: any, immutable after reading. Ownership: values.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include "Runtime/internal/Result.h"
#include "StringTables/internal/Table.h"
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace StringTables {

struct PluralVariable {
    std::string name;      // "days" for "%#@days@"
    std::string valueType; // the number's placeholder without its '%': "d", "ld", "lu", "f"; never empty
    // By Intl::PluralCategory; no value where the table gives no form. A form is a format of its own and may contain
    // variables.
    std::array<std::optional<std::string>, Intl::pluralCategoryCount> forms;

    friend bool operator==(const PluralVariable&, const PluralVariable&) = default;
};

struct PluralFormat {
    std::string format; // "%#@days@ left"
    std::vector<PluralVariable> variables;

    friend bool operator==(const PluralFormat&, const PluralFormat&) = default;
};

struct PluralEntry {
    std::string key;
    PluralFormat plural;
    Location location;     // of the key in the source
    std::string comment{}; // directly before the key, as Table::comments() has them; empty unless they are read
};

class PluralTable {
public:
    // Reads a table in the form of a property list, XML or binary. Errors as those of Table; a source of no bytes is an
    // empty table. Limits: those of Table, maxTextBytes in all texts together, which entries may share in the file.
    // Throws std::bad_alloc when memory runs out.
    [[nodiscard]] static Runtime::Result<PluralTable> read(std::string bytes);
    // The same from the regular file at `path`, which errors and notes name. Comments cost a pass of their own.
    enum class Comments { areSkipped, areRead };
    [[nodiscard]] static Runtime::Result<PluralTable> readFile(const std::string& path,
                                                               Comments comments = Comments::areSkipped);
    static constexpr std::size_t maxTextBytes = std::size_t{64} << 20;

    // The entry of `key` (exact), or null. Never fails.
    [[nodiscard]] const PluralEntry* find(std::string_view key) const noexcept;
    // Every key once, in the order of the source; the last of equal keys wins.
    [[nodiscard]] std::span<const PluralEntry> entries() const noexcept { return entries_; }
    // What was skipped and why, with its place, in the order of the source.
    [[nodiscard]] std::span<const TableNote> notes() const noexcept { return notes_; }

private:
    static Runtime::Result<PluralTable> read(std::string bytes, const std::string& file, Comments comments);

    std::vector<PluralEntry> entries_;
    std::vector<std::size_t> byKey_; // the numbers of the entries, sorted by key
    std::vector<TableNote> notes_;
};

// The bytes of a binary property list with these entries, in this order. The same entries give the same bytes.
// An error when a text is not UTF-8.
[[nodiscard]] Runtime::Result<std::string> write(std::span<const PluralEntry> entries);

} // namespace StringTables
