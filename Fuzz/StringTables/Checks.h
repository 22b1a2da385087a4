// Fuzz/StringTables/Checks.h
// Checks for the fuzzers of tables.
#pragma once

#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"

#include "../Require.h"
#include <algorithm>
#include <iconv.h>
#include <optional>
#include <string>
#include <utility>

namespace Checks {

using StringTables::Entry;
using StringTables::Form;
using StringTables::Table;

// Whether these bytes are read as `form`. Each form has a separate fuzzer that ignores the other forms, because a
// common one would spend its time on the form that is easiest to produce.
inline bool isReadAs(Form form, std::string_view bytes) {
    if (bytes.starts_with("bplist0"))
        return form == Form::binary;
    // Skips white space and byte-order marks, also in UTF-16.
    const std::size_t first = bytes.find_first_not_of(std::string_view(" \t\r\n\xEF\xBB\xBF\xFF\xFE\0", 10));
    return form == (first != std::string_view::npos && bytes[first] == '<' ? Form::xml : Form::text);
}

inline bool haveSameEntries(const Table& one, const Table& other) {
    return std::ranges::equal(one.entries(), other.entries(),
                              [](const Entry& a, const Entry& b) { return a.key == b.key && a.text == b.text; });
}

// Entries are found by their keys, have a line unless the table is binary, and are the same after they are written and
// read in every form. The same entries then have comments, whose text a form may change, except in the binary form,
// which has none.
inline void requireRoundTrips(const Table& table) {
    for (const Entry& entry : table.entries())
        require(table.find(entry.key) == entry.text);
    const auto places = table.locations();
    require(places.size() == table.entries().size());
    for (const StringTables::Location& place : places)
        require((place.line == 0) == (table.form() == Form::binary));
    const auto comments = table.comments();
    require(comments.size() == table.entries().size());
    for (const Form form : {Form::text, Form::xml, Form::binary}) {
        const auto bytes = StringTables::write(table.entries(), form, comments);
        require(bytes || form == Form::xml); // the only form that cannot represent every text
        if (!bytes)
            continue;
        const auto again = Table::read(*bytes);
        require(again && again->form() == form && again->notes().empty() && haveSameEntries(table, *again));
        require(form == Form::binary ||
                std::ranges::equal(again->comments(), comments, {}, &std::string::empty, &std::string::empty));
    }
}

// Reads the bytes as a table of that form; no value if they are rejected or have another form.
inline std::optional<Table> read(std::string_view bytes, Form form) {
    if (!isReadAs(form, bytes))
        return std::nullopt;
    auto table = Table::read(std::string(bytes));
    if (!table) {
        require(!table.error().message.empty());
        return std::nullopt;
    }
    require(table->form() == form);
    requireRoundTrips(*table);
    return *std::move(table);
}

// `utf8` in another encoding; no value if it is not UTF-8.
inline std::optional<std::string> encoded(std::string_view utf8, const char* encoding) {
    iconv_t converter = iconv_open(encoding, "UTF-8");
    std::string in(utf8), out(4 * utf8.size(), '\0');
    char *from = in.data(), *to = out.data();
    std::size_t left = in.size(), unused = out.size();
    const bool isValid = iconv(converter, &from, &left, &to, &unused) == 0;
    iconv_close(converter);
    out.resize(out.size() - unused);
    return isValid ? std::optional(std::move(out)) : std::nullopt;
}

// The same characters give the same table, the same notes and the same error at the same place in UTF-8 and UTF-16.
// Each has one byte-order mark, because with a mark the readers ignore the encoding in an XML declaration.
inline void requireSameInUtf16(std::string_view characters) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    while (characters.starts_with(mark))
        characters.remove_prefix(mark.size());
    const auto narrow = Table::read(std::string(mark).append(characters));
    for (const auto& [encoding, wideMark] : {std::pair{"UTF-16LE", "\xFF\xFE"}, std::pair{"UTF-16BE", "\xFE\xFF"}}) {
        const auto units = encoded(characters, encoding);
        if (!units)
            return;
        const auto wide = Table::read(wideMark + *units);
        require(static_cast<bool>(narrow) == static_cast<bool>(wide));
        if (!narrow) {
            require(narrow.error().text() == wide.error().text());
            continue;
        }
        require(haveSameEntries(*narrow, *wide));
        require(std::ranges::equal(narrow->notes(), wide->notes(), {}, &Runtime::Error::text, &Runtime::Error::text));
    }
}

// Reads the bytes as a table of a textual form, as they are and in UTF-16; bytes of another form are ignored.
inline void readCharacters(const std::uint8_t* data, std::size_t size, Form form) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    read(bytes, form);
    if (isReadAs(form, bytes))
        requireSameInUtf16(bytes);
}

} // namespace Checks
