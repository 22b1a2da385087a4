// StringTables/internal/StoredTable.h
// A table in a bundle, read as far as it is needed: of a compiled table the first few texts are read by themselves,
// then the file is read whole, once. Nothing is mapped, and no descriptor stays open. Text: UTF-8; the path as the file
// system has it. Threads: any; look-ups of what was read take no lock. Ownership: views live as long as the table.
#pragma once

#include "Runtime/OnceSlot.h"
#include "Runtime/internal/OpenFile.h"
#include "StringTables/internal/CompiledTable.h"
#include "StringTables/internal/KeyHash.h"
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
    // Reads nothing yet.
    explicit StoredTable(std::string path) noexcept : path_(std::move(path)) {}
    StoredTable(const StoredTable&) = delete;
    StoredTable& operator=(const StoredTable&) = delete;
    ~StoredTable();

    // The text of `key` (exact), or no value. A missing table has no keys. A damaged one has none either, except that a
    // compiled table keeps the entries that are intact. Where another file has taken the place of the one that gave the
    // first texts, they stay, and the rest comes from that.
    // Throws std::bad_alloc, and std::system_error for a transient error of the system; the next look-up tries again.
    [[nodiscard]] std::optional<std::string_view> find(std::string_view key) { return find(key, keyHash(key)); }
    // `hash` is keyHash(key). A wrong hash only costs time.
    [[nodiscard]] std::optional<std::string_view> find(std::string_view key, std::uint64_t hash) {
        if (!whole_.isMade()) [[unlikely]]
            return findInParts(key, hash);
        return whole_.value().find(key, hash);
    }

private:
    // A look-up that was answered without reading the file whole.
    struct Part {
        std::string key;
        std::optional<std::string> text;
        Runtime::OpenFile::Identity file;
    };
    // So many are cheaper than the whole file.
    static constexpr std::size_t mostParts = 3;

    // What is kept of the file in the end.
    struct Whole {
        explicit Whole(Table table = {}) noexcept : other(std::move(table)) {}
        Whole(std::string front, const internal::CompiledIndex& index)
            : compiled(std::in_place, std::move(front), index) {}

        std::optional<internal::CompiledTable> compiled;
        Table other; // where it is not a compiled table

        std::optional<std::string_view> find(std::string_view key, std::uint64_t hash) const noexcept {
            if (!compiled)
                return other.find(key);
            const std::string_view text = compiled->find(key, hash);
            if (text.data() != nullptr) [[likely]]
                return text;
            return findAgain(key, hash);
        }
        std::optional<std::string_view> findAgain(std::string_view key, std::uint64_t hash) const noexcept;
    };

    std::optional<std::string_view> findInParts(std::string_view key, std::uint64_t hash);
    std::unique_ptr<const Part> readPart(std::string_view key) const;
    Whole readWhole() const;

    std::string path_;
    std::array<std::atomic<const Part*>, mostParts> parts_{}; // filled from the front
    Runtime::OnceSlot<Whole> whole_;
};

} // namespace StringTables
