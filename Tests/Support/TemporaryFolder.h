// Tests/Support/TemporaryFolder.h
// A temporary folder for a test, removed by the destructor; helpers that read files.
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
    // The name has a space and a non-ASCII letter, as real paths may.
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

    // Writes the file `name`, creating its folders, and returns its path.
    std::filesystem::path write(std::string_view name, std::string_view bytes) const {
        std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

private:
    std::filesystem::path path_;
};

// The bytes of a file; empty if it cannot be read.
inline std::string contents(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

// The relative paths of all files below the folder.
inline std::set<std::string> filesBelow(const std::filesystem::path& folder) {
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (!entry.is_directory())
            files.insert(entry.path().lexically_relative(folder));
    return files;
}

} // namespace Support
