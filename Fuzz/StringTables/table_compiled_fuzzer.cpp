// Reads any bytes as the file of a compiled table in a bundle: a text that is read on its own is the same as after the
// whole file was read.
#include "Checks.h"
#include "StringTables/internal/CompiledIndex.h"
#include "StringTables/internal/StoredTable.h"

#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace {

using StringTables::StoredTable;
using StringTables::Table;

// A file in memory that has a path.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view bytes) : descriptor_(::memfd_create("table", MFD_CLOEXEC)) {
        require(descriptor_ >= 0 && ::write(descriptor_, bytes.data(), bytes.size()) >= 0);
    }
    ~MemoryFile() { ::close(descriptor_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

// The text of `key` after that many lookups of other keys. The first three lookups read single texts if they can, the
// fourth reads the whole file.
std::optional<std::string> found(const MemoryFile& file, std::string_view key, int lookUps) {
    StoredTable table(file.path());
    for (int i = 0; i < lookUps; ++i)
        (void)table.find(std::string(static_cast<std::size_t>(i + 1), '\1'), 0);
    const StringTables::FoundText text = table.find(key, Runtime::keyHash(key));
    return text ? std::optional(std::string(text.text())) : std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (!bytes.starts_with("bplist0"))
        return 0;
    const MemoryFile file(bytes);
    const auto table = Table::read(std::string(bytes));
    std::vector<std::string> keys = {"", "a", "key 1", "Ключ", "long"}; // of the corpus
    if (table)
        for (const auto& entry : table->entries().first(std::min<std::size_t>(table->entries().size(), 8)))
            keys.emplace_back(entry.key);
    for (const std::string& key : keys) {
        const auto part = found(file, key, 0), whole = found(file, key, 3);
        require(!part || !whole || part == whole); // either may miss the text in a damaged file
        if (table) // its index, if there is one, agrees with the dictionary, because readers check that
            require(part == table->find(key) && whole == part);
    }
    return 0;
}
