#include "Compiler/Bundle.h"

#include "Compiler/Assets.h"
#include "Compiler/StagedFolder.h"
#include "Compiler/Tables.h"

namespace Compiler {

namespace fs = std::filesystem;

Runtime::Result<void> compileBundle(const fs::path& source, const fs::path& bundle,
                                    SourceBundle::Diagnostics& diagnostics, const Progress& progress) {
    if (std::error_code failed; !fs::is_directory(source, failed))
        return Runtime::Error{.message = "is no folder of resources", .file = source};
    auto staged = StagedFolder::create(bundle);
    if (!staged)
        return std::move(staged.error());
    if (auto written = compileTables(source, staged->path(), diagnostics, progress); !written)
        return written;
    if (auto written = compileAssets(source, staged->path(), diagnostics, progress); !written)
        return written;
    if (diagnostics.hasErrors())
        return {};
    return staged->putInPlace();
}

} // namespace Compiler
