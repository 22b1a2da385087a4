#include "Program/OwnBundle.h"

#include "Runtime/internal/ProgramFolder.h"

namespace Tools {

std::string ownBundle() {
    return Runtime::folderFromProgram({LUMORA_LIBRARIES_FROM_PROGRAM "/" LUMORA_MODULE_FOLDER "/Lumora.bundle",
                                       "../lib/Lumora.bundle"}); // installed ("../lib/lumora-1/..."), built
}

} // namespace Tools
