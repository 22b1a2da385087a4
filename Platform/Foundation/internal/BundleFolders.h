// Foundation/internal/BundleFolders.h
// What a bundle's directory says of its languages; internal.
// Text: paths as the file system has them. Threads: any; no state. Errors: std::bad_alloc, and std::system_error on what
// may be there at a later try.
#pragma once

#include <string>
#include <vector>

namespace Foundation::detail {

// The language of the development texts.
[[nodiscard]] std::string developmentRegion(const std::string& bundle);

// The names of the language folders ("Base", "de"), sorted. A directory that is missing or cannot be read has none.
[[nodiscard]] std::vector<std::string> languageFolders(const std::string& bundle);

} // namespace Foundation::detail
