// StringTables/internal/Comments.h
// Finds the comments of a table in a separate pass, so that reading a table does not pay for them.
#pragma once

#include "StringTables/internal/Contents.h"

namespace StringTables::internal {

// The comment of each entry; `entryOffsets` are those of the keys, in ascending order. An entry's comment is made of
// the comments before it, back to the nearest blank line or other content, joined with LF. A comment at the end of a
// line belongs to what precedes it on that line, not to the entry on the next line. All are empty in a binary table.
[[nodiscard]] std::vector<std::string> commentsOf(std::span<const std::size_t> entryOffsets, const Contents& contents);

} // namespace StringTables::internal
