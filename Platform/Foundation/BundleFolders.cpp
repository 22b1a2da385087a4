#include "Foundation/internal/BundleFolders.h"

#include "Runtime/internal/Directory.h"
#include "Runtime/internal/Hash.h"
#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/StoredTable.h"
#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace Foundation::detail {

namespace {

namespace layout = StringTables::bundleLayout;

// Whether the path still refers to the open directory.
bool isAt(DIR* directory, const std::string& path) noexcept {
    struct stat opened {
    }, there{};
    return ::fstat(::dirfd(directory), &opened) == 0 && ::stat(path.c_str(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

// The languages of the folders. No value when another bundle took the place of this one in the meantime: then the list
// may be incomplete.
std::optional<std::vector<std::string>> listedOnce(const std::string& bundle) {
    std::vector<std::string> names;
    const Runtime::Directory directory = Runtime::openDirectory(bundle);
    if (directory == nullptr) {
        Runtime::throwIfTransient({.cause = errno});
        return names;
    }
    const int failed = Runtime::forEachEntry(directory, [&names](std::string_view name) {
        if (const std::string_view language = layout::languageOfFolder(name); !language.empty())
            names.emplace_back(language);
    });
    Runtime::throwIfTransient({.cause = failed});
    return isAt(directory.get(), bundle) ? std::optional(std::move(names)) : std::nullopt;
}

std::vector<std::string> listedLanguages(const std::string& bundle) {
    constexpr int maxTries = 16;
    if (bundle.find('\0') != bundle.npos) // the system would list the folder named before the NUL
        return {};
    for (int tries = 0; tries < maxTries; ++tries)
        if (auto names = listedOnce(bundle))
            return *std::move(names);
    throw std::system_error(EAGAIN, std::generic_category());
}

// The languages in a list from Info.plist, such as "Base/de/".
std::vector<std::string> split(std::string_view list) {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(std::ranges::count(list, layout::languageSeparator)));
    for (;;) {
        const std::size_t end = list.find(layout::languageSeparator);
        if (end == list.npos)
            return names;
        names.emplace_back(list.substr(0, end));
        list.remove_prefix(end + 1);
    }
}

// Whether the file system reports that the directory has that number of folders. Most count folders in st_nlink; the
// others always report 1.
bool hasFolders(const std::string& bundle, std::size_t count) noexcept {
    struct stat status {};
    constexpr nlink_t ownLinks = 2; // its name in its parent, and "."
    return ::stat(bundle.c_str(), &status) == 0 && status.st_nlink == ownLinks + count;
}

} // namespace

BundleFolders bundleFolders(const std::string& bundle) {
    // The second argument is the length of the bundle's path: links must not lead out of that folder.
    StringTables::StoredTable information(std::string(bundle).append("/").append(layout::informationFile),
                                          bundle.size());
    const auto find = [&](std::string_view key, std::string_view otherwise) {
        const StringTables::FoundText found = information.find(key, Runtime::keyHash(key));
        return found ? found.text() : otherwise;
    };
    BundleFolders folders{.developmentLanguage = std::string(find(layout::developmentRegionKey, layout::defaultRegion)),
                          .languages = split(find(layout::languagesKey, ""))};
    if (folders.languages.empty() || !hasFolders(bundle, folders.languages.size()))
        folders.languages = listedLanguages(bundle);
    return folders;
}

} // namespace Foundation::detail
