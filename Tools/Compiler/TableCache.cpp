#include "Compiler/TableCache.h"

#include "Compiler/Records.h"
#include "Runtime/internal/ElfNotes.h"
#include "Runtime/internal/File.h"

namespace Compiler {

namespace {

constexpr std::string_view recordName = "table";

// Takes the build id of the first object, which is the main program.
int takeBuildId(dl_phdr_info* program, std::size_t, void* out) {
    Runtime::visitNotes(*program, [out](const Runtime::ElfNote& note) {
        const bool isBuildId = note.type == NT_GNU_BUILD_ID && note.owner == std::string_view("GNU\0", 4);
        if (isBuildId)
            *static_cast<std::string_view*>(out) = note.content;
        return isBuildId;
    });
    return 1; // stops
}

// A hash of the program, which the linker computed; empty if it did not. Another version of the program may compile the
// same texts to other tables.
std::string_view buildId() {
    static const std::string_view id = [] {
        std::string_view found;
        ::dl_iterate_phdr(takeBuildId, &found);
        return found;
    }();
    return id;
}

// Appends the size, too, so that "ab", "c" and "a", "bc" give different keys.
void append(std::string& all, std::string_view text) {
    const std::size_t size = text.size();
    all.append(reinterpret_cast<const char*>(&size), sizeof size).append(text);
}

} // namespace

TableCache::TableCache(std::string_view mark) {
    eachLine(mark, [this](std::string_view line) {
        Fields fields(line);
        if (fields.word() != recordName)
            return;
        std::string key(fields.word());
        std::uint64_t hash = 0;
        fields.read(hash, hexadecimal);
        if (fields.isSound())
            hashes_.insert_or_assign(std::move(key), hash);
    });
}

std::string TableCache::keyOf(std::span<const StringTables::Entry> entries) {
    std::string all(buildId());
    if (all.empty())
        return {};
    for (const StringTables::Entry& entry : entries) {
        append(all, entry.key);
        append(all, entry.text);
    }
    return longHashOf(all);
}

std::string TableCache::record(const std::string& key, std::string_view table) {
    return key.empty() ? "" : std::string(recordName) + " " + key + " " + hex(hashOf(table)) + "\n";
}

std::optional<std::string> TableCache::find(const std::string& key, const std::filesystem::path& file) const {
    const auto known = hashes_.find(key);
    if (known == hashes_.end())
        return std::nullopt;
    const auto bytes = Runtime::readFile(file, StringTables::Table::maxBytes);
    return bytes && hashOf(*bytes) == known->second ? std::optional(record(key, *bytes)) : std::nullopt;
}

} // namespace Compiler
