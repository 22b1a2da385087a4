// StringTables/internal/Comments.h
// Finds the comments of a text or XML table in a separate pass, so that reading a table does not pay for them.
#pragma once

#include "StringTables/internal/Contents.h"

namespace StringTables::internal {

struct Comment {
    std::size_t begin = 0; // offset of its opening mark
    std::size_t end = 0;   // one past its closing mark; of a line comment, of its line break
    std::string text;      // without marks and outer white space; lines end in LF
};

// All comments in source order. The source was read without an error. Empty for a binary table.
[[nodiscard]] std::vector<Comment> findComments(const Contents& contents);

// The comment of each entry; the entries are given in source order. An entry's comment is every comment between it and
// what precedes it, joined with LF, as long as no blank line separates them. A comment at the end of a line belongs to
// what precedes it on that line, not to the entry on the next line.
[[nodiscard]] std::vector<std::string> commentsOf(std::span<const std::size_t> entryOffsets, const Contents& contents);

} // namespace StringTables::internal
