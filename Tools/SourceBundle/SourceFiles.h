// SourceBundle/SourceFiles.h
// Finds the files of a source without reading them.
// Text: paths are raw bytes. Threads: any; no state.
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

// Searches the folders up to maxFolderDepth. Hidden files and folders are skipped; a file that is in several of the
// folders is found once. Errors: a folder that is unreadable, is a compiled bundle or contains neither tables nor
// catalogs; a link of a table or language folder that leads out of the source. Notes: other links to folders, compiled
// bundles inside a folder, and files of a language folder that are not tables.
[[nodiscard]] SourceFiles findFiles(std::span<const std::filesystem::path> folders, Diagnostics& diagnostics);

// The same for a compiled bundle, which has the same layout.
[[nodiscard]] SourceFiles findBundleFiles(const std::filesystem::path& bundle, Diagnostics& diagnostics);

inline constexpr int maxFolderDepth = 64;

// The mark file, which `lumora compile` writes into every bundle: it shows that the bundle may be replaced, and lists
// the tables and pictures that the next compile may keep.
inline constexpr const char* compiledMark = ".lumora-bundle";

// The entries of a folder, without hidden ones, sorted by path. An unreadable folder is an error.
[[nodiscard]] std::vector<std::filesystem::directory_entry> sortedEntries(const std::filesystem::path& folder,
                                                                          Diagnostics& diagnostics);

// The language of a folder name without ".lproj". Old folders have English names: "German" gives "de".
[[nodiscard]] std::string languageOfFolder(const std::string& name);

} // namespace SourceBundle
