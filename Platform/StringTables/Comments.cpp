#include "StringTables/internal/Comments.h"

#include "StringTables/internal/TextSyntax.h"
#include "StringTables/internal/XmlParser.h"

namespace StringTables::internal {

namespace {

struct Comment {
    std::size_t begin = 0; // offset of its opening mark
    std::size_t end = 0;   // one past its last character, the closing mark included
    std::string_view text; // without marks; each line is trimmed, and the lines are joined with LF
};

constexpr std::string_view whiteSpace = " \t\v\f\r\n";

constexpr bool isLineEnd(char c) noexcept {
    return c == '\n' || c == '\r';
}

std::string_view trimmed(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

// Trims each line and joins the lines with LF. A single line is not copied.
std::string_view cleaned(std::string_view text, Arena& arena) {
    text = trimmed(text);
    if (std::ranges::none_of(text, isLineEnd))
        return text;
    std::string out;
    while (!text.empty()) {
        const char* const end = text.data() + text.size();
        const auto size = static_cast<std::size_t>(findEither(text.data(), end, '\r', '\n') - text.data());
        out += trimmed(text.substr(0, size));
        text.remove_prefix(size);
        if (text.empty())
            break;
        out += '\n';
        text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
    }
    return arena.copy(out);
}

// Requires a source that was read without an error: each comment and each string is closed.
std::vector<Comment> textComments(const Contents& contents, Arena& arena) {
    std::vector<Comment> comments;
    const char* const begin = contents.source.data();
    const char* const end = begin + contents.source.size();
    for (const char* at = begin + contents.begin; at != end;)
        if (beginsComment(at)) {
            const char* const stop = commentEnd(at, end);
            const std::size_t marksSize = at[1] == '/' ? 2 : 4;
            const std::string_view inside(at + 2, static_cast<std::size_t>(stop - at) - marksSize);
            comments.push_back(
                {static_cast<std::size_t>(at - begin), static_cast<std::size_t>(stop - begin), cleaned(inside, arena)});
            at = stop;
        } else if (*at == '"' || *at == '\'') {
            at = quotedEnd(at, end).close + 1;
        } else {
            ++at;
        }
    return comments;
}

class XmlComments final : public XmlHandler {
public:
    explicit XmlComments(Arena& arena) : arena_(arena) {}

    std::string open(const char*, const char* const*, XmlPlace) override { return {}; }
    std::string close(XmlPlace) override { return {}; }
    std::string characters(std::string_view) override { return {}; }
    void comment(std::string_view text, XmlPlace place) override {
        found.push_back({place.begin, place.end, cleaned(arena_.copy(text), arena_)});
    }

    std::vector<Comment> found;

private:
    Arena& arena_;
};

// The comments between an entry and the key of the entry before it.
class CommentsBefore {
public:
    CommentsBefore(const Contents& contents, std::span<const Comment> comments)
        : source_(contents.source), begin_(contents.begin), comments_(comments) {}

    // Those that belong to the entry at `offset`, joined.
    std::string joined(std::size_t offset) const {
        std::size_t first = comments_.size();
        for (std::size_t next = offset; first > 0 && leadsTo(first - 1, next); --first)
            next = comments_[first - 1].begin;
        std::string out;
        for (const Comment& comment : comments_.subspan(first))
            if (!comment.text.empty())
                out.append(out.empty() ? "" : "\n").append(comment.text);
        return out;
    }

private:
    // Whether comment `number` belongs to what begins at `next`: only white space is between them, with at most one
    // line break, and if there is one, the comment is not at the end of another entry's line.
    bool leadsTo(std::size_t number, std::size_t next) const {
        const std::size_t begin = comments_[number].end;
        const std::string_view between = source_.substr(begin, next - begin);
        if (between.find_first_not_of(whiteSpace) != between.npos)
            return false;
        const std::size_t end = between.find_first_of("\r\n");
        if (end == between.npos)
            return true;
        const std::string_view rest = between.substr(end + (between.substr(end).starts_with("\r\n") ? 2 : 1));
        return rest.find_first_of("\r\n") == rest.npos && beginsLine(number);
    }

    // Whether only comments and white space precede comment `number` on its line.
    bool beginsLine(std::size_t number) const {
        for (;; --number) {
            std::size_t at = comments_[number].begin;
            while (at > begin_ && !isLineEnd(source_[at - 1]) && whiteSpace.find(source_[at - 1]) != whiteSpace.npos)
                --at;
            if (at == begin_ || isLineEnd(source_[at - 1]))
                return true;
            if (number == 0 || comments_[number - 1].end != at)
                return false;
        }
    }

    std::string_view source_;
    std::size_t begin_;
    std::span<const Comment> comments_;
};

// All comments in source order. Empty for a binary table.
std::vector<Comment> findComments(const Contents& contents, Arena& arena) {
    if (contents.form == Form::binary)
        return {};
    if (contents.form == Form::text)
        return textComments(contents, arena);
    XmlComments comments(arena);
    return parseXml(contents, comments) ? std::move(comments.found) : std::vector<Comment>();
}

} // namespace

std::vector<std::string> commentsOf(std::span<const std::size_t> entryOffsets, const Contents& contents) {
    Arena arena;
    const std::vector<Comment> comments = findComments(contents, arena);
    std::vector<std::string> texts;
    texts.reserve(entryOffsets.size());
    std::size_t end = 0;
    for (const std::size_t offset : entryOffsets) {
        const std::size_t first = end;
        while (end != comments.size() && comments[end].begin < offset)
            ++end;
        texts.push_back(CommentsBefore(contents, std::span(comments).subspan(first, end - first)).joined(offset));
    }
    return texts;
}

} // namespace StringTables::internal
