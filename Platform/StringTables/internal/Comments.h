// StringTables/internal/Comments.h
// The comments of a text or XML table, found in a pass of their own: reading a table pays nothing for them.
#pragma once

#include "StringTables/internal/Contents.h"

namespace StringTables::internal {

struct Comment {
    std::size_t begin = 0; // of its mark in the source
    std::size_t end = 0;   // one past its closing mark; of a line comment, of its line break
    std::string text;      // without marks and outer white space; lines end in LF
};

// In the order of the source, which was read without an error. Empty for a binary table.
[[nodiscard]] std::vector<Comment> findComments(const Contents& contents);

// The comment of each of the entries, which are given in the order of the source: all comments between it and what
// stands before it, as long as no blank line separates them, joined by LF. A comment behind something else on its line
// belongs to that and not to the entry in the next line.
[[nodiscard]] std::vector<std::string> commentsOf(std::span<const std::size_t> entryOffsets, const Contents& contents);

} // namespace StringTables::internal
