// StringTables/internal/PluralTable.h
// A table of texts that depend on numbers (TABLE.stringsdict). Each key has a format with variables such as "%#@days@",
// which are replaced by the plural form for their number.
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
    std::string valueType; // the argument's placeholder without '%': "d", "ld", "lu", "f", "@"; never empty
    // By Intl::PluralCategory; no value when the table has no such form. A form is itself a format and may contain
    // variables.
    std::array<std::optional<std::string>, Intl::pluralCategoryCount> forms;

    friend bool operator==(const PluralVariable&, const PluralVariable&) = default;
};

// A value type without the percent signs at its beginning, which some files have.
[[nodiscard]] constexpr std::string_view withoutPercent(std::string_view valueType) noexcept {
    const std::size_t begin = valueType.find_first_not_of('%');
    return begin == valueType.npos ? std::string_view() : valueType.substr(begin);
}

// The form `other`, which every language has; if the table lacks it, the last existing form, else an empty text.
[[nodiscard]] std::string_view otherForm(const PluralVariable& variable) noexcept;

struct PluralFormat {
    std::string format; // "%#@days@ left"
    std::vector<PluralVariable> variables;

    friend bool operator==(const PluralFormat&, const PluralFormat&) = default;
};

struct PluralEntry {
    std::string key;
    PluralFormat plural;
    Location location;     // of the key in the source
    std::string comment{}; // as in Table::comments(); empty unless comments are read
};

class PluralTable {
public:
    // Reads a table from a property list, XML or binary. Errors as in Table; a source that is empty or only white space
    // is an empty table. Limits: those of Table, but maxEntries counts the keys of all levels; and all keys and texts
    // together have at most maxTextBytes, where a text that several entries of a binary table share counts once for
    // each of them. Throws std::bad_alloc when memory runs out.
    [[nodiscard]] static Runtime::Result<PluralTable> read(std::string bytes);
    enum class Comments { areSkipped, areRead };
    // The same from the regular file at `path`, which errors and notes name. If `bundle` is not empty, `path` begins
    // with it, and links must not lead out of that folder. Reading comments takes a separate pass.
    [[nodiscard]] static Runtime::Result<PluralTable> readFile(const std::string& path, std::string_view bundle = {},
                                                               Comments comments = Comments::areSkipped);
    static constexpr std::size_t maxTextBytes = std::size_t{64} << 20;
    // The limit for one entry; further variables are left out with a note.
    static constexpr std::size_t maxVariables = 256;

    // The entry of `key` (exact), or null. Never fails.
    [[nodiscard]] const PluralEntry* find(std::string_view key) const noexcept;
    // Every key once, in the order in which the keys first had a plural. The last value of equal keys wins; a key whose
    // last value is not a plural has no entry.
    [[nodiscard]] std::span<const PluralEntry> entries() const noexcept { return entries_; }
    // What was skipped and why, as in Table::notes().
    [[nodiscard]] std::span<const TableNote> notes() const noexcept { return notes_; }

private:
    static Runtime::Result<PluralTable> read(std::string bytes, const std::string& file, Comments comments);

    std::vector<PluralEntry> entries_;
    std::vector<std::size_t> byKey_; // the indices of the entries, sorted by key
    std::vector<TableNote> notes_;
};

// Writes a binary property list with these entries, in this order. The same entries give the same bytes.
// Fails when a text is not UTF-8 or the table would be larger than Table::maxBytes.
[[nodiscard]] Runtime::Result<std::string> write(std::span<const PluralEntry> entries);

} // namespace StringTables
