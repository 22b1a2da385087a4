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
    std::vector<TableFile> tables;               // in the order of the given folders, in each sorted by path
    std::vector<std::filesystem::path> catalogs; // *.xcassets, sorted by name, then like the tables
    std::vector<std::filesystem::path> infos;    // Info.plist directly in one of the given folders
};

// Searches the given folders and their subfolders. Hidden files and folders are skipped; a table or catalog that is in
// several given folders is found once. A link to a language folder is followed, unless another link was followed to it.
// Errors: a folder that is unreadable or below more than maxFolderDepth others; a given path that is not a folder, is
// a compiled bundle, or contains neither tables nor catalogs; a table, language folder or Info.plist that is a link out
// of its given folder. Warnings: a table that is not in a language folder or whose name or language is not UTF-8, a set
// that is not in a catalog, a file *.lproj, an extension with capitals.
// Notes: links that are not followed, compiled bundles inside a folder, and other files in a language folder.
[[nodiscard]] SourceFiles findFiles(std::span<const std::filesystem::path> folders, Diagnostics& diagnostics);

// The same for a compiled bundle, which has the same layout and may be empty.
[[nodiscard]] SourceFiles findBundleFiles(const std::filesystem::path& bundle, Diagnostics& diagnostics);

inline constexpr int maxFolderDepth = 64;

// The mark file, which `lumora compile` writes into every bundle: it shows that the bundle may be replaced, and lists
// the tables and pictures that the next compile may keep.
inline constexpr const char* compiledMark = ".lumora-bundle";

// The entries of a folder, without hidden ones, sorted by path. An unreadable folder is an error.
[[nodiscard]] std::vector<std::filesystem::directory_entry> sortedEntries(const std::filesystem::path& folder,
                                                                          Diagnostics& diagnostics);

// The language code for the name that a language folder (without ".lproj") or Info.plist gives: "de" for the old name
// "German"; any other name is returned unchanged.
[[nodiscard]] std::string languageNamed(const std::string& name);

} // namespace SourceBundle
