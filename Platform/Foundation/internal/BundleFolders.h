// Foundation/internal/BundleFolders.h
// Finds the languages of a bundle; internal.
// Text: paths are raw bytes. Threads: any; no state. Errors: std::bad_alloc, and std::system_error on transient errors.
#pragma once

#include <string>
#include <vector>

namespace Foundation::detail {

struct BundleFolders {
    std::string developmentLanguage;
    std::vector<std::string> languages; // "Base", "de": those with a folder, in any order
};

// Takes the languages from the list that `lumora compile` wrote into Info.plist. If there is no list, or the link
// count of the bundle's folder does not show the same number of folders, takes them from the folders. A missing or
// unreadable bundle has no languages.
[[nodiscard]] BundleFolders bundleFolders(const std::string& bundle);

} // namespace Foundation::detail
