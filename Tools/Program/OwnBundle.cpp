#include "Program/OwnBundle.h"

#include "Runtime/internal/CodeLocation.h"
#include <array>
#include <filesystem>
#include <string_view>

namespace Tools {

std::string ownBundle() {
    // In an installation, and in a build tree.
    static constexpr std::array<std::string_view, 2> places = {
        "/" LUMORA_LIBRARIES_FROM_PROGRAM "/" LUMORA_MODULE_FOLDER "/Lumora.bundle", "/../lib/Lumora.bundle"};
    const std::string program = Runtime::mainProgramLocation().directory;
    for (const std::string_view place : places) {
        std::error_code failed;
        if (const std::filesystem::path bundle(program + std::string(place));
            std::filesystem::is_directory(bundle, failed))
            return bundle.lexically_normal();
    }
    return program + std::string(places.front());
}

} // namespace Tools
