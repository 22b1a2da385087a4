// StringTables/internal/Writer.h
// Writes a table in one of its forms. The same entries give the same bytes.
// Text: UTF-8 in, UTF-8 out (binary: as the form wants it). Threads: any; no state.
#pragma once

#include "StringTables/internal/Table.h"
#include <span>
#include <string>

namespace StringTables {

// The bytes of a table with these entries, in this order. `form` text gives `"key" = "text";` lines. `comments`, one
// for each entry or none at all, are written before their entries in the forms text and xml; "--" becomes "- -" in XML
// and
// "*/" becomes "* /" in text, where they would end the comment. The form binary has no comments.
// Errors: an entry or a comment is not UTF-8, or holds a control character that XML has no way to write (form xml); the
// table would be larger than Table::maxBytes, as one of few bytes may be whose entries share a long text.
[[nodiscard]] Runtime::Result<std::string> write(std::span<const Entry> entries, Form form,
                                                 std::span<const std::string> comments = {});
// The same table in the binary form with an index in it, so that a bundle's reader finds a text without reading the
// rest (CompiledIndex.h). Every other reader reads a plain dictionary. Without an index, and so as write() makes it: a
// table whose entries share texts so much that they are together more than twice its size, one with two keys of one
// hash.
[[nodiscard]] Runtime::Result<std::string> writeCompiled(std::span<const Entry> entries);

// Appends `text` in quotation marks, as a table of the form text has it.
void appendQuoted(std::string& out, std::string_view text);

// The limit of Table::maxBytes on what a writer of entries makes. To be asked before the first entry with the size of
// all keys and texts, and then with the size of what is written.
[[nodiscard]] Runtime::Result<void> checkWrittenSize(std::size_t size);
[[nodiscard]] std::size_t sizeOf(std::span<const Entry> entries) noexcept;

} // namespace StringTables
