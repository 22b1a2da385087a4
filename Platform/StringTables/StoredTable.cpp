#include "StringTables/internal/StoredTable.h"

#include "Runtime/internal/TransientError.h"
#include <algorithm>

namespace StringTables {

namespace {

using internal::CompiledIndex;

// The source of findIn(): reads parts of an open file through a buffer of one block.
class FileParts {
public:
    explicit FileParts(const Runtime::OpenFile& file) noexcept : file_(file) {}

    std::string_view bytes(std::size_t at, std::size_t size) {
        if (const auto there = inBlock(at); there.size() >= size)
            return there.substr(0, size);
        if (size > block_.size())
            return longPart(at, size);
        begin_ = at;
        size_ = read(block_.data(), block_.size(), at);
        return inBlock(at).substr(0, size);
    }

private:
    std::string_view inBlock(std::size_t at) const noexcept {
        return at >= begin_ && at - begin_ <= size_ ? std::string_view(block_.data(), size_).substr(at - begin_)
                                                    : std::string_view();
    }
    std::string_view longPart(std::size_t at, std::size_t size) {
        long_.resize(std::min(size, file_.size()));
        return std::string_view(long_).substr(0, read(long_.data(), long_.size(), at));
    }
    std::size_t read(char* out, std::size_t size, std::size_t at) const {
        // Asking for more than is left would take another system call.
        const std::size_t left = file_.size() - std::min(at, file_.size());
        const auto filled = file_.read(out, std::min(size, left), at);
        if (!filled)
            Runtime::throwIfTransient(filled.error());
        return filled ? *filled : 0;
    }

    const Runtime::OpenFile& file_;
    // Large enough for the index's head and displacements in a table of 1,900 entries, and for nearly every key or
    // text.
    std::array<char, 1024> block_;
    std::size_t begin_ = 0, size_ = 0; // of the block's content
    std::string long_;
};

// A smaller file is read in one go.
constexpr std::size_t smallFile = 8192;

// Reads on until `bytes` are the first `size` bytes of the file, or as many as can be read.
void readOn(const Runtime::OpenFile& file, std::string& bytes, std::size_t size) {
    const std::size_t before = bytes.size();
    bytes.resize(std::max(before, std::min(size, file.size())));
    const auto filled = file.read(bytes.data() + before, bytes.size() - before, before);
    if (!filled)
        Runtime::throwIfTransient(filled.error());
    bytes.resize(before + (filled ? *filled : 0));
}

} // namespace

StoredTable::~StoredTable() {
    for (const auto& part : parts_)
        delete part.load(std::memory_order_relaxed);
    if (whole_.isMade())
        std::destroy_at(const_cast<Whole*>(&whole_.value())); // a OnceSlot never destroys its value
}

// Looks up a key in a table that is not compiled, or again with the correct hash if the given one was wrong.
FoundText StoredTable::Whole::findOther(std::string_view key, std::uint64_t hash) const noexcept {
    if (other) {
        const auto text = other->find(key);
        return text ? FoundText(text->empty() ? "" : *text) : FoundText(); // an empty view may be null
    }
    const std::uint64_t right = Runtime::keyHash(key);
    return hash == right ? FoundText() : compiled.find(key, right);
}

// Several threads may read parts at the same time. The first to finish takes the slot; another one uses that result if
// it has the same key, else it takes the next slot.
FoundText StoredTable::findInParts(std::string_view key, std::uint64_t hash) {
    std::optional<Runtime::OpenFile> file;
    std::unique_ptr<const Part> made;
    for (std::atomic<const Part*>& slot : parts_) {
        const Part* part = slot.load(std::memory_order_acquire);
        if (part == nullptr && !made) {
            file = opened();
            made = file ? readPart(*file, key) : nullptr;
        }
        if (part == nullptr && !made)
            break;
        if (part == nullptr && slot.compare_exchange_strong(part, made.get(), std::memory_order_acq_rel))
            part = made.release();
        if (part->key == key)
            return part->found;
    }
    return whole_.get([&] { return readWhole(file ? std::move(file) : opened()); }).find(key, hash);
}

// No value if the file is missing, cannot be opened, or cannot be a table.
std::optional<Runtime::OpenFile> StoredTable::opened() const {
    auto file = Runtime::OpenFile::open(path_, Table::maxBytes, bundlePath());
    if (file)
        return *std::move(file);
    Runtime::throwIfTransient(file.error());
    return std::nullopt;
}

// Null when the table must be read as a whole: it has no intact index, its file is small or has changed since the
// other parts were read.
std::unique_ptr<const StoredTable::Part> StoredTable::readPart(const Runtime::OpenFile& file,
                                                               std::string_view key) const {
    const Part* const first = parts_.front().load(std::memory_order_acquire);
    if (file.size() < smallFile || (first != nullptr && first->file != file.identity()))
        return nullptr;
    FileParts source(file);
    CompiledIndex index;
    if (CompiledIndex::recognize(source.bytes(0, CompiledIndex::headSize), index) != CompiledIndex::State::present)
        return nullptr;
    return std::make_unique<Part>(key, findIn(source, index, key, Runtime::keyHash(key)), file.identity());
}

StoredTable::Whole StoredTable::readWhole(std::optional<Runtime::OpenFile> file) {
    if (!file)
        return {};
    std::string bytes;
    bytes.reserve(file->size()); // once, because a second allocation would take new pages
    readOn(*file, bytes, smallFile);
    CompiledIndex index;
    const bool isCompiled = CompiledIndex::recognize(std::string_view(bytes).substr(0, CompiledIndex::headSize),
                                                     index) == CompiledIndex::State::present;
    const std::size_t needed = isCompiled ? index.frontSize() : file->size();
    readOn(*file, bytes, needed);
    if (isCompiled)
        return {bytes.size() > needed ? bytes.substr(0, needed) : std::move(bytes), index};
    auto table = Table::read(std::move(bytes));
    return table ? Whole(*std::move(table)) : Whole();
}

} // namespace StringTables
