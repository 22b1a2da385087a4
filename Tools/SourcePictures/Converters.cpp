#include "SourcePictures/Converters.h"

#include "Runtime/internal/ForkGuard.h"
#include "Runtime/internal/Plugin.h"
#include "Runtime/internal/ProgramFolder.h"
#include <stdexcept>

namespace SourcePictures {

namespace {

const Converters& load() {
    // Where it is when installed, and where it is in the build folder.
    const std::string folder = Runtime::folderFromProgram(
        {LUMORA_LIBRARIES_FROM_PROGRAM "/" LUMORA_PLUGIN_FOLDER, "../lib/" LUMORA_PLUGIN_FOLDER});
    const Runtime::ForkGuard guard;
    const auto entry = Runtime::pluginSymbol(guard, folder, "lumora-drawing.so", "lumoraDrawing");
    if (!entry)
        throw std::runtime_error("pictures cannot be drawn: " + entry.error().text());
    return *reinterpret_cast<decltype(&lumoraDrawing)>(*entry)();
}

} // namespace

const Converters& converters() {
    static const Converters& loaded = load();
    return loaded;
}

} // namespace SourcePictures
