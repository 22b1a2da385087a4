// StringTables/internal/Writer.h
// Writes a table in one of its forms. The same entries give the same bytes.
// Text: takes UTF-8; writes UTF-8, or in the binary form ASCII and UTF-16; a compiled table also has a UTF-8 copy of
// the UTF-16. Threads: any; no state.
#pragma once

#include "StringTables/internal/Table.h"
#include <span>
#include <string>

namespace StringTables {

// The bytes of a table with these entries, in this order. `form` text gives `"key" = "text";` lines. `comments`, one
// for each entry or none at all, are written before their entries in the forms text and xml; "--" becomes "- -" in XML
// and "*/" becomes "* /" in text, because a comment cannot contain them. The form binary has no comments.
// Errors: an entry or a comment is not UTF-8; a comment contains a NUL; an entry or a comment contains a character that
// XML cannot represent (form xml); the table would be larger than Table::maxBytes. A table that was read from a small
// binary file may be that large in text or XML, where each entry has its own copy of a shared text.
[[nodiscard]] Runtime::Result<std::string> write(std::span<const Entry> entries, Form form,
                                                 std::span<const std::string> comments = {});
// The same table in binary form with an index (CompiledIndex.h), so that a bundle finds a text without reading the
// rest. Other readers see a plain dictionary. The index is left out, and the result is that of write() in binary form,
// when two keys are equal or keys were made to collide, when the table would be too large with the index, or when
// entries share texts so much that all keys and texts together are more than twice as long as the file without the
// index.
[[nodiscard]] Runtime::Result<std::string> writeCompiled(std::span<const Entry> entries);

// Appends `text` in quotation marks, escaped as in a table in text form.
void appendQuoted(std::string& out, std::string_view text);

// Fails when a table of `size` bytes is larger than Table::maxBytes.
[[nodiscard]] Runtime::Result<void> checkWrittenSize(std::size_t size);
// The total size of all keys and texts.
[[nodiscard]] std::size_t sizeOf(std::span<const Entry> entries) noexcept;

} // namespace StringTables
