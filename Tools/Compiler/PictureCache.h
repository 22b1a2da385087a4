// Compiler/PictureCache.h
// What the last compile made of pictures, so that the next one need not make it again; internal to the compiler.
// The list is in the bundle's mark, the pictures are in its catalog.
// Threads: find() and has() from any thread.
#pragma once

#include "AssetCatalog/internal/Builder.h"
#include "Runtime/internal/OpenFile.h"
#include "SourcePictures/PictureFile.h"
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Compiler {

class PictureCache {
public:
    // The cache of the bundle at that path; an empty one where there is none or it cannot be read.
    static PictureCache of(const std::filesystem::path& bundle);

    // A hash of the file, its purpose and everything else that the result depends on.
    [[nodiscard]] static std::string keyOf(std::string_view bytes, const SourcePictures::Purpose& purpose);

    [[nodiscard]] bool has(const std::string& key) const { return pictures_.contains(key); }
    // The pictures, or no value if there are none for the key or the catalog has been changed.
    [[nodiscard]] std::optional<std::vector<AssetCatalog::Picture>> find(const std::string& key) const;

private:
    struct Record {
        AssetCatalog::Picture picture; // without its bytes
        std::uint64_t offset = 0;
        std::uint64_t size = 0;
        std::uint64_t hash = 0;
    };
    explicit PictureCache(std::optional<Runtime::OpenFile> catalog) : catalog_(std::move(catalog)) {}

    void readRecord(std::string_view line);

    std::optional<Runtime::OpenFile> catalog_;
    std::map<std::string, std::vector<Record>, std::less<>> pictures_; // by key
};

// What was made in this compile, by key.
using MadePictures = std::map<std::string, std::vector<AssetCatalog::Picture>>;

// The list of a bundle's mark. Precondition: the pictures are in `catalog`.
[[nodiscard]] std::string cacheList(const MadePictures& made, const AssetCatalog::BuiltCatalog& catalog);

} // namespace Compiler
