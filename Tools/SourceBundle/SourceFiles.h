// SourceBundle/SourceFiles.h
// The files of a source: found, not read.
// Text: paths as the file system has them. Threads: pure functions of the file system.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace SourceBundle {

// A file with texts.
struct TableFile {
    enum class Kind : std::uint8_t {
        texts,   // TABLE.strings in a language folder
        plurals, // TABLE.stringsdict in a language folder
        catalog  // TABLE.xcstrings anywhere, with any number of languages
    };

    Kind kind;
    std::string table;    // "Localizable"
    std::string language; // "de", "Base"; empty for a catalog
    std::filesystem::path path;
};

struct SourceFiles {
    std::vector<TableFile> tables;               // in the order of folders and paths
    std::vector<std::filesystem::path> catalogs; // *.xcassets, by name, then in the same order
    std::vector<std::filesystem::path> infos;    // Info.plist directly in a folder
};

// Searches each of the folders at any depth (maxFolderDepth). Hidden files and folders are passed over; a file that two
// of the folders hold is found once. Errors: a folder that cannot be read, that is a compiled bundle or that holds
// neither tables nor catalogs, and a link from a language folder to a place outside of the source. Other links to
// folders, compiled bundles in a folder, and the files of a language folder that hold no texts, are notes.
[[nodiscard]] SourceFiles findFiles(std::span<const std::filesystem::path> folders, Diagnostics& diagnostics);

// The same for a compiled bundle, whose tables are in the places of a source's.
[[nodiscard]] SourceFiles findBundleFiles(const std::filesystem::path& bundle, Diagnostics& diagnostics);

inline constexpr int maxFolderDepth = 64;

// The language of a language folder's name without ".lproj". Folders of old have English names: "German" is "de".
[[nodiscard]] std::string languageOfFolder(const std::string& name);

} // namespace SourceBundle
