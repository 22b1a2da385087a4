#include "Exchange/FileSet.h"

#include "Runtime/internal/File.h"
#include "Runtime/internal/SystemError.h"
#include <algorithm>
#include <system_error>
#include <unistd.h>

namespace Exchange {

namespace fs = std::filesystem;

namespace {

Runtime::Error cannotBeWritten(const fs::path& path, const std::error_code& reason) {
    return Runtime::systemError(path, "cannot be written", reason.value());
}

// A name beside `path` that is unique to this process.
fs::path beside(const fs::path& path, std::string_view kind) {
    fs::path name = path;
    return name.replace_filename("." + path.filename().string() + "." + std::string(kind) + "-" +
                                 std::to_string(::getpid()));
}

} // namespace

FileSet::~FileSet() {
    std::error_code ignored;
    for (const auto& [target, file] : files_) {
        fs::remove(file.staged, ignored);
        if (!file.old.empty())
            fs::remove(file.old, ignored);
    }
    std::for_each(folders_.rbegin(), folders_.rend(), [&ignored](const fs::path& folder) {
        fs::remove(folder, ignored); // fails unless it is empty
    });
}

Runtime::Result<void> FileSet::stage(const fs::path& path, std::string_view bytes) {
    std::error_code failed;
    const fs::path folder = path.parent_path();
    if (!folder.empty() && fs::create_directory(folder, failed))
        folders_.push_back(folder);
    if (failed)
        return cannotBeWritten(folder, failed);
    fs::path target = path;
    if (const fs::path real = fs::canonical(path, failed); !failed)
        target = real;
    const fs::path staged = beside(target, "new");
    if (!files_.try_emplace(target, File{.staged = staged}).second)
        return Runtime::Error{.message = "is the same file as another that would be changed", .file = path};
    if (auto written = Runtime::writeFile(staged, bytes); !written) {
        written.error().file = path;
        return written;
    }
    if (const fs::file_status status = fs::status(target, failed); fs::exists(status)) {
        fs::permissions(staged, status.permissions(), failed);
        if (failed)
            return cannotBeWritten(path, failed);
    }
    return {};
}

Runtime::Result<void> FileSet::replace(const fs::path& target, File& file) {
    std::error_code failed;
    if (fs::exists(target, failed)) {
        const fs::path old = beside(target, "old");
        fs::create_hard_link(target, old, failed);
        if (failed) // the file system has no hard links
            fs::copy_file(target, old, fs::copy_options::overwrite_existing, failed);
        if (failed)
            return cannotBeWritten(target, failed);
        file.old = old;
    }
    fs::rename(file.staged, target, failed);
    if (failed)
        return cannotBeWritten(target, failed);
    file.isInPlace = true;
    return {};
}

void FileSet::rollBack() {
    std::error_code failed;
    for (auto& [target, file] : files_) {
        if (!file.isInPlace)
            continue;
        if (file.old.empty())
            fs::remove(target, failed);
        else if (fs::rename(file.old, target, failed); failed)
            file.old.clear(); // so that the destructor does not remove the only copy
    }
}

Runtime::Result<void> FileSet::commit() {
    for (auto& [target, file] : files_)
        if (auto replaced = replace(target, file); !replaced) {
            rollBack();
            return replaced;
        }
    return {};
}

} // namespace Exchange
