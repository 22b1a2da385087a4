// StringTables/internal/StoredTable.h
// A table in a bundle, read lazily: the first few texts of a large compiled table are read one by one, then its whole
// front (CompiledIndex.h) is read once; any other table is read as a whole. Nothing is memory-mapped, and no descriptor
// stays open. Text: UTF-8; the path is raw bytes. Threads: any; lookups are lock-free once the table was read as a
// whole. Ownership: views live as long as the table.
#pragma once

#include "Runtime/OnceSlot.h"
#include "Runtime/internal/Hash.h"
#include "Runtime/internal/OpenFile.h"
#include "StringTables/internal/CompiledTable.h"
#include "StringTables/internal/Table.h"
#include <array>
#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace StringTables {

class StoredTable {
public:
    // Reads nothing yet. The first `bundlePathSize` bytes of `path` are the folder that links must not lead out of;
    // with 0, links are not checked.
    explicit StoredTable(std::string path, std::size_t bundlePathSize = 0) noexcept
        : path_(std::move(path)), bundlePathSize_(bundlePathSize) {}
    StoredTable(const StoredTable&) = delete;
    StoredTable& operator=(const StoredTable&) = delete;
    ~StoredTable();

    // The text of `key` (exact), whose hash is `hash`, or none; with a wrong hash it only takes longer. A missing table
    // has no keys. A damaged one has none either, except for the intact entries of a compiled table. When the file is
    // replaced after the first texts were read, those texts stay, and the rest comes from the new file.
    // Throws std::bad_alloc, and std::system_error for transient errors; the next lookup tries again.
    [[nodiscard]] FoundText find(std::string_view key, std::uint64_t hash) {
        if (!whole_.isMade()) [[unlikely]]
            return findInParts(key, hash);
        return whole_.value().find(key, hash);
    }

private:
    // The result of a lookup that did not read the whole table.
    struct Part {
        Part(std::string_view askedFor, std::optional<std::string> read, const Runtime::OpenFile::Identity& from)
            : key(askedFor), text(std::move(read)),
              found(text ? FoundText(*text, PercentRange::of(*text)) : FoundText()), file(from) {}
        Part(const Part&) = delete;
        Part& operator=(const Part&) = delete;

        const std::string key;
        const std::optional<std::string> text;
        const FoundText found; // a view of `text`
        const Runtime::OpenFile::Identity file;
    };
    // Up to this number, reading single texts is cheaper than reading the whole table.
    static constexpr std::size_t maxParts = 3;

    // The table, read as a whole: the front of a compiled table, or all of any other.
    struct Whole {
        Whole() = default; // without texts
        explicit Whole(Table table) noexcept : other(std::move(table)) {}
        Whole(std::string front, const internal::CompiledIndex& index) : compiled(std::move(front), index) {}

        internal::CompiledTable compiled;
        std::optional<Table> other; // if it is not a compiled table

        FoundText find(std::string_view key, std::uint64_t hash) const noexcept {
            const FoundText found = compiled.find(key, hash);
            return found ? found : findOther(key, hash);
        }
        FoundText findOther(std::string_view key, std::uint64_t hash) const noexcept;
    };

    FoundText findInParts(std::string_view key, std::uint64_t hash);
    std::optional<Runtime::OpenFile> opened() const;
    std::unique_ptr<const Part> readPart(const Runtime::OpenFile& file, std::string_view key) const;
    static Whole readWhole(std::optional<Runtime::OpenFile> file);

    std::string_view bundlePath() const noexcept { return std::string_view(path_).substr(0, bundlePathSize_); }

    std::string path_;
    std::size_t bundlePathSize_;
    std::array<std::atomic<const Part*>, maxParts> parts_{}; // filled in order
    Runtime::OnceSlot<Whole> whole_;
};

} // namespace StringTables
