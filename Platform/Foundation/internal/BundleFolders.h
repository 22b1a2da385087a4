// Foundation/internal/BundleFolders.h
// Finds the languages of a bundle; internal.
// Text: paths are raw bytes. Threads: any; no state. Errors: std::bad_alloc, and std::system_error on transient errors.
#pragma once

#include <string>
#include <vector>

namespace Foundation::detail {

struct BundleFolders {
    std::string developmentLanguage;
    std::vector<std::string> languages; // the names of the language folders ("Base", "de"), sorted
    bool mayHavePlurals = true;
};

// A directory that is missing or unreadable has no languages. Uses the list that `lumora compile` wrote into Info.plist
// if the directory has that number of folders; otherwise lists the directory.
[[nodiscard]] BundleFolders bundleFolders(const std::string& bundle);

} // namespace Foundation::detail
