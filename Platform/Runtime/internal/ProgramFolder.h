// Runtime/internal/ProgramFolder.h
// Finds folders that are installed with the running program.
// Text: paths are raw bytes. Threads: any.
#pragma once

#include "Runtime/internal/CodeLocation.h"
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <system_error>

namespace Runtime {

// The path of the first of `places` that is a folder, or of the first place if none is. They are relative to the
// program's folder.
[[nodiscard]] inline std::string folderFromProgram(std::initializer_list<std::string_view> places) {
    const std::filesystem::path program = mainProgramLocation().directory + "/"; // the root folder is ""
    for (const std::string_view place : places) {
        const std::filesystem::path folder = (program / place).lexically_normal();
        if (std::error_code failed; std::filesystem::is_directory(folder, failed))
            return folder;
    }
    return (program / *places.begin()).lexically_normal();
}

} // namespace Runtime
