#include "Exchange/Targets.h"

#include "Exchange/FileSet.h"

namespace Exchange {

namespace fs = std::filesystem;
using SourceBundle::LanguageTexts;
using SourceBundle::SourceTable;
using SourceBundle::TableFile;

namespace {

// The file that has the key's translation or to which it can be added, or null. A plural that replaces a plain
// translation is added to another file.
const TableFile* existingFile(const Key& key) {
    const TableFile& development = *key.development->file;
    if (development.kind == TableFile::Kind::catalog)
        return key.translated == nullptr ? &development : key.translated->file;
    if (key.translated != nullptr &&
        (key.translated->file->kind == development.kind || development.kind == TableFile::Kind::texts))
        return key.translated->file;
    const LanguageTexts* const texts = key.table->find(key.language);
    if (texts == nullptr)
        return nullptr;
    for (const TableFile* file : texts->files)
        if (file->kind == development.kind || file->kind == TableFile::Kind::catalog)
            return file;
    return nullptr;
}

} // namespace

fs::path Targets::newPath(const Key& key) {
    const auto [folders, isNew] = folders_.try_emplace(key.language);
    if (isNew)
        for (const SourceTable& table : source_.tables)
            if (const LanguageTexts* const texts = table.find(key.language))
                for (const TableFile* file : texts->files)
                    if (const fs::path folder = file->path.parent_path(); file->kind != TableFile::Kind::catalog)
                        folders->second.insert_or_assign(folder.parent_path(), folder);
    const fs::path& development = key.development->file->path;
    const fs::path above = development.parent_path().parent_path();
    const auto present = folders->second.find(above);
    const fs::path folder = present == folders->second.end() ? above / (key.language + ".lproj") : present->second;
    return folder / development.filename();
}

Runtime::Result<Targets::Target*> Targets::targetOf(const Key& key) {
    const TableFile* const existing = existingFile(key);
    const fs::path path = existing == nullptr ? newPath(key) : existing->path;
    Target& target = targets_[path];
    if (target.document != nullptr)
        return &target;
    target.document = texts_.catalog(path);
    if (target.document == nullptr && existing == nullptr)
        target.own = TableDocument::make(key.development->file->kind);
    else if (target.document == nullptr) {
        auto read = TableDocument::read(*existing);
        if (!read)
            return std::move(read.error());
        target.own = *std::move(read);
    }
    if (target.own != nullptr)
        target.document = target.own.get();
    return &target;
}

Runtime::Result<void> Targets::apply(const Key& key, const Change& change) {
    auto target = targetOf(key);
    if (!target)
        return std::move(target.error());
    if (auto applied = (*target)->document->apply(change); !applied)
        return applied;
    (*target)->isChanged = true;
    return {};
}

Runtime::Result<std::size_t> Targets::write() {
    FileSet files;
    std::size_t count = 0;
    for (const auto& [path, target] : targets_) {
        if (!target.isChanged)
            continue;
        auto bytes = target.document->bytes();
        if (!bytes) {
            bytes.error().file = path;
            return std::move(bytes.error());
        }
        if (auto staged = files.stage(path, *bytes); !staged)
            return std::move(staged.error());
        ++count;
    }
    if (auto committed = files.commit(); !committed)
        return std::move(committed.error());
    return count;
}

} // namespace Exchange
