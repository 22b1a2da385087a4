#include "Generator/OutputFile.h"

#include "Runtime/internal/File.h"
#include "Runtime/internal/SystemError.h"
#include <fstream>
#include <set>
#include <system_error>

namespace Generator {

namespace fs = std::filesystem;

namespace {

std::string firstLine(std::istream& text) {
    std::string line;
    std::getline(text, line);
    return line;
}

Runtime::Result<void> writeIfChanged(const fs::path& path, const std::string& content) {
    if (const auto there = Runtime::readFile(path, content.size()); there && *there == content)
        return {};
    std::error_code failed;
    fs::create_directories(path.parent_path(), failed);
    if (failed)
        return Runtime::systemError(path.parent_path(), "cannot be created", failed.value());
    return Runtime::writeFile(path, content, Runtime::WriteSafety::unsynced); // a lost file can be generated again
}

Runtime::Result<void> removeStale(const fs::path& folder, const std::set<fs::path>& made,
                                  const std::set<std::string>& marks) {
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        const fs::path path = entry->path();
        if (made.contains(path) || !fs::is_regular_file(entry->symlink_status()))
            continue;
        std::ifstream file(path);
        if (marks.contains(firstLine(file)) && !fs::remove(path, failed) && failed)
            return Runtime::systemError(path, "cannot be removed", failed.value());
    }
    return failed ? Runtime::systemError(folder, "cannot be read", failed.value()) : Runtime::Result<void>();
}

} // namespace

Runtime::Result<void> writeFiles(const fs::path& folder, const std::vector<OutputFile>& files,
                                 const std::vector<fs::path>& ownFolders) {
    std::set<fs::path> made, folders;
    std::set<std::string> marks; // the first lines of the files
    for (const OutputFile& file : files) {
        const fs::path path = folder / file.path;
        if (auto written = writeIfChanged(path, file.content); !written)
            return written;
        made.insert(path);
        folders.insert(path.parent_path());
        marks.insert(file.content.substr(0, file.content.find('\n')));
    }
    for (const fs::path& each : ownFolders)
        if (std::error_code failed; fs::is_directory(folder / each, failed))
            folders.insert(folder / each);
    for (const fs::path& each : folders)
        if (auto removed = removeStale(each, made, marks); !removed)
            return removed;
    return {};
}

} // namespace Generator
