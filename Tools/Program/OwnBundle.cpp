#include "Program/OwnBundle.h"

#include "Runtime/internal/ProgramFolder.h"

namespace Tools {

std::string ownBundle() {
    // Where the bundle is installed ("../lib/lumora-1/Lumora.bundle"), then where it is in the build tree.
    return Runtime::folderFromProgram(
        {LUMORA_LIBRARIES_FROM_PROGRAM "/" LUMORA_MODULE_FOLDER "/Lumora.bundle", "../lib/Lumora.bundle"});
}

} // namespace Tools
