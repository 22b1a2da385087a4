// StringTables/internal/Contents.h
// The content of a table, during and after reading.
// Ownership: cannot be moved, because keys and texts are views of `source` and `arena`.
#pragma once

#include "StringTables/internal/Index.h"
#include "StringTables/internal/Table.h"
#include <algorithm>

namespace StringTables::internal {

// Memory for texts that are not views of the source. It never moves and is freed as a whole.
class Arena {
public:
    // Free space for `size` bytes; keep() then takes the part of it before `end`.
    char* reserve(std::size_t size) {
        if (static_cast<std::size_t>(end_ - next_) < size) {
            const std::size_t chunk = std::max(size, chunks_.empty() ? firstChunk : laterChunk);
            next_ = chunks_.emplace_back(new char[chunk]).get();
            end_ = next_ + chunk;
        }
        return next_;
    }
    std::string_view keep(const char* end) noexcept {
        const std::string_view kept(next_, static_cast<std::size_t>(end - next_));
        next_ += kept.size();
        return kept;
    }

    std::string_view copy(std::string_view text) { return keep(std::ranges::copy(text, reserve(text.size())).out); }

private:
    static constexpr std::size_t firstChunk = 4096, laterChunk = 65536; // unless more is needed
    std::vector<std::unique_ptr<char[]>> chunks_;
    char* next_ = nullptr;
    char* end_ = nullptr;
};

// This address marks an entry whose value is not a text, until finish() removes the entry.
inline constexpr char noTextMark[] = "";
inline constexpr std::string_view noText = noTextMark;
inline bool hasText(const Entry& entry) noexcept {
    return entry.text.data() != noTextMark;
}

struct Contents {
    explicit Contents(std::string bytes) : source(std::move(bytes)) {}
    Contents(const Contents&) = delete;
    Contents& operator=(const Contents&) = delete;

    std::string source;    // converted to UTF-8 if it was UTF-16 text
    std::size_t begin = 0; // offset after the byte-order mark
    bool isUtf8 = false;   // by its byte-order mark or because it was converted, whatever an XML declaration says
    Form form = Form::text;
    Arena arena;
    std::vector<Entry> entries;
    bool hasSkipped = false; // whether an entry may be without a text, because its value is of another type
    // The offset of the first key whose value was skipped when the table was full.
    std::optional<std::uint32_t> skippedWhenFull;
    std::vector<TableNote> notes; // made by finish()
    Index index;

    // A note that finish() has not located yet.
    struct FoundNote {
        std::uint32_t offset;
        std::string message;
        std::optional<std::string> repeatedKey{};
    };
    std::vector<FoundNote> foundNotes; // at most Table::maxNotes
    std::size_t notesLeftOut = 0;

    // The readers call these functions in the order of the entries, with the offsets of the keys.

    // False when the table is full.
    [[nodiscard]] bool add(std::string_view key, std::string_view text, std::size_t offset) {
        if (entries.size() == Table::maxEntries)
            return false;
        entries.push_back({key, text, static_cast<std::uint32_t>(offset)});
        return true;
    }
    // Notes that the value of `key` is `what` ("an array"), not a text.
    void noteSkipped(std::string_view key, std::string_view what, std::size_t offset);
    // The same, and adds an entry without a text, because the last value of a key wins.
    void addSkipped(std::string_view key, std::string_view what, std::size_t offset);
    // Notes that `later` has the key of `entry` and replaces it, unless neither has a text.
    void noteReplaced(const Entry& entry, const Entry& later);
    // Notes a repeated key; `what` says which value wins.
    void noteRepeated(std::string_view key, std::string_view what, std::size_t offset);
    // Adds a note: `before`, the key in quotation marks, `after`.
    void note(std::string_view before, std::string_view key, std::string_view after, std::size_t offset);
    // As Locator::error().
    [[nodiscard]] Runtime::Error errorAt(std::size_t offset, std::string message) const;
    // To be called once all entries are added: merges repeated keys, removes entries without a text, builds the index
    // and locates the notes.
    void finish();
};

// Counts lines and columns from the beginning of a text. Lines end with LF, CR or CR LF.
class Locator {
public:
    explicit Locator(const Contents& contents) noexcept
        : source_(contents.source), at_(contents.begin), countsLines_(contents.form != Form::binary) {}
    // The location of `offset`. Offsets must not decrease between calls.
    [[nodiscard]] Location locate(std::size_t offset) noexcept;
    // An error with line and column, or with the byte offset in a binary table.
    [[nodiscard]] Runtime::Error error(std::size_t offset, std::string message);

private:
    std::string_view source_;
    std::size_t at_;
    bool countsLines_;
    Location location_{1, 1};
};

// `text` in quotation marks, for messages: in one line, cut after at most 60 bytes.
[[nodiscard]] std::string quoted(std::string_view text);

// Detects the form of the source and where its content begins, and converts UTF-16 text to UTF-8.
[[nodiscard]] Runtime::Result<void> recognize(Contents& contents);
// Each adds the entries of the source from `contents.begin` on; finish() does the rest.
[[nodiscard]] Runtime::Result<void> readText(Contents& contents);
[[nodiscard]] Runtime::Result<void> readXml(Contents& contents);
[[nodiscard]] Runtime::Result<void> readBinary(Contents& contents);

inline constexpr const char* tooManyEntries = "the table has too many entries";
inline constexpr const char* nestedTooDeeply = "nested too deeply";

} // namespace StringTables::internal
