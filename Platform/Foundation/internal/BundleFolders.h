// Foundation/internal/BundleFolders.h
// What a bundle's directory says of its languages; internal.
// Text: paths as the file system has them. Threads: any; no state. Errors: std::bad_alloc, and std::system_error on
// what may be there at a later try.
#pragma once

#include <string>
#include <vector>

namespace Foundation::detail {

struct BundleFolders {
    std::string developmentLanguage;
    std::vector<std::string> languages; // the names of the language folders ("Base", "de"), sorted
    bool mayHavePlurals = true;
};

// A directory that is missing or cannot be read has no languages. Those that `lumora compile` has noted in Info.plist
// count unless the directory has more or fewer folders; without them the directory is listed.
[[nodiscard]] BundleFolders bundleFolders(const std::string& bundle);

} // namespace Foundation::detail
