// Tests/Support/TemporaryFolder.h
// A folder of a test's own, gone when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

namespace Support {

class TemporaryFolder {
public:
    // The name has a space and letters beyond ASCII: paths of real users do.
    TemporaryFolder() : path_(std::filesystem::temp_directory_path() / "lumora tést.XXXXXX") {
        std::string name = path_.string();
        if (::mkdtemp(name.data()) == nullptr)
            std::abort();
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    // Makes the file `name` and the folders above it; returns its path.
    std::filesystem::path write(std::string_view name, std::string_view bytes) const {
        std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

private:
    std::filesystem::path path_;
};

inline std::string contents(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

// The paths of all files below, relative to it.
inline std::set<std::string> filesBelow(const std::filesystem::path& folder) {
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (!entry.is_directory())
            files.insert(entry.path().lexically_relative(folder));
    return files;
}

} // namespace Support
