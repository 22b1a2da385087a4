// Compiler/PictureCache.h
// A cache of the pictures that the last compile made; internal to the compiler.
// The list of pictures is in the bundle's mark file, their bytes are in the bundle's catalog.
// Threads: find() and has() from any thread.
#pragma once

#include "AssetCatalog/internal/Builder.h"
#include "Runtime/internal/OpenFile.h"
#include "SourcePictures/PictureFile.h"
#include <cstddef>
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
    // The pictures of the last compile to `bundle`; none if its catalog is unreadable. `mark` is the content of the
    // bundle's mark file (SourceBundle::compiledMark).
    static PictureCache of(const std::filesystem::path& bundle, std::string_view mark);

    // A hash of what the pictures made from a file depend on: its bytes, its purpose and
    // SourcePictures::converterVersion().
    [[nodiscard]] static std::string keyOf(std::string_view bytes, const SourcePictures::Purpose& purpose);

    // Whether the mark file lists pictures for the key; find() may fail nevertheless.
    [[nodiscard]] bool has(const std::string& key) const { return pictures_.contains(key); }
    // The pictures, or no value if the key is unknown, a line about its pictures is missing, or the catalog does not
    // have their bytes.
    [[nodiscard]] std::optional<std::vector<AssetCatalog::Picture>> find(const std::string& key) const;

private:
    struct Record {
        std::size_t count = 0;         // of the pictures for the key
        AssetCatalog::Picture picture; // without its bytes
        // Where its bytes are in the catalog, and their hash.
        std::uint64_t offset = 0;
        std::uint64_t size = 0;
        std::uint64_t hash = 0;
    };
    explicit PictureCache(std::optional<Runtime::OpenFile> catalog) : catalog_(std::move(catalog)) {}

    void readRecord(std::string_view line);

    std::optional<Runtime::OpenFile> catalog_;                         // no value: there are no pictures
    std::map<std::string, std::vector<Record>, std::less<>> pictures_; // by key
};

// The pictures of this compile, by PictureCache::keyOf() of their file.
using MadePictures = std::map<std::string, std::vector<AssetCatalog::Picture>>;

// The lines of the mark file for the keys whose pictures are all in `catalog`, one for each picture: the key, how many
// pictures it has, the picture's scale, width and height in pixels and in points, and its bytes' offset, size and hash.
[[nodiscard]] std::string cacheList(const MadePictures& made, const AssetCatalog::BuiltCatalog& catalog);

} // namespace Compiler
